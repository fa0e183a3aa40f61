/// \file
/// Finding a few bytes in tens of thousands that mostly do not hold them.
#pragma once

#include "tags/byte_view.h"

/// Two bytes in a row, the first known by some of its bits.
struct BytePair
{
    uint8_t firstMask = 0xFF;
    uint8_t first = 0; ///< where a bit of the mask is 0, so is this one's
    uint8_t second = 0;

    /// Whether it stands in the two bytes from here on.
    bool standsAt(const uint8_t *bytes) const
    {
        return (bytes[0] & firstMask) == first && bytes[1] == second;
    }
};

/// How many places are tested at once. Audio data holds any single byte in every block and a pair in hardly
/// any, so that most need no second look.
inline constexpr uint64_t pairBlockPlaces = 512;

/// How many places from the first on are known not to hold the pair: a number of whole blocks.
/// \param bytes one more than places
[[nodiscard]] uint64_t placesWithoutPair(const uint8_t *bytes, uint64_t places, BytePair pair);

/// Offers every place at or behind from where the pair stands, in order, until accept(place) is true.
/// \return the place accepted
template<typename Accept>
std::optional<uint64_t> findPair(ByteView bytes, uint64_t from, BytePair pair, Accept accept)
{
    const uint8_t *const data = bytes.data();
    for (uint64_t at = from; bytes.has(at, 2);) {
        at += placesWithoutPair(data + at, bytes.size() - at - 1, pair);
        const uint64_t end = at + std::min(pairBlockPlaces, bytes.size() - at - 1);
        while (at < end) {
            const void *second = std::memchr(data + at + 1, pair.second, static_cast<size_t>(end - at));
            if (!second) {
                at = end;
                break;
            }
            const auto place = static_cast<uint64_t>(static_cast<const uint8_t *>(second) - data) - 1;
            if (pair.standsAt(data + place) && accept(place))
                return place;
            at = place + 1;
        }
    }
    return std::nullopt;
}

/// Where the word, of two characters at least, stands for the first time at or behind from.
[[nodiscard]] std::optional<uint64_t> findWord(ByteView bytes, std::string_view word, uint64_t from = 0);

/// Where it stands for the last time, at or behind from.
[[nodiscard]] std::optional<uint64_t> findLastWord(ByteView bytes, std::string_view word, uint64_t from = 0);
