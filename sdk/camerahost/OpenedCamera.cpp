#include "sdk/camerahost/OpenedCamera.h"

#include "sdk/camerahost/MissingNodeMap.h"
#include "sdk/camerahost/RegisterDescription.h"
#include "sdk/camerahost/Worker.h"

#include "CvxCPP/CvxCPP.h"

#include <array>
#include <utility>

namespace {

/// For stopping the stream, so that there is time left to close the device if that call hangs too.
constexpr OpenedCamera::Milliseconds abandonTimeout(200);

} // namespace

OpenedCamera::OpenedCamera() : m_nodes(std::make_unique<MissingNodeMap>("The camera is not open.")) { }

std::optional<OpenedCamera::Failure> OpenedCamera::open(
    const std::string &producerFile, const OpenDeviceRequest &request)
{
    if (auto failure = m_device.open(producerFile, request))
        return failure;
    m_port = std::make_unique<ProducerPort>(m_device.library(), m_device.port());
    if (auto failure = createNodes(producerFile))
        return failure;
    m_isWatching = request.access == CvxCPP::CvxAccessWatch || m_device.isReadOnly();
    m_nodes->setWatching(m_isWatching);
    m_ownedStream = std::make_unique<CameraStream>(m_device.library(), m_device.device(), *m_nodes,
        m_isWatching ? StreamRole::Watcher : StreamRole::Controller);
    m_monitor.emplace(m_device, *m_port, *m_nodes);
    m_monitor->registerEvents();
    return std::nullopt;
}

void OpenedCamera::startMonitor()
{
    m_monitor->start(DeviceMonitor::TimePoint::clock::now());
    m_stream = m_ownedStream.get();
}

/// Builds the node map. A camera without one has no features, but is opened nevertheless if it can stream.
std::optional<OpenedCamera::Failure> OpenedCamera::createNodes(const std::string &producerFile)
{
    auto fetched = fetchRegisterDescription(m_device.library(), m_device.port(), producerFile);
    if (const auto *const failure = std::get_if<Failure>(&fetched))
        return doWithoutNodes(*failure);
    auto created = NodeMap::create(*m_port, std::get<std::string>(fetched));
    if (const auto *const failure = std::get_if<Failure>(&created))
        return doWithoutNodes(*failure);
    m_nodes = std::get<std::unique_ptr<NodeMap>>(std::move(created));
    return std::nullopt;
}

/// Returns the failure if the camera is useless without features.
std::optional<OpenedCamera::Failure> OpenedCamera::doWithoutNodes(const Failure &failure)
{
    std::array<std::uint8_t, 4> bytes{};
    m_port->read(0, bytes.data(), bytes.size());
    const bool isAnswering = m_port->lossFailures() == 0;
    DataStream stream(m_device.library());
    if (!isAnswering || m_device.library().checkStreamFunctions() || stream.open(m_device.device()))
        return failure;
    const bool definesSize = stream.number(GenTL::STREAM_INFO_DEFINES_PAYLOADSIZE).valueOr(0) != 0;
    stream.close();
    if (!definesSize)
        return failure;
    m_nodes = std::make_unique<MissingNodeMap>(failure.text);
    return std::nullopt;
}

std::optional<std::string> OpenedCamera::tick(DeviceMonitor::TimePoint now)
{
    if (auto reason = m_monitor->tick(now, *m_stream))
        return reason;
    return m_ownedStream->findFormatChange();
}

std::optional<OpenedCamera::Failure> OpenedCamera::write(
    const std::string &name, const CvxCPP::NodeValue &value, std::vector<SelectedValue> &remembered)
{
    auto original = m_remembersWrites ? m_originals.findNew(*m_nodes, name) : std::nullopt;
    if (original) { // Before the write: one whose acknowledgement is lost may have changed the value.
        remembered.push_back(*original);
        m_originals.remember(std::move(*original));
    }
    return m_nodes->write(name, value);
}

std::optional<OpenedCamera::Failure> OpenedCamera::beginTemporaryChanges(
    const BeginTemporaryChangesRequest &request)
{
    if (m_isWatching)
        return Failure{DeviceFailure::NotWritable, "The camera was opened only to watch it."};
    for (const SelectedValue &value : request.remembered)
        m_originals.remember(value);
    m_remembersWrites = request.remembersWrites;
    return std::nullopt;
}

OriginalValues::PutBack OpenedCamera::endTemporaryChanges(const EndTemporaryChangesRequest &request)
{
    constexpr std::chrono::seconds writeTime(4); // The library waits for 5 s.
    m_remembersWrites = false;
    if (request.putsBack)
        return m_originals.putBack(*m_nodes, OriginalValues::Clock::now() + writeTime);
    m_originals.forget();
    return {};
}

void OpenedCamera::putBackWithin(Milliseconds limit, Milliseconds stopTimeout)
{
    if (m_originals.isEmpty() || m_isClosed)
        return;
    const auto deadline = OriginalValues::Clock::now() + limit;
    if (m_ownedStream && !m_ownedStream->isStuck())
        m_ownedStream->stop(stopTimeout);
    m_isStuck = !callWithin(limit, [this, deadline] { m_originals.putBack(*m_nodes, deadline); });
}

void OpenedCamera::close(Milliseconds timeout)
{
    if (std::exchange(m_isClosed, true))
        return;
    if (m_ownedStream && !m_ownedStream->isStuck() && !m_isStuck)
        m_ownedStream->stop(timeout);
    const bool isStuck = m_isStuck || (m_ownedStream && m_ownedStream->isStuck());
    callWithin(timeout, [this, isStuck] { isStuck ? m_device.abandon() : m_device.close(); });
}

void OpenedCamera::abandon()
{
    if (CameraStream *const stream = m_stream)
        callWithin(abandonTimeout, [stream] { stream->abandon(); });
    m_device.abandon();
}
