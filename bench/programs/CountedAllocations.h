#pragma once

#include <cstddef>

/// How often this program has allocated so far, by operator new or by malloc(), which Qt's strings and lists
/// use.
std::size_t countedAllocations();
