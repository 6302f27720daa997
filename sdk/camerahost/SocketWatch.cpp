#include "sdk/camerahost/SocketWatch.h"

#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <mutex>
#include <poll.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds abandonAfter(300); // The main thread is probably in a call that hangs.
constexpr std::chrono::milliseconds exitAfter(900);

void waitForEnd(int socket)
{
    pollfd end{socket, POLLRDHUP, 0};
    while (poll(&end, 1, -1) < 1) { } // Only a signal interrupts the wait.
}

} // namespace

struct SocketWatch::State
{
    int socket;
    std::function<void()> abandon;
    std::mutex mutex;
    std::condition_variable change;
    bool isShuttingDown = false;

    void run();
};

void SocketWatch::State::run()
{
    waitForEnd(socket);
    const auto end = Clock::now();
    std::unique_lock lock(mutex);
    if (!change.wait_until(lock, end + abandonAfter, [this] { return isShuttingDown; }))
        std::thread(abandon).detach();
    lock.unlock();
    std::this_thread::sleep_until(end + exitAfter);
    _exit(EXIT_FAILURE);
}

SocketWatch::SocketWatch(int socket, std::function<void()> abandon) : m_state(new State)
{
    m_state->socket = socket;
    m_state->abandon = std::move(abandon);
    std::thread([state = m_state] { state->run(); }).detach();
}

void SocketWatch::noteShutdown()
{
    const std::lock_guard lock(m_state->mutex);
    m_state->isShuttingDown = true;
    m_state->change.notify_one();
}
