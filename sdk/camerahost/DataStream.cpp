#include "sdk/camerahost/DataStream.h"

#include <array>

std::optional<Problem> DataStream::open(GenTL::DEV_HANDLE device)
{
    std::uint32_t count = 0;
    auto problem = m_library.call("DevGetNumDataStreams", m_library.DevGetNumDataStreams, device, &count);
    if (!problem && count == 0)
        return Problem{"DevGetNumDataStreams", GenTL::GC_ERR_NOT_AVAILABLE, "the device has no stream"};
    if (problem && problem->code == GenTL::GC_ERR_NOT_IMPLEMENTED)
        problem->code = GenTL::GC_ERR_NOT_AVAILABLE;
    if (problem)
        return problem;

    std::array<char, 1024> id{};
    std::size_t size = id.size() - 1;
    if ((problem = m_library.call(
             "DevGetDataStreamID", m_library.DevGetDataStreamID, device, std::uint32_t(0), id.data(), &size)))
        return problem;
    GenTL::DS_HANDLE handle = nullptr;
    problem = m_library.call("DevOpenDataStream", m_library.DevOpenDataStream, device,
        static_cast<const char *>(id.data()), &handle);
    if (!problem && !handle)
        return Problem{"DevOpenDataStream", 0, "returned no handle"};
    if (!problem)
        m_handle = handle;
    return problem;
}

InfoNumber DataStream::number(GenTL::STREAM_INFO_CMD command) const
{
    if (!m_library.DSGetInfo)
        return {GenTL::GC_ERR_NOT_IMPLEMENTED, 0};
    return readNumber([&](auto *type, void *value, std::size_t *size) {
        return m_library.DSGetInfo(handle(), command, type, value, size);
    });
}

std::optional<Problem> DataStream::registerEvent()
{
    const auto attempt = [this] {
        GenTL::EVENT_HANDLE event = nullptr;
        auto problem = m_library.call(
            "GCRegisterEvent", m_library.GCRegisterEvent, handle(), GenTL::EVENT_NEW_BUFFER, &event);
        m_event = event;
        return problem;
    };
    auto problem = attempt();
    if (problem && problem->code == GenTL::GC_ERR_RESOURCE_IN_USE) {
        unregisterEvent();
        problem = attempt();
    }
    return problem;
}

void DataStream::unregisterEvent()
{
    if (m_library.GCUnregisterEvent)
        callQuietly(m_library.GCUnregisterEvent, handle(), GenTL::EVENT_NEW_BUFFER);
}

GenTL::GC_ERROR DataStream::waitForEvent(void *data, std::size_t &size, std::uint64_t timeout) const
{
    return callQuietly(m_library.EventGetData, m_event.load(), data, &size, timeout);
}

void DataStream::killEvent() const
{
    if (m_library.EventKill)
        callQuietly(m_library.EventKill, m_event.load());
}

std::optional<Problem> DataStream::startAcquisition()
{
    return m_library.call("DSStartAcquisition", m_library.DSStartAcquisition, handle(),
        GenTL::ACQ_START_FLAGS_DEFAULT, GenTL::GENTL_INFINITE);
}

std::optional<Problem> DataStream::stopAcquisition(GenTL::ACQ_STOP_FLAGS flags)
{
    return m_library.call("DSStopAcquisition", m_library.DSStopAcquisition, handle(), flags);
}

void DataStream::discardBuffers()
{
    if (!m_library.DSFlushQueue)
        return;
    const auto code = callQuietly(m_library.DSFlushQueue, handle(), GenTL::ACQ_QUEUE_ALL_DISCARD);
    if (code != GenTL::GC_ERR_SUCCESS)
        callQuietly(m_library.DSFlushQueue, handle(), GenTL::ACQ_QUEUE_OUTPUT_DISCARD);
}

bool DataStream::close()
{
    const GenTL::DS_HANDLE stream = m_handle.exchange(nullptr);
    return !stream || callQuietly(m_library.DSClose, stream) == GenTL::GC_ERR_SUCCESS;
}
