#include "sdk/camerahost/SocketWatch.h"

#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <mutex>
#include <poll.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace {

using Clock = std::chrono::steady_clock;

/// Times after the end of the connection.
struct EndLimits
{
    std::chrono::milliseconds abandonAfter; // The main thread is probably in a call that hangs.
    std::chrono::milliseconds exitAfter;
};
constexpr EndLimits closeLimits{std::chrono::milliseconds(300), std::chrono::milliseconds(900)};
constexpr EndLimits putBackLimits{std::chrono::milliseconds(1000), std::chrono::milliseconds(5000)};

constexpr int lookInterval = 1000; // Milliseconds, between two looks at the calls of the main thread.
constexpr int maxLooks = 5; // A call that is seen running so often in a row hangs.

/// Returns a descriptor that becomes readable when the library's process ends, or -1 if there is none.
int openLibraryProcess(int socket)
{
    ucred library{};
    socklen_t size = sizeof library;
    if (getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &library, &size) != 0)
        return -1;
    return static_cast<int>(syscall(SYS_pidfd_open, library.pid, 0));
}

/// Waits until the library closes the socket, its process ends, or the main thread hangs.
void waitForEnd(int socket, CallWatch &calls)
{
    // A child of the library's process may have inherited the socket, which then stays open.
    std::array<pollfd, 2> ends{{{socket, POLLRDHUP, 0}, {openLibraryProcess(socket), POLLIN, 0}}};
    for (;;) {
        const int ready = poll(ends.data(), ends.size(), lookInterval);
        if (ready > 0 || (ready == 0 && calls.look() >= maxLooks))
            return;
    }
}

} // namespace

struct SocketWatch::State
{
    int socket;
    std::function<void()> abandon;
    CallWatch calls;
    std::mutex mutex; // Guards isShuttingDown.
    std::condition_variable change;
    bool isShuttingDown = false;
    std::atomic<bool> isPutBackNeeded{false};

    void run();
};

void SocketWatch::State::run()
{
    waitForEnd(socket, calls);
    const auto end = Clock::now();
    const EndLimits limits = isPutBackNeeded ? putBackLimits : closeLimits;
    shutdown(socket, SHUT_RDWR); // The main thread sees the end even if another process has the socket.
    std::unique_lock lock(mutex);
    if (!change.wait_until(lock, end + limits.abandonAfter, [this] { return isShuttingDown; }))
        std::thread(abandon).detach();
    lock.unlock();
    std::this_thread::sleep_until(end + limits.exitAfter);
    _exit(EXIT_FAILURE);
}

SocketWatch::SocketWatch(int socket, std::function<void()> abandon) : m_state(new State)
{
    m_state->socket = socket;
    m_state->abandon = std::move(abandon);
    std::thread([state = m_state] { state->run(); }).detach();
}

void SocketWatch::setPutBack(bool isNeeded)
{
    m_state->isPutBackNeeded = isNeeded;
}

void SocketWatch::noteShutdown()
{
    const std::lock_guard lock(m_state->mutex);
    m_state->isShuttingDown = true;
    m_state->change.notify_one();
}

CallWatch &SocketWatch::calls()
{
    return m_state->calls;
}
