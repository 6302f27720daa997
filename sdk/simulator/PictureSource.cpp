#include "sdk/simulator/PictureSource.h"

#include "sdk/simulator/WakeCounter.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::size_t memoryLimit = 10U << 20U; // For repeated pictures, unless even two need more.
constexpr std::size_t maxPictures = 16;

} // namespace

void PictureSource::update(const RenderSettings &settings)
{
    m_settings = settings;
    m_imageSize = ::imageSize(settings);
    m_pictureCount
        = std::clamp(memoryLimit / std::max<std::size_t>(m_imageSize, 1), std::size_t{2}, maxPictures);
    m_pictures.clear();
}

void PictureSource::fill(std::uint64_t frame, std::int64_t period, std::uint8_t *buffer)
{
    const bool isInTime = m_renderTime < period * 3 / 4;
    if (isInTime || m_settings.testPattern == TestPattern::FrameCounter)
        return render(frame, buffer);
    const std::size_t index = frame % m_pictureCount;
    if (m_pictures.size() < m_pictureCount)
        m_pictures.resize(m_pictureCount);
    std::vector<std::uint8_t> &picture = m_pictures[index];
    if (picture.empty()) {
        picture.resize(m_imageSize);
        render(frame, picture.data());
    }
    std::memcpy(buffer, picture.data(), m_imageSize);
}

void PictureSource::render(std::uint64_t frame, std::uint8_t *buffer)
{
    const std::int64_t start = monotonicNow();
    m_settings.frameNumber = frame;
    m_settings.linePosition
        = static_cast<double>(frame) * static_cast<double>(m_settings.height) * m_settings.lineStep;
    m_renderer.render(m_settings, buffer);
    m_renderTime = monotonicNow() - start;
}
