#include "sdk/device/StreamObject.h"

#include "sdk/protocol/StreamRing.h"

#include <utility>

using namespace CvxCPP;

CvxResult StreamObject::start(const std::shared_ptr<DeviceCore> &device, unsigned buffers,
    StreamPolicy policy, std::shared_ptr<Stream> &stream)
{
    constexpr unsigned minBuffers = 2;
    if (buffers < minBuffers || buffers > StreamRing::maxBuffers)
        return device->results.result(CvxErrorInvalidParameter,
            "The stream cannot be started with " + std::to_string(buffers) + " buffers; 2 to "
                + std::to_string(StreamRing::maxBuffers) + " are possible.");
    auto started = device->startStream(buffers, policy);
    if (auto *failed = std::get_if<CvxResult>(&started))
        return std::move(*failed);
    stream
        = std::make_shared<StreamObject>(device, std::get<std::shared_ptr<StreamCore>>(std::move(started)));
    return {};
}

StreamObject::StreamObject(std::shared_ptr<DeviceCore> device, std::shared_ptr<StreamCore> stream)
    : m_device(std::move(device)), m_stream(std::move(stream))
{ }

StreamObject::~StreamObject()
{
    if (m_device->isForked())
        new std::shared_ptr<DeviceCore>(m_device); // See isForked().
    else
        static_cast<void>(Stop());
}

CvxResult StreamObject::WaitForImage(std::chrono::milliseconds timeout, std::shared_ptr<const Image> &image)
{
    return m_device->results.guarded([&] { return m_stream->waitForImage(timeout, image); });
}

CvxResult StreamObject::GetStatistics(StreamStatistics &statistics) const
{
    statistics = m_stream->statistics();
    return {};
}

CvxResult StreamObject::Stop()
{
    return m_device->results.guarded([&] { return m_device->stopStream(m_stream); });
}
