#include "tests/camera/AllocationLimit.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

constexpr std::size_t limit = std::size_t(1) << 30;
std::atomic<bool> limited{false};
std::atomic<int> refusals{0};

} // namespace

AllocationLimit::AllocationLimit()
{
    refusals = 0;
    limited = true;
}

AllocationLimit::~AllocationLimit()
{
    limited = false;
}

int AllocationLimit::refused() const
{
    return refusals;
}

void *operator new(std::size_t size)
{
    if (limited && size >= limit) {
        ++refusals;
        throw std::bad_alloc();
    }
    if (void *memory = std::malloc(size > 0 ? size : 1))
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
