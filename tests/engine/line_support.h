/// \file
/// What the tests of the engine's lines share: an engine that speaks, and what its lines set going.
#pragma once

#include "engine/line_classifier.h"

#include <QStringList>
#include <variant>
#include <vector>

namespace line_support {

/// An engine whose lines are read one after the other.
struct Engine
{
    EngineLineState state;
    LineContext context;

    LineEffects say(const QString &line, bool isStderr = false)
    {
        return classify(line, isStderr, state, context).effects;
    }
};

template<typename Effect>
std::vector<Effect> all(const LineEffects &effects)
{
    std::vector<Effect> found;
    for (const LineEffect &effect : effects) {
        if (const auto *one = std::get_if<Effect>(&effect))
            found.push_back(*one);
    }
    return found;
}

template<typename Effect>
bool has(const LineEffects &effects)
{
    return !all<Effect>(effects).empty();
}

/// Texts of the log lines, errors marked by a leading "!".
inline QStringList logged(const LineEffects &effects)
{
    QStringList lines;
    for (const line_effect::LogLine &line : all<line_effect::LogLine>(effects))
        lines.append(line.isError ? u'!' + line.text : line.text);
    return lines;
}

} // namespace line_support
