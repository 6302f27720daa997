#include "tools/kit/measure/run/StreamFrames.h"

#include <utility>

StreamFrames::StreamFrames(CvxCPP::Stream &stream) : m_stream(stream) { }

CvxCPP::CvxResult StreamFrames::next(
    std::chrono::milliseconds timeout, std::shared_ptr<const CvxCPP::Image> &image)
{
    if (!m_failure)
        return std::exchange(m_failure, {});
    return m_stream.WaitForImage(timeout, image);
}

void StreamFrames::discard()
{
    constexpr int maxImages = 10000; // A camera that is faster than this loop must not stop the program.
    CvxCPP::CvxResult result;
    for (int count = 0; result && count < maxImages; ++count) {
        std::shared_ptr<const CvxCPP::Image> image;
        result = m_stream.WaitForImage(std::chrono::milliseconds(0), image);
    }
    if (!result && result.code != CvxCPP::CvxErrorTimeout)
        m_failure = std::move(result);
}
