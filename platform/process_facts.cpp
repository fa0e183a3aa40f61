#include "platform/process_facts.h"

#include <QByteArray>
#include <QFile>
#include <QList>

#include <ctime>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// Counted from the state letter behind the program's name, which is field 3 of proc(5).
constexpr qsizetype startTimeField = 22 - 3;

} // namespace

std::optional<qint64> processAgeMs()
{
    QFile file(u"/proc/self/stat"_s);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray text = file.readAll();
    // The name stands in parentheses and may hold blanks and parentheses itself: fields are counted from
    // behind the last one.
    const qsizetype nameEnd = text.lastIndexOf(')');
    const QList<QByteArray> fields = text.mid(nameEnd + 2).split(' ');
    if (nameEnd < 0 || fields.size() <= startTimeField)
        return std::nullopt;
    bool ok = false;
    const qint64 startTicks = fields.at(startTimeField).toLongLong(&ok);
    const long ticksPerSec = sysconf(_SC_CLK_TCK);
    timespec now = {};
    if (!ok || ticksPerSec <= 0 || clock_gettime(CLOCK_BOOTTIME, &now) != 0)
        return std::nullopt;
    const qint64 nowMs = static_cast<qint64>(now.tv_sec) * 1000 + now.tv_nsec / 1000000;
    return nowMs - startTicks * 1000 / ticksPerSec;
}

std::optional<qint64> residentBytes()
{
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QList<QByteArray> fields = file.readAll().split(' ');
    if (fields.size() < 2)
        return std::nullopt;
    bool ok = false;
    const qint64 pages = fields.at(1).toLongLong(&ok);
    const long pageBytes = sysconf(_SC_PAGESIZE);
    if (!ok || pageBytes <= 0)
        return std::nullopt;
    return pages * pageBytes;
}
