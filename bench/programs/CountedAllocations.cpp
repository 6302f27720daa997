#include "bench/programs/CountedAllocations.h"

#include <cstdlib>
#include <new>

// The functions of the C library behind malloc() and realloc(), which are replaced below.
extern "C" void *__libc_malloc(std::size_t size); // NOLINT(bugprone-reserved-identifier)
extern "C" void *__libc_realloc(void *memory, std::size_t size); // NOLINT(bugprone-reserved-identifier)

namespace {

std::size_t count = 0; // Not atomic: only one thread is measured.

} // namespace

std::size_t countedAllocations()
{
    return count;
}

extern "C" void *malloc(std::size_t size)
{
    ++count;
    return __libc_malloc(size);
}

extern "C" void *realloc(void *memory, std::size_t size)
{
    ++count;
    return __libc_realloc(memory, size);
}

void *operator new(std::size_t size)
{
    if (void *memory = std::malloc(size)) // Counts it.
        return memory;
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}
