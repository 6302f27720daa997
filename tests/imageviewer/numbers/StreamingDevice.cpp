#include "tests/imageviewer/numbers/StreamingDevice.h"

using namespace CvxCPP;

MadeUpImage::MadeUpImage(
    std::uint32_t format, std::uint32_t width, std::uint32_t height, std::vector<std::uint8_t> data)
    : bytes(std::move(data))
{
    info.pixelFormat = format;
    info.width = width;
    info.height = height;
}

std::shared_ptr<MadeUpImage> numberedImage(std::uint64_t number)
{
    auto image = std::make_shared<MadeUpImage>(
        mono8Format, 4, 4, std::vector<std::uint8_t>(16, static_cast<std::uint8_t>(number)));
    image->info.frameId = number;
    return image;
}

CvxResult MadeUpStream::WaitForImage(std::chrono::milliseconds timeout, std::shared_ptr<const Image> &image)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait_for(lock, timeout, [this] { return m_isStopped || !m_images.empty(); });
    if (m_images.empty())
        return {m_isStopped ? CvxErrorClosed : CvxErrorTimeout, {}};
    image = std::move(m_images.front());
    m_images.pop_front();
    return {};
}

CvxResult MadeUpStream::GetStatistics(StreamStatistics &statistics) const
{
    const std::lock_guard lock(m_mutex);
    statistics = m_statistics;
    return {};
}

CvxResult MadeUpStream::Stop()
{
    const std::lock_guard lock(m_mutex);
    m_isStopped = true;
    m_changed.notify_all();
    return {};
}

void MadeUpStream::deliver(std::shared_ptr<const Image> image)
{
    const std::lock_guard lock(m_mutex);
    ++m_statistics.delivered;
    m_statistics.bytes += image->GetSize();
    m_images.push_back(std::move(image));
    m_changed.notify_all();
}

void MadeUpStream::setCounters(const StreamStatistics &statistics)
{
    const std::lock_guard lock(m_mutex);
    m_statistics = statistics;
}

CvxResult StreamingDevice::StartStream(
    unsigned /*buffers*/, StreamPolicy /*policy*/, std::shared_ptr<Stream> &stream)
{
    const std::lock_guard lock(m_streamMutex);
    m_stream = std::make_shared<MadeUpStream>();
    stream = m_stream;
    return {};
}

std::shared_ptr<MadeUpStream> StreamingDevice::stream() const
{
    const std::lock_guard lock(m_streamMutex);
    return m_stream;
}
