#include "output/engine_choices.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr double leastCrossoverHz = 20.;
constexpr double mostCrossoverHz = 20000.;
constexpr double mostCrossfadeSec = 12.;
constexpr double leastSpeed = 0.5;
constexpr double mostSpeed = 3.;
constexpr int mostDenoiseTier = 3;

constexpr std::array layoutSizes = {2, 4, 5, 6, 8};
constexpr std::array tapChoices = {2048, 4096, 8192, 16384, 32768};
constexpr int dsd64Hz = 2822400;
constexpr int dsdTargetCount = 6;

QList<ChoiceItem> codes(const QStringList &words)
{
    QList<ChoiceItem> items;
    for (const QString &word : words)
        items.append({word, word});
    return items;
}

QString words(const char *source)
{
    return QCoreApplication::translate("EngineControls", source);
}

bool knows(const QList<ChoiceItem> &items, const QString &code)
{
    return std::ranges::any_of(items, [&](const ChoiceItem &item) { return item.code == code; });
}

} // namespace

namespace engineItems {

QList<ChoiceItem> modes()
{
    return codes({u"standard"_s, u"differential"_s, u"btl"_s, u"crossover"_s, u"pairs"_s});
}

QList<ChoiceItem> layouts()
{
    QList<ChoiceItem> items;
    const QString pattern = words(QT_TRANSLATE_NOOP("EngineControls", "%1 声道"));
    for (const int channels : layoutSizes)
        items.append({pattern.arg(channels), QString::number(channels)});
    return items;
}

QList<ChoiceItem> rigs()
{
    return QList<ChoiceItem>{{u"auto"_s, QString()}} +
           codes({u"direct"_s, u"bs775"_s, u"all-channel-stereo"_s, u"custom"_s});
}

QList<ChoiceItem> dops()
{
    return codes({u"auto"_s, u"force"_s, u"native"_s});
}

QList<ChoiceItem> outputPaths()
{
    return codes({u"auto"_s, u"exclusive"_s, u"shared"_s});
}

QList<ChoiceItem> pcmBits()
{
    return codes({u"16"_s, u"24"_s, u"32"_s, u"float32"_s});
}

QList<ChoiceItem> pcmFilters()
{
    return {{words(QT_TRANSLATE_NOOP("EngineControls", "快速")), u"fast"_s},
            {words(QT_TRANSLATE_NOOP("EngineControls", "标准")), u"standard"_s},
            {words(QT_TRANSLATE_NOOP("EngineControls", "最佳")), u"best"_s}};
}

QList<ChoiceItem> qualities()
{
    return pcmFilters();
}

QList<ChoiceItem> replayGains()
{
    return {{words(QT_TRANSLATE_NOOP("EngineControls", "关闭")), u"0"_s},
            {words(QT_TRANSLATE_NOOP("EngineControls", "按曲目")), u"1"_s},
            {words(QT_TRANSLATE_NOOP("EngineControls", "按专辑")), u"2"_s}};
}

QList<ChoiceItem> dsdTargets()
{
    QList<ChoiceItem> items;
    for (int i = 0; i < dsdTargetCount; ++i)
        items.append({u"DSD%1"_s.arg(64 << i), QString::number(dsd64Hz << i)});
    return items;
}

QList<ChoiceItem> dsdTaps()
{
    QList<ChoiceItem> items = {{words(QT_TRANSLATE_NOOP("EngineControls", "自动")), u"0"_s}};
    for (const int taps : tapChoices)
        items.append({QString::number(taps), QString::number(taps)});
    return items;
}

} // namespace engineItems

EngineChoices withinRanges(EngineChoices choices)
{
    const EngineChoices defaults;
    const auto known = [](QString &code, const QList<ChoiceItem> &items, const QString &fallback) {
        if (!knows(items, code))
            code = fallback;
    };
    const auto knownNumber = [](int &number, const QList<ChoiceItem> &items, int fallback) {
        if (!knows(items, QString::number(number)))
            number = fallback;
    };
    known(choices.mode, engineItems::modes(), defaults.mode);
    knownNumber(choices.channelCount, engineItems::layouts(), defaults.channelCount);
    known(choices.rig, engineItems::rigs(), defaults.rig);
    known(choices.dop, engineItems::dops(), defaults.dop);
    known(choices.outputPath, engineItems::outputPaths(), defaults.outputPath);
    known(choices.pcmBits, engineItems::pcmBits(), defaults.pcmBits);
    known(choices.pcmFilter, engineItems::pcmFilters(), defaults.pcmFilter);
    known(choices.resampleQuality, engineItems::qualities(), defaults.resampleQuality);
    knownNumber(choices.replayGainMode, engineItems::replayGains(), defaults.replayGainMode);
    knownNumber(choices.pcmToDsdTargetHz, engineItems::dsdTargets(), defaults.pcmToDsdTargetHz);
    knownNumber(choices.pcmToDsdTaps, engineItems::dsdTaps(), defaults.pcmToDsdTaps);
    choices.crossoverHz = std::clamp(choices.crossoverHz, leastCrossoverHz, mostCrossoverHz);
    choices.crossfadeSec = std::clamp(choices.crossfadeSec, 0., mostCrossfadeSec);
    choices.speedRatio = std::clamp(choices.speedRatio, leastSpeed, mostSpeed);
    choices.denoiseTier = std::clamp(choices.denoiseTier, 0, mostDenoiseTier);
    choices.keepHarmonics = choices.keepHarmonics && choices.denoiseTier > 0;
    choices.channelDevices.resize(EngineChoices::mostChannels);
    return choices;
}
