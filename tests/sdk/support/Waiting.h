#pragma once

#include <chrono>
#include <thread>

/// Waits until the condition holds. Returns false if it does not hold within the bound, which is long enough
/// for a loaded machine and for a sanitizer.
template <typename Condition>
bool waitUntil(const Condition &condition, std::chrono::milliseconds bound = std::chrono::seconds(20))
{
    const auto deadline = std::chrono::steady_clock::now() + bound;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}
