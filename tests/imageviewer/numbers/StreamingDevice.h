#pragma once

#include "tests/kit/camera/OpenableCamera.h"
#include "tests/kit/camera/TestDevice.h"

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <vector>

/// An image in memory.
class MadeUpImage final : public CvxCPP::Image
{
public:
    MadeUpImage(
        std::uint32_t format, std::uint32_t width, std::uint32_t height, std::vector<std::uint8_t> data);

    const std::uint8_t *GetData() const override { return bytes.data(); }
    std::size_t GetSize() const override { return bytes.size(); }
    const CvxCPP::ImageInfo &GetInfo() const override { return info; }
    std::vector<CvxCPP::ChunkValue> GetChunks() const override { return {}; }

    CvxCPP::ImageInfo info;
    const std::vector<std::uint8_t> bytes;
};

constexpr std::uint32_t mono8Format = 0x01080001;
constexpr std::uint32_t mono16Format = 0x01100007;
constexpr std::uint32_t rgb8Format = 0x02180014;

/// Returns a grey image of 4 x 4 pixels, all with the value of the number, whose frame ID is the number.
std::shared_ptr<MadeUpImage> numberedImage(std::uint64_t number);

/// A stream to which the test gives images and counters.
class MadeUpStream final : public CvxCPP::Stream
{
public:
    CvxCPP::CvxResult WaitForImage(
        std::chrono::milliseconds timeout, std::shared_ptr<const CvxCPP::Image> &image) override;
    CvxCPP::CvxResult GetStatistics(CvxCPP::StreamStatistics &statistics) const override;
    CvxCPP::CvxResult Stop() override;

    /// The image counts as delivered.
    void deliver(std::shared_ptr<const CvxCPP::Image> image);
    void setCounters(const CvxCPP::StreamStatistics &statistics);

private:
    mutable std::mutex m_mutex; // Protects the following members.
    std::condition_variable m_changed;
    std::deque<std::shared_ptr<const CvxCPP::Image>> m_images;
    CvxCPP::StreamStatistics m_statistics;
    bool m_isStopped = false;
};

/// A scripted device that streams what the test delivers.
class StreamingDevice final : public TestDevice
{
public:
    CvxCPP::CvxResult StartStream(
        unsigned buffers, CvxCPP::StreamPolicy policy, std::shared_ptr<CvxCPP::Stream> &stream) override;

    /// Returns the stream that was started last.
    std::shared_ptr<MadeUpStream> stream() const;

private:
    mutable std::mutex m_streamMutex; // Protects the following member.
    std::shared_ptr<MadeUpStream> m_stream;
};
