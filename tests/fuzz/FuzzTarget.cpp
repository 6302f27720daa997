#include "tests/fuzz/FuzzTarget.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr std::size_t FeatureCount = 8192;

// The fuzzer takes a change of these as new coverage, and sets them back itself.
__attribute__((section("__libfuzzer_extra_counters"), used)) std::uint8_t features[FeatureCount];

} // namespace

void noteFeature(std::size_t feature)
{
    std::uint8_t &counter = features[feature % FeatureCount];
    if (counter < 255)
        ++counter;
}

void require(bool kept, const char *promise)
{
    if (kept)
        return;
    std::fprintf(stderr, "Broken promise: %s\n", promise);
    std::abort();
}
