#include "tags/byte_scan.h"

namespace {

// Twice as many places at once where the processor can; the program picks at its start, for which sanitizers
// are not yet awake.
#if defined(__x86_64__) && defined(__GLIBC__) && defined(__GNUC__) && !defined(__clang__) &&                 \
    !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define KELP_WIDE_CLONES [[gnu::target_clones("avx2", "default")]]
#else
#define KELP_WIDE_CLONES
#endif

/// How many places in front of the first block that holds the pair. Tests a block without branches and with
/// masks of whole bytes, which is the form that compilers turn into tests of sixteen places at once.
template<bool masked>
[[gnu::always_inline]] inline uint64_t blocksWithout(const uint8_t *bytes, uint64_t places, BytePair pair)
{
    for (uint64_t at = 0;; at += pairBlockPlaces) {
        if (places - at < pairBlockPlaces)
            return at;
        const uint8_t *const block = bytes + at;
        uint8_t found = 0;
        for (uint64_t i = 0; i < pairBlockPlaces; ++i) {
            const auto first = static_cast<uint8_t>(masked ? block[i] & pair.firstMask : block[i]);
            const uint8_t firstFits = first == pair.first ? 0xFF : 0;
            const uint8_t secondFits = block[i + 1] == pair.second ? 0xFF : 0;
            found = static_cast<uint8_t>(found | (firstFits & secondFits));
        }
        if (found != 0)
            return at;
    }
}

KELP_WIDE_CLONES uint64_t blocksWithoutExact(const uint8_t *bytes, uint64_t places, BytePair pair)
{
    return blocksWithout<false>(bytes, places, pair);
}

KELP_WIDE_CLONES uint64_t blocksWithoutMasked(const uint8_t *bytes, uint64_t places, BytePair pair)
{
    return blocksWithout<true>(bytes, places, pair);
}

template<typename Accept>
std::optional<uint64_t> findEachWord(ByteView bytes, std::string_view word, uint64_t from, Accept accept)
{
    const BytePair pair{0xFF, static_cast<uint8_t>(word[0]), static_cast<uint8_t>(word[1])};
    return findPair(bytes, from, pair,
                    [&](uint64_t place) { return bytes.holds(word, place) && accept(place); });
}

} // namespace

uint64_t placesWithoutPair(const uint8_t *bytes, uint64_t places, BytePair pair)
{
    return pair.firstMask == 0xFF ? blocksWithoutExact(bytes, places, pair)
                                  : blocksWithoutMasked(bytes, places, pair);
}

std::optional<uint64_t> findWord(ByteView bytes, std::string_view word, uint64_t from)
{
    return findEachWord(bytes, word, from, [](uint64_t) { return true; });
}

std::optional<uint64_t> findLastWord(ByteView bytes, std::string_view word, uint64_t from)
{
    std::optional<uint64_t> last;
    (void)findEachWord(bytes, word, from, [&last](uint64_t place) {
        last = place;
        return false;
    });
    return last;
}
