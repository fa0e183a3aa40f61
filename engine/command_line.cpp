#include "engine/command_line.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int dsd64Hz = 2822400;
constexpr int leastTaps = 512;

QString translated(const char *source)
{
    return QCoreApplication::translate("CommandLine", source);
}

/// A control that does not exist gives no text; it counts as its first choice.
QString orDefault(const QString &text, QLatin1StringView fallback)
{
    return text.isEmpty() ? QString(fallback) : text;
}

QString onOff(bool on)
{
    return on ? u"on"_s : u"off"_s;
}

class Builder
{
public:
    explicit Builder(const EngineArgsInput &input)
        : m_in(input)
    {
    }

    EngineArgsResult build()
    {
        addSource();
        addSwitchesOfTheSession();
        if (!addDevices())
            return {{}, m_notices};
        addOutput();
        addTreatment();
        addPcm();
        addVolume();
        return {m_args, m_notices};
    }

private:
    void add(QLatin1StringView flag) { m_args.append(QString(flag)); }
    void add(QLatin1StringView flag, const QString &value)
    {
        m_args.append(QString(flag));
        m_args.append(value);
    }

    void addSource()
    {
        if (!m_in.isoPath.isEmpty())
            addContainer("-iso"_L1, m_in.isoPath);
        else if (!m_in.cuePath.isEmpty())
            addContainer("-cue"_L1, m_in.cuePath);
        else if (!m_in.file.isEmpty())
            add("-i"_L1, m_in.file);
        else
            add("-stream"_L1);
    }

    void addContainer(QLatin1StringView flag, const QString &path)
    {
        add(flag, path);
        if (m_in.track >= 1)
            add("-track"_L1, QString::number(m_in.track));
    }

    void addSwitchesOfTheSession()
    {
        add("-parent-pid"_L1, QString::number(m_in.parentPid));
        if (m_in.dspPlugins)
            add("-dsp-plugins-on"_L1);
        if (m_in.prefetchDecode)
            add("-prefetch"_L1, onOff(true));
        if (m_in.vizMode & vizBit::spectrum)
            add("-spectrum"_L1, onOff(true));
        if (m_in.vizMode & vizBit::scope)
            add("-scope"_L1, onOff(true));
        if (m_in.startSec > 0.5 && std::isfinite(m_in.startSec))
            add("-start"_L1, QString::number(m_in.startSec, 'f', 3));
        if (m_in.effectsAudible) {
            add("-pcm"_L1);
            m_notices.append(
                {EngineArgsNotice::Kind::LogLine,
                 {},
                 translated(QT_TRANSLATE_NOOP(
                     "CommandLine",
                     "DSP 效果已启用 ⇒ 本曲解码为 PCM（DSD 直通与 DSP 互斥：效果只在 PCM 域起作用）。"
                     "要 DSD 直通，请把混响/音调/降噪/平衡/宽度全部关闭。"))});
        }
    }

    /// False refuses the start.
    bool addDevices()
    {
        const QString mode = orDefault(m_in.mode, "standard"_L1);
        if (mode == "standard"_L1) {
            if (!m_in.primaryDevice.isEmpty())
                add("-dev"_L1, m_in.primaryDevice);
            return true;
        }
        add("-mode"_L1, mode);
        const int needed = neededDevices(mode);
        QStringList ids;
        for (qsizetype i = 0; i < std::min<qsizetype>(needed, m_in.channelDevices.size()); ++i) {
            // An empty combo leaves no gap: later channels move up, and the warning below says so.
            if (!m_in.channelDevices[i].isEmpty())
                ids.append(m_in.channelDevices[i]);
        }
        if (ids.isEmpty()) {
            warn(translated(QT_TRANSLATE_NOOP("CommandLine", "未选择设备")),
                 translated(QT_TRANSLATE_NOOP("CommandLine",
                                              "差分/分频模式每个声道需要一台设备 —— 请先选择设备。")));
            return false;
        }
        if (ids.size() < needed)
            warnOfTooFew(mode, needed, ids.size());
        add("-devs"_L1, ids.join(u';'));
        if (mode == "crossover"_L1)
            add("-xo"_L1, QString::number(std::trunc(m_in.crossoverHz), 'f', 0));
        return true;
    }

    int neededDevices(const QString &mode) const
    {
        if (mode == "pairs"_L1)
            return (m_in.channelCount + 1) / 2;
        return mode == "crossover"_L1 && m_in.crossoverBridged ? m_in.channelCount * 2 : m_in.channelCount;
    }

    void warnOfTooFew(const QString &mode, int needed, qsizetype chosen)
    {
        const QString text =
            mode == "pairs"_L1
                ? translated(QT_TRANSLATE_NOOP(
                      "CommandLine",
                      "pairs 模式需要 %1 台设备（每对声道一台），目前只选了 %2 台；请补齐后再播放。"))
                : translated(QT_TRANSLATE_NOOP(
                      "CommandLine",
                      "该模式需要 %1 台设备（每个声道一台），目前只选了 %2 台；缺少的声道会使整个映射错位 —— "
                      "请补全列表后再播放。"));
        warn(translated(QT_TRANSLATE_NOOP("CommandLine", "设备数量不足")), text.arg(needed).arg(chosen));
    }

    void warn(const QString &title, const QString &text)
    {
        m_notices.append({EngineArgsNotice::Kind::WarningBox, title, text});
    }

    void addOutput()
    {
        if (!m_in.rigValue.isEmpty())
            add("-rig"_L1, m_in.rigValue);
        if (const QString dop = orDefault(m_in.dop, "auto"_L1); dop != "auto"_L1)
            add("-dop"_L1, dop);
        const QString path = orDefault(m_in.outputPath, "auto"_L1);
        if (path != "auto"_L1 && !m_in.exclusiveFallback)
            add("-output-path"_L1, path);
    }

    void addTreatment()
    {
        if (m_in.peakGuard)
            add("-peak-guard"_L1, onOff(true));
        addDenoise();
        if (m_in.resample) {
            add("-resample"_L1);
            add("-src-quality"_L1, orDefault(m_in.resampleQuality, "standard"_L1));
        }
        // A second -stream beside the source form of the same name; the engine takes it as the same switch.
        if (m_in.streamingRead)
            add("-stream"_L1);
        if (m_in.crossfadeSec > 0.01 && std::isfinite(m_in.crossfadeSec))
            add("-crossfade"_L1, QString::number(m_in.crossfadeSec, 'f', 1));
        add("-gapless"_L1, onOff(m_in.gapless));
        if (m_in.replayGainMode >= 1)
            add("-replaygain"_L1, m_in.replayGainMode == 1 ? u"track"_s : u"album"_s);
        if (std::abs(m_in.speedRatio - 1.) > 0.001 && std::isfinite(m_in.speedRatio)) {
            add("-speed"_L1, QString::number(m_in.speedRatio, 'f', 2));
            add("-pitch-lock"_L1, onOff(true));
        }
    }

    void addDenoise()
    {
        // The control line of a running session calls the highest tier "deep". Both words are the engine's.
        static constexpr QLatin1StringView tiers[] = {"off"_L1, "light"_L1, "standard"_L1, "strong"_L1};
        if (m_in.denoiseTier < 1)
            return;
        add("-denoise"_L1, QString(tiers[std::min(m_in.denoiseTier, 3)]));
        add("-keep-harmonics"_L1, onOff(m_in.keepHarmonics));
    }

    void addPcm()
    {
        // Beside the one that audible effects give this may be the second; the engine does not mind.
        if (m_in.forcedPcm)
            add("-pcm"_L1);
        if (const QString bits = orDefault(m_in.pcmBits, "24"_L1); bits != "24"_L1)
            add("-pcm-bits"_L1, bits);
        const QString filter = orDefault(m_in.pcmFilter, "standard"_L1);
        if (filter != "standard"_L1 || m_in.pcmFilterExplicit)
            add("-pcm-filter"_L1, filter);
        if (!m_in.pcmToDsd)
            return;
        add("-pcm2dsd"_L1);
        add("-pcm2dsd-target"_L1,
            QString::number(m_in.pcmToDsdTargetHz < 1 ? dsd64Hz : m_in.pcmToDsdTargetHz));
        if (m_in.pcmToDsdTaps >= leastTaps)
            add("-pcm2dsd-taps"_L1, QString::number(m_in.pcmToDsdTaps));
    }

    void addVolume()
    {
        if (m_in.volume != 100 || m_in.volumeTouched)
            add("-vol"_L1, QString::number(std::clamp(m_in.volume, 0, 100)));
        if (!m_in.extDecoder.isEmpty())
            add("-ext-decoder"_L1, m_in.extDecoder);
    }

    const EngineArgsInput &m_in;
    QStringList m_args;
    QList<EngineArgsNotice> m_notices;
};

} // namespace

EngineArgsResult buildEngineArgs(const EngineArgsInput &input)
{
    return Builder(input).build();
}

QStringList vizModeLines(int former, int wanted)
{
    QStringList lines;
    const auto add = [&](const QString &what, int bit) {
        if ((former ^ wanted) & bit)
            lines.append(what + u' ' + onOff(wanted & bit));
    };
    add(u"spectrum"_s, vizBit::spectrum);
    add(u"scope"_s, vizBit::scope);
    return lines;
}

QString printableCommand(const QString &program, const QStringList &args)
{
    QStringList words;
    for (const QString &word : QStringList{program} + args)
        words.append(word.contains(u' ') ? u'"' + word + u'"' : word);
    return words.join(u' ');
}
