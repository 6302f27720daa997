#include "sdk/camerahost/CameraHostServer.h"
#include "sdk/hosting/ProcessExit.h"
#include "sdk/hosting/ProcessSetup.h"
#include "sdk/hosting/UncaughtException.h"
#include "sdk/protocol/HostContract.h"

#include <cstdio>
#include <fcntl.h>

namespace {

constexpr int usageErrorStatus = 64;

} // namespace

// Unlike a producer host, this process is not killed when the library's process ends: the camera has to be
// closed first, or it would stay locked for other programs. SocketWatch bounds the time that this takes.
int main(int argc, char *argv[])
{
    if (argc != 2 || fcntl(hostSocketDescriptor, F_SETFD, FD_CLOEXEC) != 0) {
        std::fputs("CvxCameraHost is started by libCvxCPP.so and by nothing else.\n", stderr);
        return usageErrorStatus;
    }
    prepareForProducer();
    reportUncaughtExceptions(hostSocketDescriptor);
    exitWithoutDestructors(CameraHostServer(hostSocketDescriptor, argv[1]).run());
}
