#include "sdk/camerahost/DeviceMonitor.h"

#include "sdk/camerahost/InfoNumber.h"

#include <array>
#include <utility>

void DeviceMonitor::registerEvents()
{
    m_wasWritable = !m_device.isReadOnly() && isWritable();
    registerEvents(m_device.device());
    registerEvents(m_device.interface());
}

void DeviceMonitor::start(TimePoint now)
{
    // Any feature will do whose value is in a register of the camera.
    for (const char *feature : {"DeviceTemperature", "Width", "PayloadSize", "TLParamsLocked"}) {
        const std::uint64_t before = m_port.successes();
        const auto value = m_nodes.read(feature);
        if (std::holds_alternative<CvxCPP::NodeValue>(value) && m_port.successes() > before) {
            m_feature = feature;
            break;
        }
    }
    m_hasStartRegister = m_feature.empty() && readSomething();
    m_detector.start(now);
}

/// Most producers do not offer these events.
void DeviceMonitor::registerEvents(GenTL::EVENTSRC_HANDLE source)
{
    const DeviceLibrary &library = m_device.library();
    if (!library.GCRegisterEvent || !library.EventGetData)
        return;
    for (const GenTL::EVENT_TYPE type : {GenTL::EVENT_MODULE, GenTL::EVENT_ERROR}) {
        GenTL::EVENT_HANDLE event = nullptr;
        const auto code = callQuietly(library.GCRegisterEvent, source, type, &event);
        if (code == GenTL::GC_ERR_SUCCESS && event)
            m_events.push_back(event);
    }
}

std::optional<std::string> DeviceMonitor::tick(TimePoint now, CameraStream &stream)
{
    const std::uint64_t delivered = stream.delivered();
    if (std::exchange(m_delivered, delivered) != delivered)
        m_detector.noteSuccess(now);
    const FetchLoop::Health health = stream.takeHealth();
    if (health == FetchLoop::Health::Broken)
        return "The producer cannot continue the stream.";
    if (takeEvents() || health == FetchLoop::Health::Suspicious)
        m_detector.noteSuspicion(now);
    if (!m_detector.isCheckDue(now))
        return std::nullopt;
    if (hasFailed())
        m_detector.noteFailure(now);
    else
        m_detector.noteSuccess(now);
    if (m_detector.isLost())
        return "The camera does not answer any more.";
    return std::nullopt;
}

/// Removes the events that have arrived. Returns true if there are any, whatever they mean.
bool DeviceMonitor::takeEvents()
{
    bool isAny = false;
    for (const GenTL::EVENT_HANDLE event : m_events) {
        std::array<std::uint8_t, 4096> data;
        std::size_t size = data.size();
        const auto code = callQuietly(m_device.library().EventGetData, event,
            static_cast<void *>(data.data()), &size, std::uint64_t(0));
        isAny = isAny || code == GenTL::GC_ERR_SUCCESS;
    }
    return isAny;
}

bool DeviceMonitor::hasFailed()
{
    if (m_feature.empty() && !m_hasStartRegister)
        return hasLostAccess(); // There is nothing that could be read.
    const std::uint64_t before = m_port.lossFailures();
    readSomething();
    return m_port.lossFailures() > before || hasLostAccess();
}

/// Reads the feature or the register that shows whether the camera answers.
bool DeviceMonitor::readSomething()
{
    if (!m_feature.empty())
        return std::holds_alternative<CvxCPP::NodeValue>(m_nodes.read(m_feature));
    std::array<std::uint8_t, 4> bytes{};
    return !m_port.read(0, bytes.data(), bytes.size());
}

bool DeviceMonitor::hasLostAccess() const
{
    return m_wasWritable && !isWritable();
}

/// Returns true if the producer reports that this process may write, or reports a status of its own.
bool DeviceMonitor::isWritable() const
{
    const DeviceLibrary &library = m_device.library();
    if (!library.DevGetInfo)
        return true;
    const InfoNumber status = readNumber([&](auto *type, void *value, std::size_t *size) {
        return library.DevGetInfo(m_device.device(), GenTL::DEVICE_INFO_ACCESS_STATUS, type, value, size);
    });
    return !status.isKnown() || status.value == GenTL::DEVICE_ACCESS_STATUS_READWRITE
        || status.value == GenTL::DEVICE_ACCESS_STATUS_OPEN_READWRITE
        || status.value >= GenTL::DEVICE_ACCESS_STATUS_CUSTOM_ID;
}
