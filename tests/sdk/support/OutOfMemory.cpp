#include "tests/sdk/support/OutOfMemory.h"

#include <cstdlib>
#include <new>

namespace {

thread_local bool isOutOfMemory = false;

} // namespace

OutOfMemory::OutOfMemory()
{
    isOutOfMemory = true;
}

OutOfMemory::~OutOfMemory()
{
    isOutOfMemory = false;
}

void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    return isOutOfMemory ? nullptr : std::malloc(size > 0 ? size : 1);
}

void *operator new(std::size_t size)
{
    void *const memory = operator new(size, std::nothrow);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}
