#include "tests/gige/camera/FakeCameras.h"

#include <cstdio>
#include <cstdlib>
#include <exception>

int main(int count, char *arguments[])
{
    const auto options = parseOptions(count, arguments);
    if (!options) {
        std::fputs(usage, stderr);
        return 2;
    }
    try {
        FakeCameras cameras(*options);
        std::puts("ready");
        std::fflush(stdout);
        cameras.run();
    } catch (const std::exception &error) {
        std::fprintf(stderr, "fake_gige_cameras: %s\n", error.what());
        return EXIT_FAILURE;
    }
}
