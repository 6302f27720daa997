// This program opens a camera, begins temporary changes, writes NAME=VALUE and streams until it is killed.
// Arguments: the camera host, the producer, the interface, the camera, and the values.

#include "sdk/device/DeviceCore.h"
#include "sdk/device/OpenDevices.h"

#include <cstdio>
#include <cstdlib>

using namespace CvxCPP;

int main(int argc, char *argv[])
{
    if (argc < 5)
        return EXIT_FAILURE;
    DeviceOptions options;
    options.hostProgram = argv[1];
    OpenDevices devices(options);
    std::shared_ptr<Device> device;
    CvxResult result = devices.open({argv[2], argv[3], argv[4], CvxAccessControl, "Camera"}, device);
    if (result)
        result = device->BeginTemporaryChanges();
    for (int i = 5; result && i < argc; ++i) {
        const std::string assignment = argv[i];
        const std::size_t sign = assignment.find('=');
        result = device->WriteText(assignment.substr(0, sign), assignment.substr(sign + 1));
    }
    std::shared_ptr<Stream> stream;
    if (result)
        result = device->StartStream(4, StreamPolicy::NewestImage, stream);
    std::shared_ptr<const Image> image;
    while (result && (result = stream->WaitForImage(std::chrono::seconds(30), image))) {
        std::puts("image");
        std::fflush(stdout);
    }
    std::puts(result.text.c_str());
    return EXIT_FAILURE;
}
