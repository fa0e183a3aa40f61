/// \file
/// How long tests wait for what is sure to come. A passing test does not wait; a slow and busy machine may
/// need the time.
#pragma once

#include <chrono>
#include <functional>
#include <thread>

namespace kelp_test {

/// Far longer than anything takes, and shorter than the time CTest gives a test.
inline constexpr std::chrono::milliseconds patience{60'000};
/// The same for Qt's waits.
inline constexpr int patienceMs = static_cast<int>(patience.count());

/// Asks until it is so, at most so long; whether it came true. Runs no event loop.
inline bool waitUntil(const std::function<bool()> &done, std::chrono::milliseconds time = patience)
{
    const auto deadline = std::chrono::steady_clock::now() + time;
    while (!done()) {
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}

} // namespace kelp_test
