#include "tags/lazy_bytes.h"

#include "platform/file_reader.h"
#include "tags/byte_scan.h"

LazyBytes::LazyBytes(ByteView bytes)
    : m_size(bytes.size())
    , m_loaded(bytes)
{
}

LazyBytes::LazyBytes(const FileReader &file, uint64_t offset, std::span<uint8_t> buffer, uint64_t firstBytes)
    : m_file(&file)
    , m_offset(offset)
    , m_size(buffer.size())
    , m_firstBytes(firstBytes)
    , m_buffer(buffer)
{
}

void LazyBytes::load(uint64_t count)
{
    const uint64_t have = m_loaded.size();
    // Doubling keeps the calls few when a parser walks on in small steps.
    const uint64_t rounded = (count + pageBytes - 1) / pageBytes * pageBytes;
    const uint64_t wanted = std::min(std::max(rounded, 2 * have), m_size);
    const std::span<uint8_t> missing =
        m_buffer.subspan(static_cast<size_t>(have), static_cast<size_t>(wanted - have));
    const size_t got = m_file->readAt(m_offset + have, missing);
    if (got < missing.size())
        m_size = have + got;
    m_loaded = ByteView(m_buffer.first(static_cast<size_t>(have) + got));
}

std::optional<uint64_t> LazyBytes::find(std::string_view word)
{
    uint64_t from = 0;
    for (uint64_t reach = std::min(std::max(m_firstBytes, m_loaded.size()), m_size);;) {
        const ByteView bytes = first(reach);
        if (const std::optional<uint64_t> hit = findWord(bytes, word, from))
            return hit;
        if (bytes.size() >= m_size)
            return std::nullopt;
        // A word across the border of two readings begins before it.
        from = bytes.size() >= word.size() ? bytes.size() - word.size() + 1 : 0;
        reach = m_size;
    }
}
