#pragma once

#include "CvxCPP/Device.h"
#include "sdk/device/DeviceCore.h"

#include <memory>

/// The API object for one stream.
class StreamObject final : public CvxCPP::Stream
{
public:
    /// Checks the arguments and starts a stream; see CvxCPP::Device::StartStream().
    static CvxCPP::CvxResult start(const std::shared_ptr<DeviceCore> &device, unsigned buffers,
        CvxCPP::StreamPolicy policy, std::shared_ptr<CvxCPP::Stream> &stream);

    StreamObject(std::shared_ptr<DeviceCore> device, std::shared_ptr<StreamCore> stream);
    ~StreamObject() override; ///< Stops the stream.
    StreamObject(const StreamObject &) = delete;
    StreamObject &operator=(const StreamObject &) = delete;

    CvxCPP::CvxResult WaitForImage(
        std::chrono::milliseconds timeout, std::shared_ptr<const CvxCPP::Image> &image) override;
    CvxCPP::CvxResult GetStatistics(CvxCPP::StreamStatistics &statistics) const override;
    CvxCPP::CvxResult Stop() override;

private:
    const std::shared_ptr<DeviceCore> m_device;
    const std::shared_ptr<StreamCore> m_stream;
};
