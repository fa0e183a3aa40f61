/// \file
/// Reading a file at any place with as few calls to the system as can be.
#pragma once

#include <cstdint>
#include <span>
#include <string>

/// A file opened for reading, without a buffer of its own. One thread at a time.
class FileReader
{
public:
    /// \param path UTF-8. Folders do not count as open.
    explicit FileReader(const std::string &path);
    ~FileReader();
    FileReader(const FileReader &) = delete;
    FileReader &operator=(const FileReader &) = delete;

    bool isOpen() const { return m_descriptor >= 0; }
    /// Bytes, as they were when the file was opened.
    uint64_t size() const { return m_size; }
    /// \return how many bytes were read: fewer than asked at the end of the file or on a failure
    size_t readAt(uint64_t offset, std::span<uint8_t> bytes) const;

private:
    int m_descriptor = -1;
    uint64_t m_size = 0;
};
