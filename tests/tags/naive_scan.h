// The searches of the tag readers at their plainest, every place tried in turn: what the quick ones are held
// to.
#pragma once

#include "tags/ascii.h"
#include "tags/audio_file_info.h"
#include "tags/byte_view.h"

namespace tags_test {

inline std::optional<uint64_t> naiveFind(std::string_view text, std::string_view word, uint64_t from = 0)
{
    for (uint64_t at = from; at + word.size() <= text.size(); ++at)
        if (text.substr(at, word.size()) == word)
            return at;
    return std::nullopt;
}

inline std::optional<uint64_t> naiveFindLast(std::string_view text, std::string_view word, uint64_t from = 0)
{
    std::optional<uint64_t> last;
    for (uint64_t at = from; at + word.size() <= text.size(); ++at)
        if (text.substr(at, word.size()) == word)
            last = at;
    return last;
}

/// Key by key, each on a walk of its own over all the text.
inline void naiveBareText(std::string_view text, AudioFileInfo &info)
{
    const auto take = [text](std::string_view word, std::string &field) {
        for (size_t at = 0; at + word.size() <= text.size(); ++at) {
            size_t same = 0;
            while (same < word.size() && asciiUpper(text[at + same]) == word[same])
                ++same;
            if (same < word.size())
                continue;
            field.clear();
            for (size_t i = at + same; i < text.size() && text[i] && text[i] != '\n' && text[i] != '\r'; ++i)
                field += text[i];
            return;
        }
    };
    take("TITLE=", info.title);
    const std::pair<std::string_view, std::string *> others[] = {{"ARTIST=", &info.artist},
                                                                 {"ALBUM=", &info.album},
                                                                 {"GENRE=", &info.genre},
                                                                 {"DATE=", &info.date},
                                                                 {"COMMENT=", &info.comment}};
    for (const auto &[word, field] : others)
        if (field->empty())
            take(word, *field);
}

} // namespace tags_test
