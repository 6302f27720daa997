#include "sdk/simulator/SceneDemosaic.h"

#include <utility>

void demosaicLine(
    const float *above, const float *line, const float *below, int width, bool isRedLine, float *rgb)
{
    for (int x = 0; x < width; ++x, rgb += 3) {
        const float horizontal = (line[x - 1] + line[x + 1]) / 2;
        const float vertical = (above[x] + below[x]) / 2;
        const bool isGreen = (x % 2 == 0) != isRedLine;
        if (isGreen) {
            rgb[0] = isRedLine ? horizontal : vertical;
            rgb[1] = line[x];
            rgb[2] = isRedLine ? vertical : horizontal;
            continue;
        }
        const float diagonal = (above[x - 1] + above[x + 1] + below[x - 1] + below[x + 1]) / 4;
        rgb[0] = isRedLine ? line[x] : diagonal;
        rgb[1] = (horizontal + vertical) / 2;
        rgb[2] = isRedLine ? diagonal : line[x];
    }
}
