#include "tests/kit/measure/linescan/RolledPicture.h"

#include "tests/simulator/RenderedPicture.h"

RolledPicture rolled(int width, int height, double linesPerRow, double jitter, std::uint32_t pixelFormat)
{
    SensorModel model;
    model.width = width;
    model.height = 1;
    model.isLineScan = true;
    model.shading = 0.3;
    RenderSettings settings = wholeSensor(model, pixelFormat);
    settings.height = height;
    settings.lineStep = 1 / linesPerRow;
    settings.lineJitter = jitter;
    settings.exposureTime = 4000;
    SceneRenderer renderer(model);
    RolledPicture picture{renderBytes(renderer, settings), {}};
    picture.raw = {picture.bytes.data(), picture.bytes.size(), static_cast<std::uint32_t>(width),
        static_cast<std::uint32_t>(height), 0, pixelFormat, false};
    return picture;
}
