#include "player_core/source/cue_sheet.h"

#include "player_core/source/cue_line.h"
#include "player_core/source/gain_tag_text.h"
#include "player_core/source/text_encoding.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace kelp_core {
namespace {

constexpr size_t maxFiles = 1000;
constexpr size_t maxTracks = 1000;
constexpr size_t maxTextBytes = 4096;
constexpr int maxMinutes = 100000;

std::string upper(std::string_view word)
{
    std::string out(word);
    for (char &letter : out)
        letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    return out;
}

std::optional<int> number(std::string_view word, int highest)
{
    if (word.empty() || word.size() > 9)
        return {};
    int value = 0;
    for (const char digit : word) {
        if (digit < '0' || digit > '9')
            return {};
        value = value * 10 + (digit - '0');
    }
    return value <= highest ? std::optional(value) : std::nullopt;
}

/// mm:ss:ff
std::optional<int64_t> cueTime(std::string_view word)
{
    const size_t first = word.find(':');
    const size_t second = first == std::string_view::npos ? first : word.find(':', first + 1);
    if (second == std::string_view::npos)
        return {};
    const auto minutes = number(word.substr(0, first), maxMinutes);
    const auto seconds = number(word.substr(first + 1, second - first - 1), 59);
    const auto frames = number(word.substr(second + 1), cueFramesPerSecond - 1);
    if (!minutes || !seconds || !frames)
        return {};
    return (int64_t{*minutes} * 60 + *seconds) * cueFramesPerSecond + *frames;
}

std::string text(std::string_view value)
{
    return std::string(value.substr(0, maxTextBytes));
}

class Parser
{
public:
    CueSheet sheet;

    void line(std::string_view content)
    {
        CueLine words(content);
        const std::string command = upper(words.word());
        const auto found = std::find_if(commands.begin(), commands.end(),
                                        [&](const Command &entry) { return command == entry.word; });
        if (found != commands.end())
            (this->*found->run)(words);
    }

private:
    struct Command
    {
        std::string_view word;
        void (Parser::*run)(CueLine &);
    };

    CueTrack *track() { return sheet.tracks.empty() || dropped_ ? nullptr : &sheet.tracks.back(); }

    void title(CueLine &words) { (track() ? track()->title : ignoredOr(sheet.title)) = text(words.rest()); }
    void performer(CueLine &words)
    {
        (track() ? track()->performer : ignoredOr(sheet.performer)) = text(words.rest());
    }
    void catalog(CueLine &words) { sheet.catalog = text(words.word()); }
    void isrc(CueLine &words)
    {
        if (track())
            track()->isrc = text(words.word());
    }
    void flags(CueLine &words)
    {
        if (track())
            track()->flags = upper(text(words.rest()));
    }
    void file(CueLine &words)
    {
        const auto [name, type] = words.nameAndType();
        if (sheet.files.size() < maxFiles)
            sheet.files.push_back({text(name), text(name), upper(text(type))});
    }
    void newTrack(CueLine &words)
    {
        const auto value = number(words.word(), 9999);
        dropped_ = !value || sheet.files.empty() || sheet.tracks.size() >= maxTracks;
        if (dropped_)
            return;
        CueTrack next;
        next.number = *value;
        next.mode = upper(text(words.word()));
        next.file = sheet.files.size() - 1;
        sheet.tracks.push_back(next);
    }
    void index(CueLine &words)
    {
        const auto value = number(words.word(), 99);
        const auto time = cueTime(words.word());
        if (!track() || !value || !time)
            return;
        if (*value == 0) {
            track()->pregapStartFrames = time;
        } else if (*value == 1) {
            track()->startFrames = time;
            track()->file = sheet.files.size() - 1;
        }
    }
    void remark(CueLine &words)
    {
        const std::string key = text(words.word());
        GainTags &gains = track() ? track()->gains : sheet.gains;
        takeGainTag(key, words.word(), dropped_ ? ignoredGains_ : gains);
    }
    void pregap(CueLine &words)
    {
        if (const auto time = cueTime(words.word()); time && track())
            track()->pregapFrames = *time;
    }
    void postgap(CueLine &words)
    {
        if (const auto time = cueTime(words.word()); time && track())
            track()->postgapFrames = *time;
    }

    /// Words of a track that was dropped must not become the album's.
    std::string &ignoredOr(std::string &album)
    {
        return dropped_ || !sheet.tracks.empty() ? ignored_ : album;
    }

    static constexpr std::array<Command, 11> makeCommands()
    {
        return {{{"TITLE", &Parser::title},
                 {"PERFORMER", &Parser::performer},
                 {"FILE", &Parser::file},
                 {"TRACK", &Parser::newTrack},
                 {"INDEX", &Parser::index},
                 {"PREGAP", &Parser::pregap},
                 {"POSTGAP", &Parser::postgap},
                 {"FLAGS", &Parser::flags},
                 {"ISRC", &Parser::isrc},
                 {"CATALOG", &Parser::catalog},
                 {"REM", &Parser::remark}}};
    }
    static const std::array<Command, 11> commands;

    bool dropped_ = false;
    std::string ignored_;
    GainTags ignoredGains_;
};

const std::array<Parser::Command, 11> Parser::commands = Parser::makeCommands();

CueSheet parseLines(std::string_view content)
{
    Parser parser;
    while (!content.empty()) {
        const size_t end = std::min(content.find_first_of(std::string_view("\r\n\0", 3)), content.size());
        parser.line(content.substr(0, end));
        content.remove_prefix(std::min(end + 1, content.size()));
    }
    return parser.sheet;
}

} // namespace

std::optional<CueSheet> parseCueSheet(std::string_view bytes)
{
    bytes = bytes.substr(0, maxCueBytes);
    const DecodedText decoded = decodeText(bytes);
    CueSheet sheet = parseLines(decoded.text);
    sheet.encoding = decoded.encoding;
    if (decoded.text != bytes) {
        // The same lines as bytes, for the names; both parses see the same commands.
        const CueSheet raw = parseLines(bytes);
        for (size_t i = 0; i < sheet.files.size() && raw.files.size() == sheet.files.size(); ++i)
            sheet.files[i].rawName = raw.files[i].name;
    }
    for (CueTrack &track : sheet.tracks) {
        if (!track.startFrames)
            track.startFrames = track.pregapStartFrames;
    }
    std::erase_if(sheet.tracks, [](const CueTrack &track) { return !track.startFrames; });
    if (sheet.tracks.empty())
        return {};
    return sheet;
}

std::vector<CueSpan> cueSpans(const CueSheet &sheet)
{
    std::vector<CueSpan> spans;
    for (size_t i = 0; i < sheet.tracks.size(); ++i) {
        const CueTrack &track = sheet.tracks[i];
        if (!track.isAudio())
            continue;
        CueSpan span;
        span.number = track.number;
        span.title = track.title;
        span.performer = track.performer.empty() ? sheet.performer : track.performer;
        span.file = track.file;
        span.startFrames = *track.startFrames;
        // A sheet whose times run backwards cannot say where the track ends; the file does.
        if (i + 1 < sheet.tracks.size() && sheet.tracks[i + 1].file == track.file &&
            *sheet.tracks[i + 1].startFrames > span.startFrames)
            span.endFrames = *sheet.tracks[i + 1].startFrames;
        spans.push_back(span);
    }
    return spans;
}

int64_t cueTimeToFrames(int64_t cueFrames, int64_t framesPerSecond)
{
    return (2 * cueFrames * framesPerSecond + cueFramesPerSecond) / (2 * cueFramesPerSecond);
}

} // namespace kelp_core
