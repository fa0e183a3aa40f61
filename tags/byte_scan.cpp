#include "tags/byte_scan.h"

namespace {

constexpr uint64_t blockBytes = 256;

/// Whether the pair stands somewhere among blockBytes + 1 bytes. Without branches, so that the compiler can
/// test sixteen places at once; audio data holds a single letter every few hundred bytes, a pair hardly ever.
bool holdsPair(const uint8_t *bytes, uint8_t first, uint8_t second)
{
    uint8_t found = 0;
    for (uint64_t i = 0; i < blockBytes; ++i)
        found = static_cast<uint8_t>(found | ((bytes[i] == first) & (bytes[i + 1] == second)));
    return found != 0;
}

} // namespace

std::optional<uint64_t> findWord(ByteView bytes, std::string_view word, uint64_t from)
{
    const auto first = static_cast<uint8_t>(word[0]);
    const auto second = static_cast<uint8_t>(word[1]);
    uint64_t at = from;
    while (bytes.has(at, blockBytes + 1)) {
        if (holdsPair(bytes.data() + at, first, second))
            for (uint64_t i = at; i < at + blockBytes; ++i)
                if (bytes.holds(word, i))
                    return i;
        at += blockBytes;
    }
    for (; bytes.has(at, word.size()); ++at)
        if (bytes.holds(word, at))
            return at;
    return std::nullopt;
}
