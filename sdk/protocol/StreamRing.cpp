#include "sdk/protocol/StreamRing.h"

#include <climits>
#include <ctime>
#include <linux/futex.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// Sleeps while the futex has this value, at most for `timeout`. The futex is in memory that processes share,
/// so the private variants of the system call do not work.
void waitWhile(
    const std::atomic<std::uint32_t> &futex, std::uint32_t value, std::chrono::milliseconds timeout)
{
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(timeout);
    const timespec time{static_cast<time_t>(seconds.count()),
        static_cast<long>(std::chrono::nanoseconds(timeout - seconds).count())};
    syscall(SYS_futex, &futex, FUTEX_WAIT, value, &time, nullptr, 0);
}

void wakeAll(const std::atomic<std::uint32_t> &futex)
{
    syscall(SYS_futex, &futex, FUTEX_WAKE, INT_MAX, nullptr, nullptr, 0);
}

} // namespace

void StreamRing::push(std::uint32_t buffer)
{
    const std::uint64_t position = m_pushed.load(std::memory_order_relaxed);
    m_queue[position % capacity].store(buffer, std::memory_order_relaxed);
    m_pushed.store(position + 1, std::memory_order_seq_cst);
    m_imageFutex.fetch_add(1, std::memory_order_seq_cst);
    if (m_imageWaiters.load(std::memory_order_seq_cst) > 0)
        wakeAll(m_imageFutex);
}

std::optional<std::uint32_t> StreamRing::pop()
{
    std::uint64_t position = m_popped.load(std::memory_order_acquire);
    while (position < m_pushed.load(std::memory_order_acquire)) {
        // If another thread pops this entry first, the value is not used.
        const std::uint32_t buffer = m_queue[position % capacity].load(std::memory_order_relaxed);
        if (m_popped.compare_exchange_weak(position, position + 1, std::memory_order_acq_rel))
            return buffer;
    }
    return std::nullopt;
}

bool StreamRing::isPlausible() const
{
    const std::uint64_t before = m_popped.load(std::memory_order_acquire);
    const std::uint64_t pushed = m_pushed.load(std::memory_order_acquire);
    const std::uint64_t popped = m_popped.load(std::memory_order_acquire);
    // If another thread has popped meanwhile, the numbers do not belong together.
    return popped != before || (popped <= pushed && pushed - popped <= capacity);
}

void StreamRing::waitForImage(Milliseconds timeout, std::uint32_t signals)
{
    const std::uint32_t value = m_imageFutex.load(std::memory_order_seq_cst);
    // The order matters: a push after the following line changes the futex or sees the waiter.
    m_imageWaiters.fetch_add(1, std::memory_order_seq_cst);
    const bool isEmpty = m_popped.load(std::memory_order_seq_cst) >= m_pushed.load(std::memory_order_seq_cst);
    if (isEmpty && m_wakeSignals.load(std::memory_order_seq_cst) == signals)
        waitWhile(m_imageFutex, value, timeout);
    m_imageWaiters.fetch_sub(1, std::memory_order_seq_cst);
}

void StreamRing::wakeProgram()
{
    m_wakeSignals.fetch_add(1, std::memory_order_seq_cst);
    m_imageFutex.fetch_add(1, std::memory_order_seq_cst);
    wakeAll(m_imageFutex);
}

void StreamRing::release(std::uint32_t buffer)
{
    m_released[buffer / 64].fetch_or(std::uint64_t(1) << buffer % 64, std::memory_order_seq_cst);
    if (m_releaseWaiters.load(std::memory_order_seq_cst) == 0)
        return;
    m_releaseFutex.fetch_add(1, std::memory_order_seq_cst);
    wakeAll(m_releaseFutex);
}

bool StreamRing::takeReleased(BufferSet &buffers)
{
    bool isAny = false;
    for (std::size_t word = 0; word < buffers.size(); ++word) {
        buffers[word] = m_released[word].load(std::memory_order_relaxed) != 0
            ? m_released[word].exchange(0, std::memory_order_acq_rel)
            : 0;
        isAny = isAny || buffers[word] != 0;
    }
    return isAny;
}

void StreamRing::waitForRelease(Milliseconds timeout)
{
    const std::uint32_t value = m_releaseFutex.load(std::memory_order_seq_cst);
    m_releaseWaiters.fetch_add(1, std::memory_order_seq_cst);
    bool isAny = false;
    for (const auto &word : m_released)
        isAny = isAny || word.load(std::memory_order_seq_cst) != 0;
    if (!isAny)
        waitWhile(m_releaseFutex, value, timeout);
    m_releaseWaiters.fetch_sub(1, std::memory_order_seq_cst);
}
