#include "sdk/simulator/PictureSource.h"

#include "sdk/simulator/WakeCounter.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace {

constexpr std::size_t memoryLimit = 10U << 20U; // For repeated pictures, unless even two need more.
constexpr std::size_t maxPictures = 16;
constexpr std::size_t pageSize = 4096;

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
    Picture &picture = m_pictures[index];
    if (!picture) {
        picture = makePicture();
        render(frame, picture.get());
    }
    std::memcpy(buffer, picture.get(), m_imageSize);
}

/// Returns memory that is aligned as most buffers are, because the processor then copies a quarter faster.
PictureSource::Picture PictureSource::makePicture() const
{
    const std::size_t size = (m_imageSize + pageSize - 1) / pageSize * pageSize;
    Picture picture(static_cast<std::uint8_t *>(std::aligned_alloc(pageSize, size)));
    if (!picture)
        throw std::bad_alloc();
    return picture;
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
