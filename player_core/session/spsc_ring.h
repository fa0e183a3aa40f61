#pragma once

#include <algorithm>
#include <atomic>
#include <bit>
#include <cstddef>
#include <cstring>
#include <type_traits>
#include <vector>

namespace kelp_core {

/// A ring between exactly one writing and one reading thread. Neither ever waits for the other or allocates:
/// what does not fit is not taken. T is a plain value (samples, small records).
template<typename T>
class SpscRing
{
    static_assert(std::is_trivially_copyable_v<T>);

public:
    /// Room for at least `capacity` elements; 0 gives a ring that takes nothing.
    explicit SpscRing(size_t capacity)
        : buffer_(capacity == 0 ? 1 : std::bit_ceil(capacity))
        , mask_(buffer_.size() - 1)
        , capacity_(capacity == 0 ? 0 : buffer_.size())
    {
    }

    size_t capacity() const { return capacity_; }

    /// Elements ready to be read. Exact on the reading thread, a lower bound elsewhere.
    size_t available() const
    {
        return written_.load(std::memory_order_acquire) - read_.load(std::memory_order_acquire);
    }

    /// Room for writing. Exact on the writing thread.
    size_t space() const { return capacity_ - available(); }

    /// Writing thread. Returns how many elements were taken.
    size_t write(const T *data, size_t count)
    {
        const size_t at = written_.load(std::memory_order_relaxed);
        const size_t n = std::min(count, capacity_ - (at - read_.load(std::memory_order_acquire)));
        if (n == 0)
            return 0;
        const size_t begin = at & mask_;
        const size_t first = std::min(n, buffer_.size() - begin);
        std::memcpy(buffer_.data() + begin, data, first * sizeof(T));
        if (n > first)
            std::memcpy(buffer_.data(), data + first, (n - first) * sizeof(T));
        written_.store(at + n, std::memory_order_release);
        return n;
    }

    bool push(const T &value) { return write(&value, 1) == 1; }

    /// Reading thread. Returns how many elements were copied out.
    size_t read(T *data, size_t count)
    {
        const size_t at = read_.load(std::memory_order_relaxed);
        const size_t n = std::min(count, written_.load(std::memory_order_acquire) - at);
        if (n == 0)
            return 0;
        const size_t begin = at & mask_;
        const size_t first = std::min(n, buffer_.size() - begin);
        std::memcpy(data, buffer_.data() + begin, first * sizeof(T));
        if (n > first)
            std::memcpy(data + first, buffer_.data(), (n - first) * sizeof(T));
        read_.store(at + n, std::memory_order_release);
        return n;
    }

    bool pop(T &value) { return read(&value, 1) == 1; }

    /// Reading thread: the oldest element, or null.
    const T *peek() const
    {
        const size_t at = read_.load(std::memory_order_relaxed);
        return written_.load(std::memory_order_acquire) == at ? nullptr : &buffer_[at & mask_];
    }

private:
    std::vector<T> buffer_;
    size_t mask_;
    size_t capacity_;
    // On lines of their own, or each side would steal the other's cache line at every block.
    alignas(64) std::atomic<size_t> written_{0};
    alignas(64) std::atomic<size_t> read_{0};
};

} // namespace kelp_core
