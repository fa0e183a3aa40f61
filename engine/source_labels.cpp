#include "engine/source_labels.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct DsdName
{
    int rateHz;
    QLatin1StringView name;
};
constexpr std::array dsdNames = {DsdName{2822400, "DSD64"_L1}, DsdName{5644800, "DSD128"_L1},
                                 DsdName{11289600, "DSD256"_L1}, DsdName{22579200, "DSD512"_L1}};

QString text(const char *source)
{
    return QCoreApplication::translate("SourceLabels", source);
}

QString formatText(const SourceInfo &source)
{
    if (!source.isDsd())
        return u"PCM %1 Hz"_s.arg(source.rateHz);
    const auto *const name = std::ranges::find(dsdNames, source.rateHz, &DsdName::rateHz);
    return name != dsdNames.end() ? QString(name->name) : u"DSD %1"_s.arg(source.rateHz);
}

QString infoText(const SourceInfo &source, const QString &format)
{
    const QString depth = source.depthBits ? QString::number(*source.depthBits) : u"—"_s;
    const QString pattern = text(QT_TRANSLATE_NOOP("SourceLabels", "音频：%1 · %2 位 · %3 声道 · %4 秒"));
    // In a script that runs from right to left each value stays a piece of its own: a figure would otherwise
    // join the Latin words before it and leave its unit behind.
    const auto value = [isolate = pattern.isRightToLeft()](const QString &plain) {
        return isolate ? QChar(0x2068) + plain + QChar(0x2069) : plain;
    };
    QString info = pattern.arg(value(format), value(depth), value(QString::number(source.channels)),
                               value(QString::number(source.durationSec, 'f', 1)));
    if (source.isDsd())
        info += source.dst ? text(QT_TRANSLATE_NOOP("SourceLabels", " · DST：是"))
                           : text(QT_TRANSLATE_NOOP("SourceLabels", " · DST：否"));
    return info;
}

QString bitrateText(const SourceInfo &source)
{
    const double kbps =
        static_cast<double>(source.rateHz) * source.depthBits.value_or(0) * source.channels / 1000.;
    if (kbps <= 0.)
        return {};
    return kbps < 1000. ? u"%1 kbps"_s.arg(kbps, 0, 'f', 0) : u"%1 Mbps"_s.arg(kbps / 1000., 0, 'f', 2);
}

} // namespace

SourceLabels sourceLabels(const SourceInfo &source)
{
    SourceLabels labels;
    labels.format = formatText(source);
    labels.info = infoText(source, labels.format);
    labels.channels = text(QT_TRANSLATE_NOOP("SourceLabels", "%1 声道")).arg(source.channels);
    labels.bitrate = bitrateText(source);
    if (!source.isDsd())
        labels.ledBits = source.depthBits;
    return labels;
}
