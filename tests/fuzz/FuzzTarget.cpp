#include "tests/fuzz/FuzzTarget.h"

#include <cstdio>
#include <cstdlib>

void require(bool holds, const char *property)
{
    if (holds)
        return;
    std::fprintf(stderr, "Does not hold: %s\n", property);
    std::abort();
}
