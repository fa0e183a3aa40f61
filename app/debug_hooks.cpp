#include "app/debug_hooks.h"

#include <QStringList>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

std::optional<std::pair<QString, QString>> splitPair(const QString &text)
{
    const QStringList parts = text.split(u':');
    if (parts.size() != 2)
        return std::nullopt;
    return std::pair(parts.first(), parts.last());
}

std::optional<int> wholeNumber(const QString &text)
{
    bool ok = false;
    const int value = text.trimmed().toInt(&ok);
    return ok ? std::optional(value) : std::nullopt;
}

/// Times are accepted with fractions; 0 means that nothing is armed.
double timeAboveZero(const QString &text)
{
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    return ok && value > 0. ? value : 0.;
}

/// The longest time that a timer of the toolkit can hold is about 24 days.
constexpr double longestSec = 2'000'000.;

std::optional<HookPlan::JumpAt> parseJump(const QString &text)
{
    const auto parts = splitPair(text);
    if (!parts)
        return std::nullopt;
    bool ok = false;
    const double sec = parts->first.trimmed().toDouble(&ok);
    const std::optional<int> row = wholeNumber(parts->second);
    if (!ok || !(sec >= 0. && sec <= longestSec) || !row)
        return std::nullopt;
    return HookPlan::JumpAt{sec, *row};
}

std::optional<HookPlan::NextEvery> parseNextEvery(const QString &text)
{
    const auto parts = splitPair(text);
    if (!parts)
        return std::nullopt;
    const double sec = timeAboveZero(parts->first);
    const std::optional<int> count = wholeNumber(parts->second);
    if (sec < 1. || !count || *count < 1 || sec * *count > longestSec)
        return std::nullopt;
    return HookPlan::NextEvery{sec, *count};
}

void parseMoveRow(const QString &text, HookPlan &plan)
{
    const auto parts = splitPair(text);
    const std::optional<int> from = parts ? wholeNumber(parts->first) : std::nullopt;
    const std::optional<int> to = parts ? wholeNumber(parts->second) : std::nullopt;
    if (from && to)
        plan.moveRow = HookPlan::MoveRow{*from, *to};
    else
        plan.badMoveRow = text;
}

} // namespace

HookPlan parseHooks(const HookEnvironment &environment)
{
    const auto text = [&](const char *name) { return environment(name).value_or(QString()); };
    const auto isSet = [&](const char *name) { return environment(name).has_value(); };
    const auto seconds = [&](const char *name) { return std::min(timeAboveZero(text(name)), longestSec); };

    HookPlan plan;
    if (const QString path = text("KELP_GUI_AUTOPLAY"); !path.isEmpty())
        plan.autoplay = HookPlan::Autoplay{path, text("KELP_GUI_DEV")};
    plan.jumpAt = parseJump(text("KELP_GUI_JUMP_AT"));
    plan.nextEvery = parseNextEvery(text("KELP_GUI_NEXT_EVERY"));
    plan.nextAfterSec = seconds("KELP_GUI_NEXT_AFTER");
    plan.quitAfterSec = seconds("KELP_GUI_QUIT_AFTER");
    plan.stopAfterSec = seconds("KELP_GUI_STOP_AFTER");
    plan.checkAfterSec = seconds("KELP_GUI_CHECK_AFTER");
    plan.autostopMs = std::min(timeAboveZero(text("KELP_GUI_AUTOSTOP")), longestSec * 1000.);
    if (const QString spec = text("KELP_GUI_MOVEROW"); !spec.isEmpty())
        parseMoveRow(spec, plan);
    plan.rigDump = isSet("KELP_GUI_RIGDUMP");
    plan.rigDumpValue = text("KELP_GUI_RIG");
    plan.autoClose = isSet("KELP_GUI_AUTOCLOSE");
    plan.shotPath = text("KELP_GUI_SHOT");
    plan.shotAfterSec = seconds("KELP_GUI_SHOT_AFTER");
    plan.smoke = isSet("KELP_GUI_SMOKE");
    plan.smokeWide = isSet("KELP_GUI_SMOKE_WIDE");
    plan.smokeHang = isSet("KELP_SMOKE_HANG_TEST");
    return plan;
}

HookEnvironment processHookEnvironment()
{
    return [](const char *name) -> std::optional<QString> {
        if (!qEnvironmentVariableIsSet(name))
            return std::nullopt;
        return qEnvironmentVariable(name);
    };
}
