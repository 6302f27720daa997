#pragma once

#include <chrono>
#include <thread>

/// Long enough for anything that is to happen at once, on a loaded machine and under a sanitizer.
constexpr std::chrono::seconds Soon{20};

/// Looks again and again, until the condition holds or the time is over.
template <typename Condition>
bool waitUntil(const Condition &condition, std::chrono::milliseconds bound = Soon)
{
    const auto deadline = std::chrono::steady_clock::now() + bound;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}

/// What a call takes.
template <typename Call>
std::chrono::milliseconds timeOf(const Call &call)
{
    const auto start = std::chrono::steady_clock::now();
    call();
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start);
}
