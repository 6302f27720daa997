#include "tests/kit/live/LiveImage.h"

LiveImage::LiveImage(std::uint64_t frameId, std::uint32_t width, std::uint32_t height, std::uint8_t value)
    : m_bytes(std::size_t(width) * height, value)
{
    m_info.width = width;
    m_info.height = height;
    m_info.pixelFormat = 0x01080001; // Mono8.
    m_info.frameId = frameId;
}

std::shared_ptr<const CvxCPP::Image> LiveImage::make(
    std::uint64_t frameId, std::uint32_t width, std::uint32_t height)
{
    return std::make_shared<LiveImage>(frameId, width, height, static_cast<std::uint8_t>(frameId));
}
