#include "sdk/protocol/StreamRing.h"

#include <algorithm>
#include <atomic>
#include <csignal>
#include <gtest/gtest.h>
#include <new>
#include <optional>
#include <sys/mman.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace std::chrono_literals;

namespace {

constexpr auto longTime = 20s; // Only a hang reaches it.

/// A ring in memory that a forked process shares.
class StreamRingTest : public testing::Test
{
protected:
    StreamRingTest()
        : m_memory(
            mmap(nullptr, sizeof(StreamRing), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)),
          ring(*new (m_memory) StreamRing)
    { }
    ~StreamRingTest() override { munmap(m_memory, sizeof(StreamRing)); }

    std::vector<std::uint32_t> takeReleased()
    {
        StreamRing::BufferSet released;
        std::vector<std::uint32_t> buffers;
        if (!ring.takeReleased(released))
            return buffers;
        for (std::uint32_t buffer = 0; buffer < StreamRing::maxBuffers; ++buffer) {
            if ((released[buffer / 64] >> buffer % 64 & 1U) != 0)
                buffers.push_back(buffer);
        }
        return buffers;
    }

    /// Waits for the next buffer, as a program does. Returns nothing if none arrives.
    std::optional<std::uint32_t> next()
    {
        const auto deadline = std::chrono::steady_clock::now() + longTime;
        std::optional<std::uint32_t> buffer;
        while (!(buffer = ring.pop()) && std::chrono::steady_clock::now() < deadline)
            ring.waitForImage(longTime, ring.wakeSignals());
        return buffer;
    }

    /// Pushes images over the buffers 0 to 3, each with its number as frame ID, as soon as buffers are free.
    void pushImages(std::uint64_t count)
    {
        std::vector<std::uint32_t> isFree{0, 1, 2, 3};
        for (std::uint64_t number = 0; number < count;) {
            for (const std::uint32_t buffer : isFree) {
                if (number == count)
                    return;
                ring.record(buffer).frameId = number++;
                ring.push(buffer);
            }
            ring.waitForRelease(longTime);
            isFree = takeReleased();
        }
    }

private:
    void *m_memory;

protected:
    StreamRing &ring;
};

} // namespace

TEST_F(StreamRingTest, buffersArePoppedInTheOrderOfTheirPush)
{
    EXPECT_FALSE(ring.pop());
    for (const std::uint32_t buffer : {7U, 255U, 0U})
        ring.push(buffer);
    for (const std::uint32_t buffer : {7U, 255U, 0U})
        EXPECT_EQ(ring.pop(), buffer);
    EXPECT_FALSE(ring.pop());
}

TEST_F(StreamRingTest, allBuffersFitIntoTheQueue)
{
    for (std::uint32_t buffer = 0; buffer < StreamRing::maxBuffers; ++buffer)
        ring.push(buffer);
    for (std::uint32_t buffer = 0; buffer < StreamRing::maxBuffers; ++buffer)
        ASSERT_EQ(ring.pop(), buffer);
    EXPECT_FALSE(ring.pop());
}

TEST_F(StreamRingTest, releasedBuffersAreTakenOnce)
{
    EXPECT_TRUE(takeReleased().empty());
    for (const std::uint32_t buffer : {0U, 63U, 64U, 255U})
        ring.release(buffer);
    EXPECT_EQ(takeReleased(), (std::vector<std::uint32_t>{0, 63, 64, 255}));
    EXPECT_TRUE(takeReleased().empty());
}

TEST_F(StreamRingTest, waitsEndAtOnceIfThereIsSomethingToDo)
{
    const auto start = std::chrono::steady_clock::now();
    ring.push(0);
    ring.waitForImage(longTime, ring.wakeSignals());
    ring.release(0);
    ring.waitForRelease(longTime);
    ring.pop();
    const std::uint32_t signals = ring.wakeSignals();
    ring.wakeProgram(); // Between the look at the signals and the wait.
    ring.waitForImage(longTime, signals);
    EXPECT_LT(std::chrono::steady_clock::now() - start, longTime);
}

TEST_F(StreamRingTest, waitsEndAfterTheirTime)
{
    ring.waitForImage(1ms, ring.wakeSignals());
    ring.waitForRelease(1ms);
}

TEST_F(StreamRingTest, allWaitingThreadsAreWoken)
{
    const std::uint32_t signals = ring.wakeSignals();
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 3; ++thread)
        threads.emplace_back([&] {
            while (ring.wakeSignals() == signals)
                ring.waitForImage(longTime, signals);
        });
    ring.wakeProgram();
    for (std::thread &thread : threads)
        thread.join();
}

TEST_F(StreamRingTest, eachImageGoesToOneOfSeveralThreads)
{
    constexpr std::uint64_t images = 20000;
    std::vector<std::atomic<int>> seen(images);
    std::atomic<std::uint64_t> count{0};
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 3; ++thread)
        threads.emplace_back([&] {
            while (count < images) {
                const std::uint32_t signals = ring.wakeSignals();
                if (const auto buffer = ring.pop()) {
                    ++seen[ring.record(*buffer).frameId];
                    ring.release(*buffer);
                    ++count;
                } else if (count < images) {
                    ring.waitForImage(longTime, signals);
                }
            }
            ring.wakeProgram();
        });
    pushImages(images);
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_TRUE(std::all_of(seen.begin(), seen.end(), [](const auto &times) { return times == 1; }));
}

TEST_F(StreamRingTest, imagesReachAnotherProcessInOrder)
{
    constexpr std::uint64_t images = 50000;
    const pid_t program = fork();
    if (program == 0) {
        std::uint64_t number = 0;
        for (std::optional<std::uint32_t> buffer; number < images && (buffer = next()); ++number) {
            if (*buffer > 3 || ring.record(*buffer).frameId != number)
                break;
            ring.release(*buffer);
        }
        _exit(number == images ? 0 : 1);
    }
    pushImages(images);
    int status = -1;
    waitpid(program, &status, 0);
    EXPECT_EQ(status, 0);
}

TEST_F(StreamRingTest, hostGoesOnAfterTheProgramWasKilled)
{
    const pid_t program = fork();
    if (program == 0) {
        for (;;)
            ring.waitForImage(longTime, ring.wakeSignals());
    }
    kill(program, SIGKILL);
    waitpid(program, nullptr, 0);
    ring.push(2);
    EXPECT_EQ(ring.pop(), 2U);
}
