#include "tools/cvxctl/Interruption.h"

#include <csignal>

namespace {

volatile std::sig_atomic_t interrupted = 0;

void interrupt(int)
{
    interrupted = 1;
}

} // namespace

void catchInterruption()
{
    struct sigaction action
    { };
    action.sa_handler = interrupt;
    action.sa_flags = static_cast<int>(SA_RESETHAND); // The second signal has its default effect.
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
}

bool isInterrupted()
{
    return interrupted != 0;
}
