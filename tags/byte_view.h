/// \file
/// Bytes from outside, read so that nothing can run over their end.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// A view of bytes that live elsewhere. Every offset and length may be any number: what lies outside reads as
/// zero, slices are cut at the end, and has() tells before.
class ByteView
{
public:
    ByteView() = default;
    ByteView(std::span<const uint8_t> bytes)
        : m_data(bytes.data())
        , m_size(bytes.size())
    {
    }

    uint64_t size() const { return m_size; }
    bool empty() const { return m_size == 0; }
    const uint8_t *data() const { return m_data; }
    /// Whether count bytes from offset on are inside.
    bool has(uint64_t offset, uint64_t count) const { return offset <= m_size && count <= m_size - offset; }

    uint8_t at(uint64_t offset) const { return offset < m_size ? m_data[offset] : uint8_t(0); }
    uint16_t little16(uint64_t offset) const { return static_cast<uint16_t>(little<2>(offset)); }
    uint32_t little32(uint64_t offset) const { return static_cast<uint32_t>(little<4>(offset)); }
    uint64_t little64(uint64_t offset) const { return little<8>(offset); }
    uint16_t big16(uint64_t offset) const { return static_cast<uint16_t>(big<2>(offset)); }
    uint32_t big24(uint64_t offset) const { return static_cast<uint32_t>(big<3>(offset)); }
    uint32_t big32(uint64_t offset) const { return static_cast<uint32_t>(big<4>(offset)); }
    uint64_t big64(uint64_t offset) const { return big<8>(offset); }
    /// 28 bits in the low seven of four bytes, highest first (ID3v2). The top bits are ignored.
    uint32_t syncSafe28(uint64_t offset) const
    {
        return uint32_t(at(offset) & 0x7FU) << 21U | uint32_t(at(offset + 1) & 0x7FU) << 14U |
               uint32_t(at(offset + 2) & 0x7FU) << 7U | uint32_t(at(offset + 3) & 0x7FU);
    }

    /// At most count bytes from offset on.
    ByteView slice(uint64_t offset, uint64_t count = UINT64_MAX) const
    {
        const uint64_t begin = std::min(offset, m_size);
        return ByteView({m_data + begin, static_cast<size_t>(std::min(count, m_size - begin))});
    }
    std::string_view text() const
    {
        return {reinterpret_cast<const char *>(m_data), static_cast<size_t>(m_size)};
    }
    std::string_view text(uint64_t offset, uint64_t count) const { return slice(offset, count).text(); }
    /// Whether the word stands at the offset, whole.
    bool holds(std::string_view word, uint64_t offset = 0) const
    {
        return has(offset, word.size()) && std::memcmp(m_data + offset, word.data(), word.size()) == 0;
    }

private:
    template<int count>
    uint64_t little(uint64_t offset) const
    {
        uint64_t value = 0;
        if (has(offset, count))
            for (int i = count - 1; i >= 0; --i)
                value = value << 8U | m_data[offset + static_cast<uint64_t>(i)];
        return value;
    }
    template<int count>
    uint64_t big(uint64_t offset) const
    {
        uint64_t value = 0;
        if (has(offset, count))
            for (uint64_t i = 0; i < count; ++i)
                value = value << 8U | m_data[offset + i];
        return value;
    }

    const uint8_t *m_data = nullptr;
    uint64_t m_size = 0;
};

/// The text up to its first NUL.
inline std::string_view upToNul(std::string_view text)
{
    return text.substr(0, text.find('\0'));
}
