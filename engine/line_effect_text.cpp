#include "engine/line_effect_text.h"

using namespace Qt::StringLiterals;

namespace {

QString word(bool value)
{
    return value ? u"yes"_s : u"no"_s;
}

QString number(const std::optional<int> &value)
{
    return value ? QString::number(*value) : u"none"_s;
}

QString delayText(double delayMs)
{
    return delayMs > 0. ? u" in %1 ms"_s.arg(delayMs) : QString();
}

QString quoted(const QString &text)
{
    QString escaped = text;
    escaped.replace(u'\n', "\\n"_L1);
    return u'"' + escaped + u'"';
}

struct Describe
{
    QString operator()(const line_effect::WriteHostCopy &e) const { return u"host copy "_s + quoted(e.line); }
    QString operator()(const line_effect::ShowChainBlock &) const { return u"show chain block"_s; }
    QString operator()(const line_effect::RedrawChainPanel &) const { return u"redraw chain panel"_s; }
    QString operator()(const line_effect::StopNoAudioTimer &) const { return u"sound flows"_s; }
    QString operator()(const line_effect::LogFileOnly &e) const { return u"log file "_s + quoted(e.text); }
    QString operator()(const line_effect::LogLine &e) const
    {
        return (e.isError ? u"log error "_s : u"log "_s) + quoted(e.text);
    }
    QString operator()(const line_effect::ShowStatus &e) const { return u"status bar "_s + quoted(e.text); }
    QString operator()(const line_effect::ShowDecodeFilter &e) const
    {
        return u"decode filter %1, automatic: %2"_s.arg(e.filter.name, word(e.filter.automatic));
    }
    QString operator()(const line_effect::ShowScan &e) const
    {
        return u"scan %1 %, %2 s of %3 s"_s.arg(e.scan.percent).arg(e.scan.doneSec).arg(e.scan.totalSec);
    }
    QString operator()(const line_effect::ShowSource &e) const
    {
        return u"source %1, lamp bits %2, bitrate %3"_s.arg(quoted(e.labels.info), number(e.labels.ledBits),
                                                            quoted(e.labels.bitrate));
    }
    QString operator()(const line_effect::ShowLevels &e) const
    {
        return u"levels %1 dB, %2 dB%3"_s.arg(QString::number(e.levels.leftDb),
                                              QString::number(e.levels.rightDb), delayText(e.delayMs));
    }
    QString operator()(const line_effect::ShowPanelStatus &e) const
    {
        return u"panel status "_s + quoted(e.text);
    }
    QString operator()(const line_effect::ShowEffectiveBits &e) const
    {
        return u"effective bits mode %1, bits %2, %3"_s.arg(QString::number(static_cast<int>(e.result.mode)),
                                                            number(e.result.bits), quoted(e.toolTip));
    }
    QString operator()(const line_effect::ShowChainText &e) const
    {
        return u"chain lamp %1, warns: %2"_s.arg(quoted(e.result.text), word(e.result.warn));
    }
    QString operator()(const line_effect::ReceiveVerify &e) const { return u"verify "_s + quoted(e.text); }
    QString operator()(const line_effect::ClearScope &) const { return u"no scope"_s; }
    QString operator()(const line_effect::ClearSpectrum &) const { return u"no spectrum"_s; }
    QString operator()(const line_effect::ShowScope &e) const
    {
        return u"scope frame of %1 buckets"_s.arg(e.frame.bucketCount);
    }
    QString operator()(const line_effect::ShowSpectrumZones &e) const
    {
        return u"spectrum zones low %1, audible %2, nyquist %3"_s.arg(
            number(e.zones.low), number(e.zones.audible), number(e.zones.nyquist));
    }
    QString operator()(const line_effect::ShowSpectrum &e) const
    {
        return u"spectrum frame of %1 bands%2"_s.arg(QString::number(e.frame.bandCount),
                                                     delayText(e.delayMs));
    }
    QString operator()(const line_effect::SetEffectsPath &e) const
    {
        return u"effects path: PCM effects %1, DSD direct %2"_s.arg(word(e.pcmEffectsActive),
                                                                    word(e.dsdDirect));
    }
    QString operator()(const line_effect::ReceiveProgress &e) const
    {
        return u"progress %1 %, %2 s of %3 s"_s.arg(e.progress.percent)
            .arg(e.progress.positionSec)
            .arg(e.progress.totalSec);
    }
    QString operator()(const line_effect::UpdatePercent &e) const { return u"percent %1"_s.arg(e.percent); }
    QString operator()(const line_effect::ChangeSegment &e) const { return u"segment %1"_s.arg(e.number); }
    QString operator()(const line_effect::FinishTrack &) const { return u"track is done"_s; }
    QString operator()(const line_effect::FailTrack &) const { return u"track has failed"_s; }
    QString operator()(const line_effect::ForgetDeviceTrouble &) const { return u"device opened"_s; }
    QString operator()(const line_effect::NoteBusyDevice &) const { return u"device is busy"_s; }
    QString operator()(const line_effect::NoteMissingDevice &) const { return u"device is missing"_s; }
};

} // namespace

QString describe(const LineEffect &effect)
{
    return std::visit(Describe{}, effect);
}
