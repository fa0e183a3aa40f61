#include "engine/line_words.h"

#include <cmath>

namespace {

bool isGap(QChar c)
{
    return c == u' ' || c == u'\r' || c == u'\n';
}

} // namespace

LineWords wordsOf(QStringView text, qsizetype most)
{
    LineWords words;
    qsizetype at = 0;
    while (words.size() < most) {
        while (at < text.size() && isGap(text[at]))
            ++at;
        if (at == text.size())
            break;
        const qsizetype begin = at;
        while (at < text.size() && !isGap(text[at]))
            ++at;
        words.append(text.sliced(begin, at - begin));
    }
    return words;
}

std::optional<double> finiteNumber(QStringView word)
{
    bool ok = false;
    const double value = word.toDouble(&ok);
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<int> wholeNumber(QStringView word)
{
    bool ok = false;
    const int value = word.toInt(&ok);
    return ok ? std::optional(value) : std::nullopt;
}

std::optional<int> leadingDigits(QStringView text)
{
    qsizetype length = 0;
    while (length < text.size() && text[length] >= u'0' && text[length] <= u'9')
        ++length;
    return wholeNumber(text.first(length));
}
