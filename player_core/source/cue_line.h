#pragma once

#include <string_view>
#include <utility>

namespace kelp_core {

/// A line of a CUE sheet that is taken apart from the left. A view: the text must outlive it.
class CueLine
{
public:
    explicit CueLine(std::string_view text)
        : left_(text)
    {
        skipBlanks();
    }

    /// The next word, or what stands in quotes; "" at the end.
    std::string_view word();

    /// All that is left as one text. The closing quote is the last one, since titles hold quotes.
    std::string_view rest();

    /// A file's name and, behind it, its type: the name may hold blanks, quoted or not.
    std::pair<std::string_view, std::string_view> nameAndType();

private:
    std::string_view take(size_t size);
    std::string_view quoted(size_t end);
    void skipBlanks();

    std::string_view left_;
};

} // namespace kelp_core
