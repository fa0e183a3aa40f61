#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kelp_test {

/// Builds a file in memory, byte by byte.
class ByteWriter
{
public:
    std::vector<uint8_t> bytes;

    ByteWriter &text(std::string_view word)
    {
        bytes.insert(bytes.end(), word.begin(), word.end());
        return *this;
    }
    ByteWriter &append(const std::vector<uint8_t> &more)
    {
        bytes.insert(bytes.end(), more.begin(), more.end());
        return *this;
    }
    ByteWriter &zeros(size_t count)
    {
        bytes.resize(bytes.size() + count);
        return *this;
    }
    /// The low `size` bytes of a value, lowest first.
    ByteWriter &little(uint64_t value, int size)
    {
        for (int i = 0; i < size; ++i)
            bytes.push_back(static_cast<uint8_t>(value >> (8 * i)));
        return *this;
    }
    /// The low `size` bytes of a value, highest first.
    ByteWriter &big(uint64_t value, int size)
    {
        for (int i = size - 1; i >= 0; --i)
            bytes.push_back(static_cast<uint8_t>(value >> (8 * i)));
        return *this;
    }
};

/// Writes a file, replacing what was there. Ends the program with a line when that fails: a test cannot
/// go on without its material.
void writeFile(const std::string &path, const std::vector<uint8_t> &bytes);
void writeFile(const std::string &path, std::string_view text);

/// All bytes of a file; empty when it cannot be read.
std::vector<uint8_t> readFile(const std::string &path);

} // namespace kelp_test
