#include "engine/chain_text.h"

#include <QCoreApplication>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Row
{
    QLatin1StringView words;
    const char *source;
    bool warn;
};

constexpr const char *bitPerfect = QT_TRANSLATE_NOOP("ChainText", "位完美");

/// The longer verdict stands before the one it begins with.
constexpr std::array rows = {
    Row{"chain: clean"_L1, bitPerfect, false},
    Row{"chain: OS mixer AND format"_L1, QT_TRANSLATE_NOOP("ChainText", "混音+转换"), true},
    Row{"chain: OS mixer"_L1, QT_TRANSLATE_NOOP("ChainText", "系统混音"), true},
    Row{"chain: converted"_L1, QT_TRANSLATE_NOOP("ChainText", "已转换"), true},
    Row{"chain: unknown"_L1, QT_TRANSLATE_NOOP("ChainText", "未知"), true},
};

} // namespace

ChainText chainTextOf(QStringView line)
{
    for (const Row &row : rows) {
        if (line.contains(row.words))
            return {QCoreApplication::translate("ChainText", row.source), row.warn};
    }
    // Deliberate: an engine that names no fault in its verdict has found none. What is wrong it has to say.
    return {QCoreApplication::translate("ChainText", bitPerfect), false};
}
