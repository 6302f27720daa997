#pragma once

#include "sdk/simulator/SceneNoise.h"
#include "sdk/simulator/SceneShape.h"

#include <array>
#include <cstdint>
#include <vector>

/// The test chart that the simulated cameras look at: a printed card on a table. Wide scenes show several
/// cards.
class SceneChart
{
public:
    /// What a line of pixels is sensitive to, for even and odd columns: the weights of red, green and blue.
    using LineFilter = std::array<std::array<float, 3>, 2>;

    /// Designs a chart for a picture of this size. The picture may extend beyond it by `margin` pixels.
    SceneChart(int width, int height, int margin, std::uint64_t seed);

    /// Computes the reflectance, 0 to about 1, of `count` pixels from (x, y) on.
    void paintLine(int x, int y, int count, const LineFilter &filter, float *reflectance);

private:
    struct Card
    {
        float left;
        float width;
    };
    void addCard(Card card, float height);
    void addGreyWedge(float left, float top, float width, float height);
    void addColorPatches(float left, float top, float width, float height);
    void addBarGroups(float left, float top, float width, float height);
    void addGratings(float left, float top, float width, float height);
    void addGraphPaper(const SceneShape &card, float pitch);
    void paintShape(
        const SceneShape &shape, int x, int y, int count, const LineFilter &filter, float *reflectance);

    std::uint64_t m_seed;
    int m_margin;
    SceneNoise m_grain;
    std::vector<SceneShape> m_shapes; // Later shapes lie on top of earlier ones.
    std::vector<float> m_coverage; // Of the shape that is being painted.
};
