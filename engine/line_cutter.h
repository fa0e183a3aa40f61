/// \file
/// Cuts a stream of bytes into lines.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// Bytes in, lines out, in any sizes. A line keeps its newline. No thread safety.
class LineCutter
{
public:
    /// A partial line beyond this is handed out as it is: an engine that forgets its newlines must not eat
    /// the memory.
    static constexpr std::size_t partialLimitBytes = 65536;

    void append(std::string_view bytes);
    /// The oldest complete line, or a partial one that has grown beyond the limit; none when more must come.
    std::optional<std::string> next();
    /// What has come behind the last newline, and forgets it.
    std::string takePartial();

private:
    std::string m_buffer;
    std::size_t m_begin = 0;   ///< where the oldest line not yet handed out begins
    std::size_t m_scanned = 0; ///< no newline between m_begin and here
};
