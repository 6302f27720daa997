#include "sdk/camerahost/CameraHostServer.h"

#include "sdk/protocol/HostContract.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <poll.h>
#include <utility>
#include <variant>

namespace {

using Milliseconds = OpenedCamera::Milliseconds;

constexpr Milliseconds tickInterval(200); // Between two looks at events and the stream.

// For each call of the producer.
constexpr Milliseconds stopTimeout(500);
constexpr Milliseconds closeTimeout(150); // All of them have to fit into the time that SocketWatch grants.

constexpr Milliseconds putBackLimit(3000); // For all calls that put values back.

constexpr const char *streamLock = "TLParamsLocked"; // Locks the nodes that must not change during a stream.

} // namespace

CameraHostServer::CameraHostServer(int socket, std::string producerFile)
    : m_channel(socket),
      m_producerFile(std::move(producerFile)),
      m_watch(socket, [this] { m_camera.abandon(); })
{
    m_channel.acceptDescriptors();
}

int CameraHostServer::run()
{
    std::string line;
    while (!m_isFinished && (m_connection = waitForRequest(line)) == LineChannel::Status::Line)
        serve(line);
    m_watch.noteShutdown();
    if (!m_isLost)
        m_camera.putBackWithin(putBackLimit, closeTimeout);
    m_camera.close(closeTimeout);
    return m_connection == LineChannel::Status::Lost ? connectionLostStatus : EXIT_SUCCESS;
}

LineChannel::Status CameraHostServer::waitForRequest(std::string &line)
{
    for (;;) {
        const auto status = m_channel.tryReadLine(line);
        watchCamera();
        if (status != LineChannel::Status::Pending)
            return status;
        const bool isWatching = m_camera.isOpen() && !m_isLost;
        const auto timeout
            = std::chrono::ceil<Milliseconds>(std::max(m_nextTick - Clock::now(), Clock::duration(0)));
        pollfd end{m_channel.descriptor(), POLLIN, 0};
        poll(&end, 1, isWatching ? static_cast<int>(timeout.count()) : -1);
    }
}

void CameraHostServer::watchCamera()
{
    if (!m_camera.isOpen() || m_isLost || Clock::now() < m_nextTick)
        return;
    std::optional<std::string> reason;
    {
        const CallWatch::Call call(m_watch.calls());
        reason = m_camera.tick(Clock::now());
    }
    if (reason)
        reportLoss(*reason);
    m_nextTick = Clock::now() + tickInterval;
}

void CameraHostServer::reportLoss(const std::string &reason)
{
    if (!std::exchange(m_isLost, true))
        notify(DeviceLostNotice{reason});
}

void CameraHostServer::serve(const std::string &line)
{
    const auto message = Message::fromLine(line);
    const bool isServed = message
        && (tryServe<ReadStatesRequest>(*message) || tryServe<ReadValueRequest>(*message)
            || tryServe<WriteValueRequest>(*message) || tryServe<OpenDeviceRequest>(*message)
            || tryServe<PrepareStreamRequest>(*message) || tryServe<StartStreamRequest>(*message)
            || tryServe<BeginTemporaryChangesRequest>(*message)
            || tryServe<EndTemporaryChangesRequest>(*message) || tryServe<StopStreamRequest>(*message)
            || tryServe<CloseDeviceRequest>(*message));
    if (!isServed) // This does not happen, because library and host are installed together.
        m_isFinished = true;
}

template <typename Request>
bool CameraHostServer::tryServe(const Message &message)
{
    const auto request = message.content<Request>();
    if (!request)
        return false;
    m_request = message.id();
    handle(*request);
    return true;
}

void CameraHostServer::handle(const OpenDeviceRequest &request)
{
    if (const auto failure = m_camera.open(m_producerFile, request)) {
        m_isFinished = true;
        return fail(*failure);
    }
    // The list of the nodes can be long. While it is written and read, another thread prepares the first
    // access to a value, for which the monitor waits.
    reply(DeviceOpenedReply{m_camera.nodes().nodes()});
    const CallWatch::Call call(m_watch.calls());
    m_camera.startMonitor();
}

void CameraHostServer::handle(const ReadStatesRequest &request)
{
    NodeStatesReply states;
    for (const std::string &name : request.names) {
        auto state = m_camera.nodes().state(name);
        if (auto *const known = std::get_if<CvxCPP::NodeState>(&state)) {
            states.states.push_back(std::move(*known));
        } else if (const auto &failure = std::get<RequestFailedReply>(state);
                   failure.failure != DeviceFailure::NotFound) {
            CvxCPP::NodeState unknown;
            unknown.name = name;
            unknown.problem = failure.text;
            states.states.push_back(std::move(unknown));
        }
    }
    reply(states);
}

void CameraHostServer::handle(const ReadValueRequest &request)
{
    auto value = m_camera.nodes().read(request.name);
    if (const auto *const failure = std::get_if<RequestFailedReply>(&value))
        fail(*failure);
    else
        reply(NodeValueReply{std::get<CvxCPP::NodeValue>(std::move(value))});
}

void CameraHostServer::handle(const WriteValueRequest &request)
{
    NodeValueReply written;
    if (const auto failure = m_camera.write(request.name, request.value, written.remembered))
        return fail(*failure);
    m_watch.setPutBack(m_camera.mayPutBack());
    reply(written);
    notifyChanged(request.name);
}

void CameraHostServer::handle(const BeginTemporaryChangesRequest &request)
{
    if (const auto failure = m_camera.beginTemporaryChanges(request))
        return fail(*failure);
    m_watch.setPutBack(m_camera.mayPutBack());
    reply(TemporaryChangesBegunReply());
}

void CameraHostServer::handle(const EndTemporaryChangesRequest &request)
{
    OriginalValues::PutBack ended = m_camera.endTemporaryChanges(request);
    m_watch.setPutBack(m_camera.mayPutBack());
    reply(TemporaryChangesEndedReply{std::move(ended.refused), std::move(ended.reasons)});
    for (const std::string &name : ended.written)
        notifyChanged(name);
}

void CameraHostServer::handle(const PrepareStreamRequest &request)
{
    CameraStream *const stream = m_camera.stream();
    if (!stream)
        return fail({DeviceFailure::NotAvailable, "The camera is not open."});
    auto prepared = stream->prepare(request);
    if (const auto *const failure = std::get_if<RequestFailedReply>(&prepared))
        fail(*failure);
    else
        reply(std::get<StreamPreparedReply>(std::move(prepared)));
    endIfStuck();
}

void CameraHostServer::handle(const StartStreamRequest &request)
{
    CameraStream *const stream = m_camera.stream();
    if (!stream)
        return fail({DeviceFailure::NotAvailable, "The camera is not open."});
    if (const auto failure = stream->start(request, m_channel.takeDescriptors())) {
        fail(*failure);
    } else {
        reply(StreamStartedReply());
        notifyChanged(streamLock);
    }
    endIfStuck();
}

void CameraHostServer::handle(const StopStreamRequest &)
{
    if (CameraStream *const stream = m_camera.stream())
        stream->stop(stopTimeout);
    reply(StreamStoppedReply());
    notifyChanged(streamLock);
    endIfStuck();
}

void CameraHostServer::handle(const CloseDeviceRequest &)
{
    m_isFinished = true;
    m_watch.noteShutdown();
    if (!m_isLost)
        m_camera.putBackWithin(putBackLimit, stopTimeout);
    m_camera.close(stopTimeout);
    reply(DeviceClosedReply());
}

/// Ends the service if a call of the producer hangs, so that no later call can hang too.
void CameraHostServer::endIfStuck()
{
    if (!m_camera.stream() || !m_camera.stream()->isStuck())
        return;
    reportLoss("The producer does not end the stream.");
    m_isFinished = true;
}

template <typename Content>
void CameraHostServer::reply(const Content &content)
{
    m_connection = m_channel.send(Message(m_request, content).toLine());
}

void CameraHostServer::fail(const RequestFailedReply &failure)
{
    m_isFinished = m_isFinished || failure.failure == DeviceFailure::Lost;
    reply(failure);
}

/// Reports that the node and all nodes that depend on it may have changed.
void CameraHostServer::notifyChanged(const std::string &node)
{
    NodesChangedNotice changed{{node}};
    for (std::string &name : m_camera.nodes().dependents(node))
        changed.names.push_back(std::move(name));
    notify(changed);
}

template <typename Content>
void CameraHostServer::notify(const Content &content)
{
    m_connection = m_channel.send(Message(Message::noRequest, content).toLine());
}
