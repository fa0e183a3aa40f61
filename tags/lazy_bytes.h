/// \file
/// A part of a file whose bytes are read as far as a parser asks for them.
#pragma once

#include "tags/byte_view.h"

class FileReader;

/// A range of a file, or bytes in memory, seen from its first byte. Most heads say all in their first page,
/// so the rest is never read. Behind a fault of the file the range ends.
class LazyBytes
{
public:
    /// Bytes that are there already and outlive this.
    explicit LazyBytes(ByteView bytes);
    /// A range within the file, from offset on and as long as the buffer. Both outlive this.
    /// \param firstBytes what a search reads before it reads the rest
    LazyBytes(const FileReader &file, uint64_t offset, std::span<uint8_t> buffer,
              uint64_t firstBytes = pageBytes);

    uint64_t size() const { return m_size; }
    /// The first count bytes, or all if there are fewer. Views handed out stay valid.
    ByteView first(uint64_t count)
    {
        if (count > m_loaded.size() && m_loaded.size() < m_size)
            load(count);
        return m_loaded.slice(0, count);
    }
    ByteView all() { return first(m_size); }
    /// What has been read so far.
    ByteView loaded() const { return m_loaded; }
    /// Bytes from offset on; what lies before them is read too.
    ByteView slice(uint64_t offset, uint64_t count)
    {
        return offset >= m_size ? ByteView() : first(offset + std::min(count, m_size - offset)).slice(offset);
    }
    /// Whether count bytes from offset on are inside.
    bool has(uint64_t offset, uint64_t count) const { return offset <= m_size && count <= m_size - offset; }
    /// Where the word, of two characters at least, stands for the first time.
    std::optional<uint64_t> find(std::string_view word);

private:
    /// What is read at first and what every further reading is rounded up to.
    static constexpr uint64_t pageBytes = 4096;

    void load(uint64_t count);

    const FileReader *m_file = nullptr;
    uint64_t m_offset = 0;
    uint64_t m_size = 0;
    uint64_t m_firstBytes = pageBytes;
    std::span<uint8_t> m_buffer;
    ByteView m_loaded;
};
