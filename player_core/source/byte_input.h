#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace kelp_core {

/// Bytes that can be read at any place: a file, or memory in a test. What the parsers of headers stand on.
class ByteInput
{
public:
    virtual ~ByteInput() = default;
    virtual int64_t sizeBytes() const = 0;

    /// Reads up to size bytes from offset. Returns how many; fewer than asked only at the end, 0 behind it,
    /// and -1 when reading failed.
    [[nodiscard]] virtual int64_t readAt(int64_t offset, uint8_t *to, size_t size) = 0;

    /// True when all of them could be read.
    [[nodiscard]] bool readFully(int64_t offset, uint8_t *to, size_t size)
    {
        return readAt(offset, to, size) == static_cast<int64_t>(size);
    }
};

/// A view of bytes in memory, which must outlive it.
class MemoryInput final : public ByteInput
{
public:
    explicit MemoryInput(std::span<const uint8_t> bytes)
        : bytes_(bytes)
    {
    }
    int64_t sizeBytes() const override { return static_cast<int64_t>(bytes_.size()); }
    [[nodiscard]] int64_t readAt(int64_t offset, uint8_t *to, size_t size) override;

private:
    std::span<const uint8_t> bytes_;
};

} // namespace kelp_core
