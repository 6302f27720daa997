// Saves one image of the first camera, whose pixel format has 8 bits, as the grey image image.pgm.

#include <CvxCPP/Device.h>

#include <fstream>
#include <iostream>

using namespace CvxCPP;

int main()
{
    CvxSystem &system = CvxSystem::GetInstance();
    std::shared_ptr<Camera> camera;
    unsigned count = 0;
    if (system.Startup() || system.GetCameras(nullptr, count) || system.GetCameras(&camera, count = 1)
        || count == 0) {
        std::cerr << "There is no camera.\n";
        return 1;
    }
    std::shared_ptr<Device> device;
    std::shared_ptr<Stream> stream;
    std::shared_ptr<const Image> image;
    CvxResult result = camera->Open(CvxAccessControl, device);
    if (result)
        result = device->StartStream(3, StreamPolicy::NewestImage, stream);
    if (result)
        result = stream->WaitForImage(std::chrono::seconds(5), image);
    if (!result) {
        std::cerr << result.text << '\n';
        return 1;
    }
    std::ofstream file("image.pgm", std::ios::binary);
    file << "P5\n" << image->GetInfo().width << ' ' << image->GetInfo().height << "\n255\n";
    file.write(
        reinterpret_cast<const char *>(image->GetData()), static_cast<std::streamsize>(image->GetSize()));
    return file.flush() ? 0 : 1;
}
