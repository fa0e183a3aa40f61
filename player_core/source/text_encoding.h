#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kelp_core {

/// Text turned to UTF-8, and what it was taken for.
struct DecodedText
{
    std::string text;
    const char *encoding = "UTF-8"; ///< as iconv calls it
};

/// Turns the text of an old file to UTF-8. A byte order mark decides; then valid UTF-8 is UTF-8, text full of
/// zero bytes UTF-16, and the rest is guessed between Windows-1252, GB18030, Big5, Shift-JIS and EUC-KR by
/// how usual its characters would be in each. A guess may be wrong for a few words; it never fails.
DecodedText decodeText(std::string_view bytes);

/// Turns bytes of a named encoding to UTF-8; nothing when they are not valid in it.
std::optional<std::string> convertToUtf8(std::string_view bytes, const char *encoding);

/// Whether bytes are well-formed UTF-8.
bool isUtf8(std::string_view bytes);

} // namespace kelp_core
