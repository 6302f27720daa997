#pragma once

#include "sdk/simulator/SceneRenderer.h"

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

/// Fills buffers with the pictures of one camera. A picture is rendered if there is time for it; otherwise
/// some rendered pictures are repeated in turn, which takes little longer than copying.
class PictureSource
{
public:
    explicit PictureSource(const SensorModel &model) : m_renderer(model) { }

    /// Sets how the next pictures look.
    void update(const RenderSettings &settings);
    void setTemperature(double temperature) { m_settings.temperature = temperature; }

    /// Fills a buffer with the picture of one frame.
    /// @param period Time from one image to the next one in nanoseconds.
    void fill(std::uint64_t frame, std::int64_t period, std::uint8_t *buffer);

    std::size_t imageSize() const { return m_imageSize; }

private:
    struct Release
    {
        void operator()(std::uint8_t *bytes) const { std::free(bytes); }
    };
    using Picture = std::unique_ptr<std::uint8_t, Release>;

    Picture makePicture() const;
    void render(std::uint64_t frame, std::uint8_t *buffer);

    SceneRenderer m_renderer;
    RenderSettings m_settings;
    std::size_t m_imageSize = 0;
    std::int64_t m_renderTime = 0; // Time that rendering the last picture took, in nanoseconds.
    std::vector<Picture> m_pictures;
    std::size_t m_pictureCount = 0; // How many pictures are repeated.
};
