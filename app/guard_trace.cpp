#include "app/guard_trace.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <cstdarg>
#include <cstdio>

namespace {

constexpr int longestLine = 1024;

} // namespace

void guardTrace(const char *format, ...)
{
    const QByteArray path = qgetenv("KELP_GUARD_TRACE");
    if (path.isEmpty())
        return;
    char line[longestLine];
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);
    QFile file(QFile::decodeName(path));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
        return;
    file.write(line);
    file.write("\n");
}
