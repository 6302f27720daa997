#include "tests/sdk/producer/Misbehaviour.h"

#include "sdk/gentl/GenTL.h"

#include <chrono>
#include <condition_variable>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <fcntl.h>
#include <functional>
#include <map>
#include <mutex>
#include <new>
#include <sstream>
#include <stdexcept>
#include <thread>
#include <unistd.h>

namespace {

[[noreturn]] void hang()
{
    for (;;)
        pause();
}

/// Uses processor time of the calling thread.
void burn(std::chrono::nanoseconds time)
{
    const auto used = [] {
        timespec now{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        return std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
    };
    const auto start = used();
    while (used() - start < time) { }
}

/// Starts a child that keeps all descriptors open.
void forkChild()
{
    if (fork() == 0)
        hang();
}

/// Starts a grandchild in its own session, like a daemon.
void forkDaemon()
{
    if (fork() == 0) {
        setsid();
        forkChild();
        _exit(EXIT_SUCCESS);
    }
}

/// Allocates memory without writing to it, until a limit makes the allocation fail. Throws another exception
/// if there is no limit.
void allocateWithoutEnd()
{
    constexpr std::size_t blockSize = 64U << 20;
    constexpr std::size_t maxBytes = std::size_t(10) << 30;
    for (std::size_t bytes = 0; bytes < maxBytes; bytes += blockSize) {
        if (!std::malloc(blockSize))
            throw std::bad_alloc();
    }
    throw std::runtime_error("there is no limit of memory");
}

/// Starts threads that are still running when the producer is closed.
void startThreads()
{
    for (int i = 0; i < 4; ++i)
        std::thread(hang).detach();
}

void throwInThread()
{
    std::thread([] { throw std::runtime_error("thrown in a thread of the producer"); }).join();
}

/// Ignores every signal except SIGPIPE, which gets its default action. Both can harm a host.
void changeSignalHandlers()
{
    for (int number = 1; number < NSIG; ++number)
        std::signal(number, number == SIGPIPE ? SIG_DFL : SIG_IGN);
}

void closeDescriptors()
{
    for (int descriptor = 3; descriptor < 64; ++descriptor)
        close(descriptor);
}

/// Reads from the terminal, as some producers do to question the user.
void readTerminal()
{
    const int terminal = open("/dev/tty", O_RDONLY | O_CLOEXEC);
    char answer = 0;
    if (terminal < 0 || read(terminal, &answer, 1) >= 0)
        throw std::runtime_error("there is no terminal, or it could be read");
    close(terminal);
}

/// Waits until `count` calls have arrived. Returns an error if they do not arrive in time.
int meet(int count)
{
    static std::mutex mutex;
    static std::condition_variable changed;
    static int arrived = 0;
    std::unique_lock lock(mutex);
    ++arrived;
    changed.notify_all();
    const bool isMet = changed.wait_for(lock, std::chrono::seconds(8), [&] { return arrived >= count; });
    return isMet ? continueCall : int(GenTL::GC_ERR_ERROR);
}

void printMegabyte()
{
    std::printf("%s\n", std::string(1 << 20, 'x').c_str());
}

} // namespace

int perform(const std::string &action)
{
    static const std::map<std::string, std::function<void(int)>> verbs{
        {"crash", [](int) { raise(SIGSEGV); }},
        {"abort", [](int) { std::abort(); }},
        {"throw", [](int) { throw std::runtime_error("thrown by the producer"); }},
        {"throw-number", [](int number) { throw number; }},
        {"throw-in-thread", [](int) { throwInThread(); }},
        {"terminate", [](int) { std::terminate(); }},
        {"exit", [](int code) { std::exit(code); }},
        {"hang", [](int) { hang(); }},
        {"slow", [](int time) { std::this_thread::sleep_for(std::chrono::milliseconds(time)); }},
        {"burn", [](int time) { burn(std::chrono::milliseconds(time)); }},
        {"fork", [](int) { forkChild(); }},
        {"fork-and-die",
            [](int) {
                forkChild();
                raise(SIGKILL);
            }},
        {"daemon", [](int) { forkDaemon(); }},
        {"allocate", [](int) { allocateWithoutEnd(); }},
        {"threads", [](int) { startThreads(); }},
        {"signals", [](int) { changeSignalHandlers(); }},
        {"print", [](int) { printMegabyte(); }},
        {"ask", [](int) { readTerminal(); }},
        {"close", [](int) { closeDescriptors(); }},
    };
    std::istringstream fields(action);
    std::string verb;
    int argument = 0;
    fields >> verb >> argument;
    if (verb == "error")
        return argument;
    if (verb == "meet")
        return meet(argument);
    if (verb == "untouched")
        return GenTL::GC_ERR_SUCCESS;
    const auto found = verbs.find(verb);
    if (found != verbs.end())
        found->second(argument);
    return continueCall;
}
