#include "playback/verify_lines.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto prefix = "verify: "_L1;
constexpr auto verdictWord = "verdict "_L1;
constexpr auto okMark = " ok -- "_L1;
constexpr auto failMark = " FAIL -- "_L1;
constexpr auto sectionMark = " | "_L1;
constexpr auto notKnownWords = "not known"_L1;

VerifyVerdict verdictOf(QStringView rest)
{
    const qsizetype end = rest.indexOf(sectionMark);
    return {rest.toString(), (end < 0 ? rest : rest.first(end)).toString(), rest.contains("BITPERFECT=1"_L1)};
}

VerifyItem itemOf(QStringView rest)
{
    const qsizetype ok = rest.indexOf(okMark);
    const bool passed = ok >= 0;
    const QLatin1StringView mark = passed ? okMark : failMark;
    const qsizetype at = passed ? ok : rest.indexOf(mark);
    if (at < 0)
        return {rest.trimmed().toString(), {}, false};
    return {rest.first(at).trimmed().toString(), rest.sliced(at + mark.size()).trimmed().toString(), passed};
}

} // namespace

bool VerifyItem::notKnown() const
{
    return !passed && explanation.startsWith(notKnownWords);
}

QString VerifyVerdict::reason() const
{
    return line.mid(firstSection.size() + sectionMark.size()).trimmed();
}

std::optional<VerifyLine> parseVerifyLine(QStringView text)
{
    if (!text.startsWith(prefix))
        return std::nullopt;
    const QStringView rest = text.sliced(prefix.size());
    VerifyLine line;
    if (rest.startsWith(verdictWord))
        line.verdict = verdictOf(rest.sliced(verdictWord.size()));
    else
        line.item = itemOf(rest);
    return line;
}
