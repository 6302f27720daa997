#include "tests/kit/live/StreamingDevice.h"

using CvxCPP::CvxResult;

void StreamingDevice::failNextStart(const CvxResult &result)
{
    const std::lock_guard lock(m_mutex);
    m_startFailure = result;
}

void StreamingDevice::hangOnClose()
{
    const std::lock_guard lock(m_mutex);
    m_hangsOnClose = true;
}

std::shared_ptr<ScriptedStream> StreamingDevice::stream() const
{
    const std::lock_guard lock(m_mutex);
    return m_stream.lock();
}

void StreamingDevice::note(const std::string &text)
{
    const std::lock_guard lock(m_mutex);
    m_record += (m_record.empty() ? "" : ", ") + text;
}

std::string StreamingDevice::record() const
{
    const std::lock_guard lock(m_mutex);
    return m_record;
}

CvxResult StreamingDevice::StartStream(
    unsigned buffers, CvxCPP::StreamPolicy policy, std::shared_ptr<CvxCPP::Stream> &stream)
{
    note("start " + std::to_string(buffers));
    const std::lock_guard lock(m_mutex);
    if (!m_startFailure)
        return std::exchange(m_startFailure, {});
    if (policy != CvxCPP::StreamPolicy::EveryImage)
        return {CvxCPP::CvxErrorInvalidParameter, "Images would be skipped."};
    const auto started = std::make_shared<ScriptedStream>([this] { note("stop"); });
    m_stream = started;
    stream = started;
    return {};
}

CvxResult StreamingDevice::Close()
{
    std::shared_ptr<ScriptedStream> ending = stream();
    {
        const std::lock_guard lock(m_mutex);
        if (m_hangsOnClose)
            ending.reset();
    }
    if (ending)
        ending->end({CvxCPP::CvxErrorClosed, "The device is closed."});
    return TestDevice::Close();
}
