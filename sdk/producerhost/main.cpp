#include "sdk/hosting/ParentWatch.h"
#include "sdk/hosting/ProcessExit.h"
#include "sdk/hosting/ProcessSetup.h"
#include "sdk/hosting/UncaughtException.h"
#include "sdk/producerhost/HostServer.h"
#include "sdk/protocol/HostContract.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>

namespace {

constexpr int usageErrorStatus = 64;

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2 || fcntl(hostSocketDescriptor, F_SETFD, FD_CLOEXEC) != 0) {
        std::fputs("CvxProducerHost is started by libCvxCPP.so and by nothing else.\n", stderr);
        return usageErrorStatus;
    }
    if (!dieWithParent(hostSocketDescriptor))
        return EXIT_FAILURE;
    prepareForProducer();
    reportUncaughtExceptions(hostSocketDescriptor);
    exitWithoutDestructors(HostServer(hostSocketDescriptor).run(argv[1]));
}
