#include "bench/programs/CountedAllocations.h"

#include <cstdlib>
#include <new>

// The C library's own malloc() and realloc(), which the functions in this file replace.
extern "C" void *__libc_malloc(std::size_t size); // NOLINT(bugprone-reserved-identifier)
extern "C" void *__libc_realloc(void *memory, std::size_t size); // NOLINT(bugprone-reserved-identifier)

namespace {

std::size_t count = 0; // This counter is not atomic, because only one thread is measured.

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
    if (void *memory = std::malloc(size)) // malloc() counts the allocation.
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
