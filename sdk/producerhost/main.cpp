#include "sdk/producerhost/HostServer.h"
#include "sdk/producerhost/Leave.h"
#include "sdk/producerhost/ParentWatch.h"
#include "sdk/producerhost/UncaughtException.h"
#include "sdk/protocol/HostContract.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

constexpr int UsageError = 64;

/// A driver that allocates without end must not take the machine with it. Counted in address space, which
/// also stops one that only reserves; no driver for a list of cameras needs as much.
void limitMemory()
{
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // They map terabytes.
    rlimit limit{};
    constexpr rlim_t MostBytes = rlim_t(8) << 30;
    if (getrlimit(RLIMIT_AS, &limit) == 0 && limit.rlim_cur > MostBytes) {
        limit.rlim_cur = MostBytes;
        setrlimit(RLIMIT_AS, &limit);
    }
#endif
}

/// Interfaces are searched on threads that come and go. With a heap for each, every one of them is cut to
/// pieces in time: after 10,000 changes a host of 500 KiB takes 370 KiB more, and with one heap 90.
void shareOneHeap()
{
    mallopt(M_ARENA_MAX, 1);
}

/// A program that was started without them hands down none; then what is printed would go into a file of the
/// driver's.
void openStandardDescriptors()
{
    int descriptor = 0;
    while ((descriptor = open("/dev/null", O_RDWR)) >= 0 && descriptor <= STDERR_FILENO) { }
    close(descriptor);
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2 || fcntl(hostSocketDescriptor, F_SETFD, FD_CLOEXEC) != 0) {
        std::fputs("CvxProducerHost is started by libCvxCPP.so and by nothing else.\n", stderr);
        return UsageError;
    }
    if (!dieWithParent(hostSocketDescriptor))
        return EXIT_FAILURE;
    std::signal(SIGPIPE, SIG_IGN); // Drivers print, and nobody may be left to read it.
    std::signal(SIGTTOU, SIG_IGN); // On a terminal they are in the background,
    std::signal(SIGTTIN, SIG_IGN); // and one that is stopped would be taken for hanging.
    openStandardDescriptors();
    limitMemory();
    shareOneHeap();
    unsetenv("GENICAM_GENTL64_PATH"); // A producer may load other producers that it finds through it.
    unsetenv(
        "G_DEBUG"); // It makes GLib, which many a producer is built on, end the process at a mere warning.
    answerUncaughtExceptions(hostSocketDescriptor);
    leave(HostServer(hostSocketDescriptor).run(argv[1]));
}
