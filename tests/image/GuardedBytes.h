#pragma once

#include <cstdint>
#include <cstring>
#include <sys/mman.h>
#include <unistd.h>

/// Bytes that are followed by memory that cannot be accessed, so that reading or writing beyond them crashes.
class GuardedBytes
{
public:
    explicit GuardedBytes(std::size_t capacity)
    {
        const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
        m_mapped = (capacity + page - 1) / page * page + page;
        void *const memory
            = mmap(nullptr, m_mapped, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        m_begin = static_cast<std::uint8_t *>(memory);
        m_end = m_begin + m_mapped - page;
        mprotect(m_end, page, PROT_NONE);
    }
    GuardedBytes(const GuardedBytes &) = delete;
    GuardedBytes &operator=(const GuardedBytes &) = delete;
    ~GuardedBytes() { munmap(m_begin, m_mapped); }

    /// Returns the last `size` bytes.
    std::uint8_t *last(std::size_t size) { return m_end - size; }

private:
    std::uint8_t *m_begin;
    std::uint8_t *m_end;
    std::size_t m_mapped;
};
