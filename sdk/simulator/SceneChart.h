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
    /// Weights of red, green and blue, for even and odd columns.
    using LineFilter = std::array<std::array<float, 3>, 2>;
    static constexpr std::array<float, 3> brightnessWeights{0.3F, 0.59F, 0.11F};

    /// Designs a chart for a picture of this size. The picture may extend beyond it by `margin` pixels.
    SceneChart(int width, int height, int margin, std::uint64_t seed);

    /// Computes how bright `count` pixels from (x, y) on are: the share of white light that they reflect, 0
    /// to about 1.
    void paintBrightness(int x, int y, int count, float *brightness);

    /// Computes how much more, or less, light of a colour filter the pixels reflect, compared with their
    /// brightness. The filter's weights have the sum 0.
    void paintTint(int x, int y, int count, const LineFilter &filter, float *tint);

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
    using Shapes = std::vector<SceneShape>;
    void add(const SceneShape &shape);
    void addTinted(const SceneShape &shape);
    void paint(const Shapes &shapes, int x, int y, int count, const LineFilter &filter, float *reflectance);
    void paintShape(
        const SceneShape &shape, int x, int y, int count, const LineFilter &filter, float *reflectance);

    std::uint64_t m_seed;
    int m_margin;
    SceneNoise m_grain;
    Shapes m_shapes; // Later shapes lie on top of earlier ones.
    Shapes m_tintedShapes; // Shapes that are not grey, and shapes that cover them.
    std::vector<float> m_coverage; // Coverage by the shape that is being painted.
};
