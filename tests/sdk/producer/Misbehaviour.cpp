#include "tests/sdk/producer/Misbehaviour.h"

#include "sdk/gentl/GenTL.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fcntl.h>
#include <functional>
#include <map>
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

/// A child that keeps every descriptor.
void forkChild()
{
    if (fork() == 0)
        hang();
}

/// A grandchild in a session of its own, as a daemon has it.
void forkDaemon()
{
    if (fork() == 0) {
        setsid();
        forkChild();
        _exit(EXIT_SUCCESS);
    }
}

/// Reserves and never touches: what ends it is a limit, and not the memory of the machine.
void allocateWithoutEnd()
{
    constexpr std::size_t BlockSize = 64U << 20;
    constexpr std::size_t EnoughBytes = std::size_t(10) << 30;
    for (std::size_t bytes = 0; bytes < EnoughBytes; bytes += BlockSize) {
        if (!std::malloc(BlockSize))
            throw std::bad_alloc();
    }
    throw std::runtime_error("was given more memory than anybody needs");
}

/// Threads that nobody ends, and that are in the driver's code when it is closed.
void startThreads()
{
    for (int i = 0; i < 4; ++i)
        std::thread(hang).detach();
}

void throwInThread()
{
    std::thread([] { throw std::runtime_error("thrown in a thread of the driver"); }).join();
}

void throwLater(int time)
{
    std::thread([time] {
        std::this_thread::sleep_for(std::chrono::milliseconds(time));
        throw std::runtime_error("licence server lost");
    }).detach();
}

/// Of every signal that can be handled, to something that a host would not want.
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

/// As a driver does that asks whoever sits there.
void readTerminal()
{
    const int terminal = open("/dev/tty", O_RDONLY | O_CLOEXEC);
    char answer = 0;
    if (terminal < 0 || read(terminal, &answer, 1) >= 0)
        throw std::runtime_error("there is no terminal, or it is ours");
    close(terminal);
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
        {"throw", [](int) { throw std::runtime_error("thrown by the driver"); }},
        {"throw-number", [](int number) { throw number; }},
        {"throw-in-thread", [](int) { throwInThread(); }},
        {"throw-later", throwLater},
        {"terminate", [](int) { std::terminate(); }},
        {"exit", [](int code) { std::exit(code); }},
        {"hang", [](int) { hang(); }},
        {"slow", [](int time) { std::this_thread::sleep_for(std::chrono::milliseconds(time)); }},
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
        {"ignore-and-hang",
            [](int) {
                changeSignalHandlers();
                hang();
            }},
        {"print", [](int) { printMegabyte(); }},
        {"ask", [](int) { readTerminal(); }},
        {"close", [](int) { closeDescriptors(); }},
    };
    std::istringstream words(action);
    std::string verb;
    int argument = 0;
    words >> verb >> argument;
    if (verb == "error")
        return argument;
    if (verb == "untouched")
        return GenTL::GC_ERR_SUCCESS;
    const auto found = verbs.find(verb);
    if (found != verbs.end())
        found->second(argument);
    return Continue;
}
