#include "playback/no_audio_report.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype shownLineLength = 160;

bool showsOpenDevice(const QString &text)
{
    return text.contains("OPENED"_L1) || text.contains("shared mode"_L1) ||
           text.contains("WASAPI: buffer"_L1);
}

QString translated(const char *source)
{
    return QCoreApplication::translate("NoAudioReport", source);
}

} // namespace

NoAudioReport noAudioReport(const QString &lastEngineLine)
{
    const QString line = lastEngineLine.trimmed().right(shownLineLength);
    const QString shown =
        line.isEmpty() ? translated(QT_TRANSLATE_NOOP("NoAudioReport", "(没有任何输出)")) : line;
    NoAudioReport report;
    if (showsOpenDevice(line)) {
        report.text =
            translated(QT_TRANSLATE_NOOP("NoAudioReport", "起播 5 秒仍没有音频样本 —— 引擎最后一行: %1"))
                .arg(shown);
        report.isError = true;
    } else {
        report.text =
            translated(QT_TRANSLATE_NOOP("NoAudioReport",
                                         "起播 5 秒没有声音 —— **设备从未打开**（引擎日志里没有 OPENED）："
                                         "多半是独占被拒、格式不支持，或被别的程序占用；看上面的 WASAPI 行；"
                                         "引擎最后一行: %1"))
                .arg(shown);
    }
    report.checkList = translated(QT_TRANSLATE_NOOP(
        "NoAudioReport", "  按顺序查: (1) 上面那行停在哪一步 —— 解码 / 设备 / 独占；"
                         "(2) 用命令行播同一个文件；(3) 在日志里找 WASAPI / OPENED / 0x8889000A。"
                         "会话不会自动重建。"));
    return report;
}
