#include "tools/kit/measure/LineSampler.h"

#include "sdk/image/RawValues.h"
#include "tools/kit/measure/ComponentMap.h"

#include <algorithm>
#include <cmath>

namespace {

std::uint32_t nearestPixel(double coordinate)
{
    return static_cast<std::uint32_t>(std::lround(coordinate));
}

} // namespace

LineProfile sampleLine(const RawImage &picture, const MeasuredLine &line)
{
    if (picture.width == 0 || picture.height == 0)
        return {};
    const PixelLayout &layout = findPixelLayout(picture.pixelFormat);
    const ComponentMap map(layout);
    const std::uint32_t lines = completeLines(picture, layout);
    const double x1 = std::min(line.x1, picture.width - 1);
    const double y1 = std::min(line.y1, picture.height - 1);
    const double x2 = std::min(line.x2, picture.width - 1);
    const double y2 = std::min(line.y2, picture.height - 1);
    const double length = std::hypot(x2 - x1, y2 - y1);
    const double stepX = length > 0 ? (x2 - x1) / length : 0;
    const double stepY = length > 0 ? (y2 - y1) / length : 0;

    std::vector<LineProfile::Curve> curves(map.count());
    for (unsigned i = 0; i < map.count(); ++i)
        curves[i].component = map.component(i);
    for (double position = 0; position <= length; ++position) {
        const std::uint32_t x = nearestPixel(x1 + position * stepX);
        const std::uint32_t y = nearestPixel(y1 + position * stepY);
        if (y >= lines)
            continue;
        const RawValues pixel = rawValues(picture, x, y);
        for (unsigned i = 0; i < pixel.count; ++i) {
            if (!std::isfinite(pixel.values[i]))
                continue;
            LineProfile::Curve &curve
                = curves[map.componentOf(y, std::size_t(x) * map.samplesPerPixel() + i)];
            curve.positions.push_back(position);
            curve.values.push_back(pixel.values[i]);
        }
    }
    curves.erase(std::remove_if(curves.begin(), curves.end(),
                     [](const LineProfile::Curve &curve) { return curve.values.empty(); }),
        curves.end());
    return {std::move(curves)};
}
