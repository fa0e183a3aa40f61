#include "engine/control_log_count.h"

#include <QByteArrayMatcher>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 chunkBytes = 65536;
/// A log beyond this is no account any more; the check must not hold up the end of the program.
constexpr qint64 logLimitBytes = qint64{256} * 1024 * 1024;

/// Finds the mark across the borders of pieces, once a line.
class MarkCounter
{
public:
    void feed(QByteArrayView piece)
    {
        m_window.append(piece);
        qsizetype from = 0;
        for (;;) {
            const qsizetype lineEnd = m_window.indexOf('\n', from);
            const QByteArrayView line =
                QByteArrayView(m_window).sliced(from, (lineEnd < 0 ? m_window.size() : lineEnd) - from);
            if (!m_foundInLine && m_mark.indexIn(line.data(), line.size()) >= 0) {
                m_foundInLine = true;
                ++m_lines;
            }
            if (lineEnd < 0)
                break;
            m_foundInLine = false;
            from = lineEnd + 1;
        }
        // Of an unfinished line only as much is kept as may be the beginning of the mark.
        m_window = m_window.sliced(std::max(from, m_window.size() - (m_mark.pattern().size() - 1)));
    }
    qint64 lines() const { return m_lines; }

private:
    const QByteArrayMatcher m_mark{"[ctl] recv"_ba};
    QByteArray m_window;
    bool m_foundInLine = false;
    qint64 m_lines = 0;
};

} // namespace

qint64 countReceivedLines(QIODevice &log, qint64 limitBytes)
{
    MarkCounter counter;
    for (qint64 left = limitBytes; left > 0;) {
        const QByteArray piece = log.read(std::min(left, chunkBytes));
        if (piece.isEmpty())
            break;
        counter.feed(piece);
        left -= piece.size();
    }
    return counter.lines();
}

std::optional<qint64> ControlLogCounter::countNewIn(const QString &path)
{
    QFile log(path);
    if (!log.open(QIODevice::ReadOnly))
        return std::nullopt;
    qint64 &counted = m_countedBytes[path];
    if (log.size() < counted)
        counted = 0;
    if (!log.seek(counted))
        return std::nullopt;
    const qint64 lines = countReceivedLines(log, logLimitBytes);
    counted = log.pos();
    return lines;
}

std::optional<qint64> ControlLogCounter::countNew(const QString &logPath, const QString &logDir)
{
    if (!logPath.isEmpty())
        return countNewIn(logPath);
    if (logDir.isEmpty())
        return std::nullopt;
    std::optional<qint64> sum;
    const QFileInfoList files = QDir(logDir).entryInfoList(QDir::Files | QDir::Hidden, QDir::Name);
    for (const QFileInfo &file : files) {
        if (const auto lines = countNewIn(file.absoluteFilePath()))
            sum = sum.value_or(0) + *lines;
    }
    return sum;
}
