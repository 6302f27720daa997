#pragma once

#include <cstddef>

/// Returns how many times this program has allocated memory so far, with operator new or with malloc(), which
/// Qt's containers use.
std::size_t countedAllocations();
