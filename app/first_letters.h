/// \file
/// The first letters of each kind of type, beside the start.
#pragma once

#include <future>

namespace startup {

/// Has the toolkit list the system's fonts and draw a letter of each kind of type, beside the start: for
/// the first letter of a kind it looks for what stands in where a family lacks one. Whoever needs a font
/// meanwhile waits for the list. Made when the application object stands.
class FirstLetters
{
public:
    FirstLetters();
    /// Waits for the letters, which need the application object.
    ~FirstLetters();
    FirstLetters(const FirstLetters &) = delete;
    FirstLetters &operator=(const FirstLetters &) = delete;

private:
    std::future<void> m_letters;
};

} // namespace startup
