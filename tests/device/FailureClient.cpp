// This program opens the camera A1 and streams until it is killed. Arguments: the camera host, the producer.

#include "sdk/device/DeviceCore.h"
#include "sdk/device/OpenDevices.h"

#include <cstdio>
#include <cstdlib>

using namespace CvxCPP;

int main(int argc, char *argv[])
{
    if (argc != 3)
        return EXIT_FAILURE;
    DeviceOptions options;
    options.hostProgram = argv[1];
    OpenDevices devices(options);
    std::shared_ptr<Device> device;
    std::shared_ptr<Stream> stream;
    CvxResult result = devices.open({argv[2], "net0", "A1", CvxAccessControl, "Camera"}, device);
    if (result)
        result = device->StartStream(4, StreamPolicy::EveryImage, stream);
    std::shared_ptr<const Image> image;
    while (result && (result = stream->WaitForImage(std::chrono::seconds(30), image))) {
        std::puts("image");
        std::fflush(stdout);
    }
    std::puts(result.text.c_str());
    return EXIT_FAILURE;
}
