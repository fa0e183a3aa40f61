#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace kelp_core {

/// Reads bits from the highest of each byte on. Behind the end there are zeros, and overrun() says so.
class DstBitReader
{
public:
    explicit DstBitReader(std::span<const uint8_t> bytes)
        : bytes_(bytes)
    {
    }

    /// The next count bits, 0 … 24 of them, as a number.
    unsigned bits(int count)
    {
        while (held_ < count) {
            const uint8_t byte = next_ < bytes_.size() ? bytes_[next_] : 0;
            ++next_;
            store_ = store_ << 8 | byte;
            held_ += 8;
        }
        held_ -= count;
        return static_cast<unsigned>(store_ >> held_) & ((1U << count) - 1U);
    }
    bool bit() { return bits(1) != 0; }

    /// As bits(), the highest of them being the sign.
    int signedBits(int count)
    {
        const int value = static_cast<int>(bits(count));
        return value >= 1 << (count - 1) ? value - (1 << count) : value;
    }

    /// True once more bits were taken than there are.
    bool overrun() const { return next_ - static_cast<size_t>(held_ / 8) > bytes_.size(); }

    size_t bitsTaken() const { return next_ * 8 - static_cast<size_t>(held_); }

private:
    std::span<const uint8_t> bytes_;
    size_t next_ = 0;
    uint64_t store_ = 0;
    int held_ = 0;
};

} // namespace kelp_core
