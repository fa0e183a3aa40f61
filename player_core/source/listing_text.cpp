#include "player_core/source/listing_text.h"

#include <cstdio>

namespace kelp_core {

std::string listingField(const std::string &text)
{
    std::string out = text;
    for (char &letter : out) {
        if (letter == '\t' || letter == '\n' || letter == '\r')
            letter = ' ';
    }
    return out;
}

std::string listingSeconds(int64_t microseconds)
{
    char text[40];
    std::snprintf(text, sizeof text, "%lld.%06lld", static_cast<long long>(microseconds / 1000000),
                  static_cast<long long>(microseconds % 1000000));
    return text;
}

} // namespace kelp_core
