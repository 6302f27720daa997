#pragma once

#include <cstdint>
#include <vector>

/// Returns a number that looks random and depends on every bit of the value.
constexpr std::uint64_t scrambled(std::uint64_t value)
{
    value += 0x9E3779B97F4A7C15;
    value = (value ^ value >> 30) * 0xBF58476D1CE4E5B9;
    value = (value ^ value >> 27) * 0x94D049BB133111EB;
    return value ^ value >> 31;
}

/// Returns a random number that is at least 0 and less than 1.
constexpr double uniformRandom(std::uint64_t key)
{
    return static_cast<double>(scrambled(key) >> 11) * 0x1p-53;
}

/// A supply of random numbers with normal distribution. The numbers are computed once; each line of a picture
/// starts at another one of them. This is as good as new numbers, and as fast as memory.
class SceneNoise
{
public:
    /// Computes the numbers; the same `seed` gives the same numbers. Lines have at most `maxLength` numbers.
    SceneNoise(std::uint64_t seed, double mean, double deviation, int maxLength);

    /// Returns the numbers of a line.
    const float *line(std::uint64_t key) const { return m_numbers.data() + key % count; }

private:
    static constexpr std::uint64_t count = 1 << 15; // Different numbers; a power of two.

    std::vector<float> m_numbers;
};
