#include "net/remote_token.h"

std::string remoteTokenText(std::uint32_t random)
{
    static constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (int shift = 28; shift >= 0; shift -= 4)
        text += digits[(random >> shift) & 0xf];
    return text;
}

bool remoteTokenMatches(std::string_view expected, std::string_view given)
{
    if (expected.empty() || given.size() != expected.size())
        return false;
    // Volatile keeps the compiler from leaving the loop at the first difference.
    volatile unsigned char difference = 0;
    for (std::size_t i = 0; i < expected.size(); ++i)
        difference = static_cast<unsigned char>(difference | (expected[i] ^ given[i]));
    return difference == 0;
}
