#include "sdk/cvxcpp/ProducerSupervisor.h"

#include "sdk/process/ExitReason.h"

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

namespace {

// If a producer has forked, its child process keeps the socket open after the host has died. The host
// process is therefore also checked while a reply is outstanding.
constexpr auto checkInterval = 250ms;

constexpr auto reapInterval = 5ms; // Interval at which an exiting host is checked.
// A host that does not exit for so long may be stuck in the kernel and is checked less often.
constexpr auto reapTime = 1s;
constexpr auto exitGrace = 500ms; // Time that a host has to exit after its connection has ended.

std::string seconds(Milliseconds time)
{
    const auto tenths = time.count() / 100;
    return std::to_string(tenths / 10) + '.' + std::to_string(tenths % 10) + " s";
}

} // namespace

ProducerSupervisor::ProducerSupervisor(const SystemOptions &options, const std::string &producerPath)
    : m_options(options),
      m_path(producerPath),
      m_client(options.searchTimeout, options.replyTimeout),
      m_restartPolicy(options.firstRestartDelay, options.maxRestartDelay),
      m_interfaceUpdates(options.interfaceUpdateInterval, options.pollInterval),
      m_reporter(producerPath, options.report)
{ }

TimePoint ProducerSupervisor::startTime() const
{
    return m_state == State::Waiting ? m_restartPolicy.nextStart() : TimePoint::max();
}

void ProducerSupervisor::requestCameras(SearchState::Request request, TimePoint now)
{
    const bool isBackground = request == SearchState::Request::Background;
    m_requestedInterface.reset();
    m_requestedSearch = isBackground ? SearchKind::Background : SearchKind::Short;
    const bool updatesInterfaces = m_interfaceUpdates.takeDueUpdate(now) || m_isSelfUpdating;
    const Milliseconds timeout = isBackground         ? m_options.backgroundSearch
        : request == SearchState::Request::Collection ? Milliseconds(0)
                                                      : m_options.shortSearch;
    m_client.send(ListCamerasRequest{updatesInterfaces, static_cast<std::uint32_t>(timeout.count())}, now);
}

void ProducerSupervisor::requestInterface(const InterfaceRecord &interface, TimePoint now)
{
    m_requestedInterface = interface.id;
    m_requestedSearch = SearchKind::Short;
    const auto timeout = static_cast<std::uint32_t>(m_options.shortSearch.count());
    m_client.send(ListInterfaceRequest{interface.number, timeout}, now);
}

TimePoint ProducerSupervisor::nextStep(TimePoint now) const
{
    if (m_state == State::Waiting)
        return startTime();
    if (m_state != State::Running)
        return now + (now - m_killAt < reapTime ? Milliseconds(reapInterval) : checkInterval);
    if (!m_client.isWaiting())
        return TimePoint::max();
    return std::min(m_client.nextDeadline(now), now + checkInterval);
}

std::optional<ProducerSupervisor::Event> ProducerSupervisor::step(TimePoint now, bool isReadable)
{
    if (m_state == State::Waiting)
        return now >= startTime() ? start(now) : std::nullopt;
    if (m_state == State::Running)
        return isReadable || m_client.isExpired(now) ? receive(now) : checkHost(now);
    awaitExit(now);
    return std::nullopt;
}

std::optional<ProducerSupervisor::Event> ProducerSupervisor::start(TimePoint now)
{
    m_restartPolicy.started(now);
    m_interfaceUpdates.hostStarted();
    m_reporter.hostStarted();
    auto started = m_process.start(m_options.hostProgram, m_path);
    if (!started.failure.empty())
        return failWith(started.failure, 0ms, now);
    m_client.connect(std::move(started.channel));
    m_state = State::Running; // The host reads the first request once it has loaded the producer.
    m_isSelfUpdating = false;
    return std::nullopt;
}

std::optional<ProducerSupervisor::Event> ProducerSupervisor::receive(TimePoint now)
{
    const ProducerClient::Received received = m_client.receive();
    if (const auto *message = std::get_if<Message>(&received))
        return acceptReply(*message, now);
    if (const auto *failure = std::get_if<ProducerClient::ProducerFailure>(&received))
        return failWith(problemReason(failure->problem), m_options.closeTimeout, now);
    if (const auto *error = std::get_if<ProducerClient::ProtocolError>(&received))
        return failWith(error->reason, 0ms, now);
    if (std::holds_alternative<ProducerClient::Disconnected>(received))
        return fail(State::Disconnected, exitGrace, now);
    return checkHost(now);
}

std::optional<ProducerSupervisor::Event> ProducerSupervisor::acceptReply(
    const Message &message, TimePoint now)
{
    auto reply = message.content<CameraListReply>();
    if (!reply)
        return failWith("sent a reply that cannot be read", 0ms, now);
    m_reporter.reportProblems(reply->problems);
    m_isSelfUpdating = reply->isSelfUpdating;
    Event event{Event::Kind::CamerasListed, std::move(reply->interfaces)};
    event.search = m_isSelfUpdating ? SearchKind::SelfUpdating : m_requestedSearch;
    event.isInTime = m_client.isInTime(now);
    event.processorTime = Milliseconds(reply->processorTime);
    if (m_requestedInterface) {
        event.kind = Event::Kind::InterfaceSearched;
        event.searchedInterface = *m_requestedInterface;
    } else {
        m_reporter.camerasListed();
    }
    return event;
}

std::optional<ProducerSupervisor::Event> ProducerSupervisor::checkHost(TimePoint now)
{
    if (!m_client.isWaiting())
        return std::nullopt;
    if (m_client.isExpired(now))
        return failWith(
            "did not answer within " + seconds(m_options.replyTimeout) + " and was killed", 0ms, now);
    if (m_client.waitingTime(now) < checkInterval)
        return std::nullopt;
    if (const auto status = m_process.tryReap())
        return failWith(reasonForEnd(*status), 0ms, now);
    return std::nullopt;
}

std::string ProducerSupervisor::reasonForEnd(int status)
{
    // The host may have sent the reason before it exited.
    const ProducerClient::Received received = m_client.receive();
    const auto *failure = std::get_if<ProducerClient::ProducerFailure>(&received);
    return failure ? problemReason(failure->problem) : exitReason(status);
}

ProducerSupervisor::Event ProducerSupervisor::failWith(
    const std::string &reason, Milliseconds grace, TimePoint now)
{
    m_reporter.reportFailure(reason);
    return fail(State::Failed, grace, now);
}

ProducerSupervisor::Event ProducerSupervisor::fail(State state, Milliseconds grace, TimePoint now)
{
    m_state = state;
    m_killAt = now + grace;
    m_restartPolicy.failed(now);
    m_client.disconnect();
    awaitExit(now);
    return {Event::Kind::HostLost};
}

void ProducerSupervisor::awaitExit(TimePoint now)
{
    const auto status = m_process.isStarted() ? m_process.tryReap() : std::optional<int>(0);
    if (!status && now < m_killAt)
        return;
    if (m_state == State::Disconnected)
        m_reporter.reportFailure(status ? exitReason(*status) : "closed its connection and was killed");
    m_state = status ? State::Waiting : State::Failed;
    m_process.kill();
}

void ProducerSupervisor::extendDeadlines(Milliseconds time)
{
    m_client.extendDeadlines(time);
    m_killAt += time;
}

void ProducerSupervisor::reportUnusedCameras(std::size_t reported, std::size_t used)
{
    m_reporter.reportUnusedCameras(reported, used);
}

void ProducerSupervisor::beginClose()
{
    if (m_state != State::Running) {
        m_process.kill();
        return;
    }
    m_state = m_client.isWaiting() ? State::ClosingDuringRequest : State::Closing;
    m_client.sendLast(CloseProducerRequest());
}

Milliseconds ProducerSupervisor::closeTimeout() const
{
    return m_state == State::ClosingDuringRequest ? m_options.searchEndTimeout : m_options.closeTimeout;
}

void ProducerSupervisor::stepClose()
{
    if (isGone())
        return;
    // Must precede receiveLast(): once the host has exited, everything that it sent can be read.
    const auto status = m_process.tryReap();
    std::vector<Problem> problems;
    const bool mayReceiveMore = m_client.receiveLast(problems);
    m_reporter.reportProblems(problems);
    if (!mayReceiveMore)
        m_client.disconnect();
    if (!status || *status == 0 || *status == HostProcess::unknownStatus)
        return;
    if (m_state == State::Closing)
        m_reporter.reportFailure(exitReason(*status) + " while it was closed");
    else if (m_state == State::ClosingDuringRequest)
        m_reporter.reportFailure(exitReason(*status));
}

void ProducerSupervisor::killUnclosed(TimePoint now)
{
    if (isGone())
        return;
    if (m_state == State::Closing || m_state == State::Disconnected)
        m_reporter.reportFailure("did not end within " + seconds(m_options.closeTimeout) + " and was killed");
    else if (m_state == State::ClosingDuringRequest && m_client.isLate(now) && !m_reporter.hasReported())
        m_reporter.reportFailure(
            "had not answered for " + seconds(m_client.waitingTime(now)) + " and was killed");
    m_state = State::Failed;
    m_process.kill();
}
