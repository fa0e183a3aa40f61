#include "player_core/source/cue_sheet.h"

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

bool isBlank(char letter)
{
    return letter == ' ' || letter == '\t';
}

std::string upper(std::string_view word)
{
    std::string out(word);
    for (char &letter : out)
        letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    return out;
}

/// A line that is taken apart from the left.
class Line
{
public:
    explicit Line(std::string_view text)
        : left_(text)
    {
        skipBlanks();
    }

    /// The next word, or what stands in quotes; "" at the end.
    std::string_view word()
    {
        if (left_.empty())
            return {};
        if (left_[0] == '"')
            return quoted(left_.find('"', 1));
        size_t size = 0;
        while (size < left_.size() && !isBlank(left_[size]))
            ++size;
        return take(size);
    }

    /// All that is left as one text. The closing quote is the last one, since titles hold quotes.
    std::string_view rest()
    {
        if (!left_.empty() && left_[0] == '"')
            return quoted(left_.rfind('"'));
        std::string_view text = left_;
        while (!text.empty() && isBlank(text.back()))
            text.remove_suffix(1);
        left_ = {};
        return text;
    }

    /// A file's name and, behind it, its type: the name may hold blanks, quoted or not.
    std::pair<std::string_view, std::string_view> nameAndType()
    {
        if (!left_.empty() && left_[0] == '"') {
            const std::string_view name = quoted(left_.rfind('"'));
            return {name, word()};
        }
        std::string_view text = rest();
        const size_t blank = text.find_last_of(" \t");
        if (blank == std::string_view::npos)
            return {text, {}};
        const std::string_view type = text.substr(blank + 1);
        text = text.substr(0, blank);
        while (!text.empty() && isBlank(text.back()))
            text.remove_suffix(1);
        return {text, type};
    }

private:
    std::string_view take(size_t size)
    {
        const std::string_view text = left_.substr(0, size);
        left_.remove_prefix(std::min(size, left_.size()));
        skipBlanks();
        return text;
    }
    std::string_view quoted(size_t end)
    {
        left_.remove_prefix(1);
        // A quote that is never closed ends with the line.
        const size_t size = end == std::string_view::npos || end == 0 ? left_.size() : end - 1;
        const std::string_view text = take(std::min(size, left_.size()));
        if (!left_.empty() && left_[0] == '"') {
            left_.remove_prefix(1);
            skipBlanks();
        }
        return text;
    }
    void skipBlanks()
    {
        while (!left_.empty() && isBlank(left_[0]))
            left_.remove_prefix(1);
    }

    std::string_view left_;
};

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
        Line words(content);
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
        void (Parser::*run)(Line &);
    };

    CueTrack *track() { return sheet.tracks.empty() || dropped_ ? nullptr : &sheet.tracks.back(); }

    void title(Line &words) { (track() ? track()->title : ignoredOr(sheet.title)) = text(words.rest()); }
    void performer(Line &words)
    {
        (track() ? track()->performer : ignoredOr(sheet.performer)) = text(words.rest());
    }
    void catalog(Line &words) { sheet.catalog = text(words.word()); }
    void isrc(Line &words)
    {
        if (track())
            track()->isrc = text(words.word());
    }
    void flags(Line &words)
    {
        if (track())
            track()->flags = upper(text(words.rest()));
    }
    void file(Line &words)
    {
        const auto [name, type] = words.nameAndType();
        if (sheet.files.size() < maxFiles)
            sheet.files.push_back({text(name), text(name), upper(text(type))});
    }
    void newTrack(Line &words)
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
    void index(Line &words)
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
    void pregap(Line &words)
    {
        if (const auto time = cueTime(words.word()); time && track())
            track()->pregapFrames = *time;
    }
    void postgap(Line &words)
    {
        if (const auto time = cueTime(words.word()); time && track())
            track()->postgapFrames = *time;
    }

    /// Words of a track that was dropped must not become the album's.
    std::string &ignoredOr(std::string &album)
    {
        return dropped_ || !sheet.tracks.empty() ? ignored_ : album;
    }

    static constexpr std::array<Command, 10> makeCommands()
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
                 {"CATALOG", &Parser::catalog}}};
    }
    static const std::array<Command, 10> commands;

    bool dropped_ = false;
    std::string ignored_;
};

const std::array<Parser::Command, 10> Parser::commands = Parser::makeCommands();

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
