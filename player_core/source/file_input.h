#pragma once

#include "player_core/source/byte_input.h"

#include <memory>
#include <string>

namespace kelp_core {

/// A regular file, opened for reading. Pipes, devices and folders are refused: they could block for ever.
class FileInput final : public ByteInput
{
public:
    /// Opens a file by the bytes of its path. Null with one line in error ("cannot open: no such file").
    static std::unique_ptr<FileInput> open(const std::string &path, std::string &error);

    ~FileInput() override;
    FileInput(const FileInput &) = delete;
    FileInput &operator=(const FileInput &) = delete;

    /// The size at the time of opening. A file that shrinks later simply ends early.
    int64_t sizeBytes() const override { return size_; }
    [[nodiscard]] int64_t readAt(int64_t offset, uint8_t *to, size_t size) override;

    /// The system's error number of the last failed read, 0 when none failed.
    int lastError() const { return lastError_; }

private:
    FileInput(int descriptor, int64_t size)
        : descriptor_(descriptor)
        , size_(size)
    {
    }

    int descriptor_;
    int64_t size_;
    int lastError_ = 0;
};

/// A system error as a few lower-case words: "no such file", "permission denied", …
std::string systemErrorWords(int errorNumber);

} // namespace kelp_core
