#include "sdk/hosting/ProcessSetup.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

/// Limits the address space, so that a producer that allocates without end does not exhaust the machine's
/// memory. The limit also applies to memory that a producer reserves but does not use.
void limitMemory()
{
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // Sanitizers reserve terabytes.
    rlimit limit{};
    constexpr rlim_t maxBytes = rlim_t(8) << 30;
    if (getrlimit(RLIMIT_AS, &limit) == 0 && limit.rlim_cur > maxBytes) {
        limit.rlim_cur = maxBytes;
        setrlimit(RLIMIT_AS, &limit);
    }
#endif
}

/// Makes all threads share one heap. The threads that search interfaces are short-lived, and separate heaps
/// would become fragmented: after 10,000 camera changes, a host of 500 KiB would grow by 370 KiB instead of
/// 90 KiB.
void shareOneHeap()
{
    mallopt(M_ARENA_MAX, 1);
}

/// Opens the standard descriptors if the program was started without them. Otherwise a file that the
/// producer opens could get one of these numbers, and text that the producer prints would be written to
/// this file.
void openStandardDescriptors()
{
    int descriptor = 0;
    while ((descriptor = open("/dev/null", O_RDWR)) >= 0 && descriptor <= STDERR_FILENO) { }
    close(descriptor);
}

void ignoreSignals()
{
    std::signal(SIGPIPE, SIG_IGN); // The reader of the text that a producer prints may have exited.
    // On a terminal, the host is a background process, which the kernel stops when it uses the terminal. A
    // stopped host would look like a hanging one.
    std::signal(SIGTTOU, SIG_IGN);
    std::signal(SIGTTIN, SIG_IGN);
}

void cleanEnvironment()
{
    // Otherwise a producer could load other producers from these directories.
    unsetenv("GENICAM_GENTL64_PATH");
    // This variable can make GLib, which many producers use, end the process at a mere warning.
    unsetenv("G_DEBUG");
}

} // namespace

void prepareForProducer()
{
    ignoreSignals();
    openStandardDescriptors();
    limitMemory();
    shareOneHeap();
    cleanEnvironment();
}
