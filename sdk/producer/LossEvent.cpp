#include "sdk/producer/LossEvent.h"

#include <cstring>

using namespace GenTL;

namespace {

constexpr std::uint64_t deviceLostId = 0x9001;
constexpr char deviceLostName[] = "9001"; // The same in hexadecimal, as consumers look for it.
constexpr char deviceLostText[] = "The connection to the camera is lost.";

std::uint64_t systemTime()
{
    using namespace std::chrono;
    return static_cast<std::uint64_t>(
        duration_cast<nanoseconds>(system_clock::now().time_since_epoch()).count());
}

GC_ERROR writeErrorData(EVENT_DATA_INFO_CMD command, const InfoOutput &output)
{
    switch (command) {
    case EVENT_DATA_ID:
        return output.writeInt32(GC_ERR_IO);
    case EVENT_DATA_VALUE:
        return output.writeString(deviceLostText);
    default:
        return failUnknownCommand(command);
    }
}

GC_ERROR writeModuleData(std::uint64_t time, EVENT_DATA_INFO_CMD command, const InfoOutput &output)
{
    switch (command) {
    case EVENT_DATA_ID:
        return output.writeString(deviceLostName);
    case EVENT_DATA_VALUE:
        return output.writeBytes(&time, sizeof time);
    case EVENT_DATA_NUMID:
        return output.writeUint64(deviceLostId);
    default:
        return failUnknownCommand(command);
    }
}

} // namespace

void LossEvent::fire()
{
    {
        const std::lock_guard lock(m_mutex);
        m_lossTime = systemTime();
        ++m_state.fired;
    }
    m_changed.notify_one();
}

GC_ERROR LossEvent::take(void *buffer, std::size_t *size, std::uint64_t milliseconds)
{
    std::unique_lock lock(m_mutex);
    if (const GC_ERROR error
        = waitForEvent(lock, m_changed, m_state, milliseconds, [this] { return m_lossTime != 0; }))
        return error;
    const GC_ERROR error = writeEventData(&m_lossTime, sizeof m_lossTime, buffer, size);
    if (!error)
        m_lossTime = 0;
    return error;
}

GC_ERROR LossEvent::dataInfo(const void *data, EVENT_DATA_INFO_CMD command, const InfoOutput &output) const
{
    std::uint64_t time = 0;
    std::memcpy(&time, data, sizeof time);
    return m_type == EVENT_ERROR ? writeErrorData(command, output) : writeModuleData(time, command, output);
}

Event::Counts LossEvent::counts() const
{
    const std::lock_guard lock(m_mutex);
    return {m_type, m_lossTime != 0 ? std::size_t(1) : 0, m_state.fired, sizeof m_lossTime,
        std::max(sizeof deviceLostText, sizeof m_lossTime)};
}

void LossEvent::discard()
{
    const std::lock_guard lock(m_mutex);
    m_lossTime = 0;
}

void LossEvent::kill()
{
    {
        const std::lock_guard lock(m_mutex);
        ++m_state.kills;
    }
    m_changed.notify_one();
}

void LossEvent::close()
{
    {
        const std::lock_guard lock(m_mutex);
        m_state.isClosed = true;
    }
    m_changed.notify_all();
}
