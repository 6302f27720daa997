// Prints the number of cameras that the SDK of this program's installation finds, and the milliseconds from
// the start of the SDK until its camera list is complete and until the launcher's records are complete.

#include "camera/CorvixCameraProvider.h"

#include "CvxCPP/CvxCPP.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

} // namespace

int main()
{
    const auto start = Clock::now();
    CvxCPP::CvxSystem &system = CvxCPP::CvxSystem::GetInstance();
    unsigned count = 0;
    if (system.Startup() != CvxCPP::CvxErrorSuccess
        || system.GetCameras(nullptr, count) != CvxCPP::CvxErrorSuccess)
        return EXIT_FAILURE;
    const double list = millisecondsSince(start);
    const QVector<CameraInfo> cameras
        = CorvixCameraProvider().listCameras(); // Does not start another search.
    std::printf("%d %.3f %.3f\n", cameras.size(), list, millisecondsSince(start));
    system.Shutdown();
}
