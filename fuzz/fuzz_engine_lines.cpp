// What an engine prints and logs: cut into lines and counted, in pieces of any size.
#include "engine/control_log_count.h"
#include "engine/line_cutter.h"

#include <QBuffer>
#include <QByteArray>
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

void cutIntoLines(std::string_view bytes, std::size_t chunk)
{
    LineCutter cutter;
    std::string together;
    for (std::size_t from = 0; from < bytes.size(); from += chunk) {
        cutter.append(bytes.substr(from, chunk));
        while (const auto line = cutter.next()) {
            require(line->find('\n') >= line->size() - 1 || line->size() > LineCutter::partialLimitBytes);
            together += *line;
        }
    }
    require(together + cutter.takePartial() == bytes);
}

qint64 countPlainly(std::string_view bytes)
{
    qint64 count = 0;
    while (!bytes.empty()) {
        const std::size_t end = std::min(bytes.find('\n'), bytes.size() - 1) + 1;
        count += bytes.substr(0, end).find("[ctl] recv") != std::string_view::npos;
        bytes.remove_prefix(end);
    }
    return count;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::string_view bytes(reinterpret_cast<const char *>(data) + 1, size - 1);
    cutIntoLines(bytes, std::size_t{data[0]} + 1);
    QByteArray text(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    require(countReceivedLines(buffer, text.size()) == countPlainly(bytes));
    return 0;
}
