/// \file
/// The words by which a painted widget tells a screen reader what it shows.
#pragma once

#include <QString>

/// Asked only when someone listens: nothing is said aloud by itself. A widget that inherits this needs no
/// more than an accessible name.
class SpokenValue
{
public:
    virtual ~SpokenValue() = default;
    /// A phrase in the interface's language; empty when nothing is shown.
    virtual QString spokenValue() const = 0;

    /// Makes the accessibility layer ask. Once a program, before the first such widget is shown.
    static void install();
};
