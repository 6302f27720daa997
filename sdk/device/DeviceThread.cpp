#include "sdk/device/DeviceThread.h"

#include "sdk/device/DeviceCore.h"
#include "sdk/device/DeviceRestore.h"
#include "sdk/device/InUseRetry.h"
#include "sdk/device/TemporaryRequests.h"

#include <algorithm>
#include <array>
#include <exception>
#include <poll.h>
#include <utility>

using namespace CvxCPP;
using namespace std::chrono_literals;

namespace {

// If a producer has forked, its child process keeps the socket open after the host has died. The host
// process is therefore checked at this interval, at which the rates of a stream are sampled too.
constexpr Milliseconds checkInterval = 250ms;

// While the program sends requests, it reads the notices too. The thread then looks for notices only at this
// interval, so that it does not wake up for every reply.
constexpr Milliseconds busyInterval = 20ms;

// Time that a host has to exit after its connection has ended. A host closes its camera in this time.
constexpr Milliseconds exitTime = DeviceThread::maxExitTime;

int waitingTime(TimePoint until)
{
    const auto remaining = std::chrono::ceil<Milliseconds>(until - SteadyClock::now());
    return static_cast<int>(std::clamp(remaining, 0ms, Milliseconds(1h)).count());
}

std::string openSentence(const std::vector<std::string> &refused)
{
    std::string names;
    for (const std::string &name : refused)
        names += (names.empty() ? "\"" : ", \"") + name + '"';
    return names.empty() ? "The camera is open again."
                         : "The camera is open again, but refuses the values of " + names + '.';
}

} // namespace

DeviceThread::DeviceThread(DeviceCore &core) : m_core(core), m_runner(core.options.hostProgram) { }

DeviceThread::~DeviceThread() = default;

CvxResult DeviceThread::open()
{
    std::promise<CvxResult> opened;
    auto result = opened.get_future();
    {
        const std::lock_guard lock(m_joinMutex);
        m_thread = std::thread(&DeviceThread::run, this, std::move(opened));
    }
    return result.get();
}

void DeviceThread::join()
{
    const std::lock_guard lock(m_joinMutex);
    if (m_thread.joinable())
        m_thread.join();
}

void DeviceThread::run(std::promise<CvxResult> opened)
{
    bool isOpening = true;
    try {
        CvxResult result = openFirst();
        if (!result)
            result.text = m_core.results.text(result.text);
        isOpening = false;
        opened.set_value(result);
        if (result)
            serve();
        m_core.beginClose();
        closeHost();
    } catch (const std::exception &exception) { // No memory or descriptor is left.
        if (isOpening)
            opened.set_value(m_core.results.result(CvxErrorFailed, exception.what()));
        m_core.beginClose();
        endHost(SteadyClock::now());
    }
}

// ---- Opening -----------------------------------------------------------------------------------------

CvxResult DeviceThread::openFirst()
{
    const DeviceOptions &options = m_core.options;
    const InUseRetry retry(options.inUseTimeout, options.inUseInterval, SteadyClock::now());
    for (;;) {
        const TimePoint begin = SteadyClock::now();
        const CvxResult result = openHost();
        if (m_core.gate.state() == DeviceState::Closed)
            return {CvxErrorClosed, "The camera was closed while it was being opened."};
        if (result) {
            m_core.gate.opened(nullptr);
            return result;
        }
        const auto next = retry.nextAttempt(result.code, begin, SteadyClock::now());
        if (!next)
            return result;
        waitForWake(*next);
    }
}

/// Starts a host, which opens the camera. Ends the host if that fails.
CvxResult DeviceThread::openHost()
{
    auto started = m_runner.start(m_core.target.producerPath);
    if (!started.failure.empty())
        return {CvxErrorFailed, "The camera " + started.failure + '.'};
    const auto host = std::make_shared<HostChannel>(std::move(started.channel),
        [this](std::vector<std::string> names) { m_core.notifier.nodesChanged(std::move(names)); });
    m_hostNumber = m_core.gate.setHost(host);
    const DeviceTarget &target = m_core.target;
    auto answer
        = host->ask<DeviceOpenedReply>(OpenDeviceRequest{target.interfaceId, target.deviceId, target.access},
            SteadyClock::now() + m_core.options.openTimeout);
    if (auto *opened = std::get_if<DeviceOpenedReply>(&answer)) {
        m_core.setDirectory(std::make_shared<const NodeDirectory>(std::move(opened->nodes)));
        return {};
    }
    if (const auto *failed = std::get_if<RequestFailedReply>(&answer)) {
        host->abort();
        endHost(SteadyClock::now() + exitTime);
        return {errorOf(failed->failure), failed->text};
    }
    return openFailure(std::get<Breakdown>(answer));
}

CvxResult DeviceThread::openFailure(const Breakdown &breakdown)
{
    const bool isEnded = breakdown.kind == Breakdown::Kind::Ended;
    // If the device was closed, the host ends by itself, so that it does not leave its camera locked.
    const auto exited = isEnded ? m_runner.awaitExit(SteadyClock::now() + exitTime) : std::nullopt;
    endHost(SteadyClock::now());
    const bool isLate = breakdown.kind == Breakdown::Kind::Timeout;
    return {isLate ? CvxErrorTimeout : CvxErrorDevice, exited.value_or(breakdown.reason)};
}

// ---- Watching ----------------------------------------------------------------------------------------

void DeviceThread::serve()
{
    DeviceGate &gate = m_core.gate;
    while (gate.state() != DeviceState::Closed) {
        if (gate.state() == DeviceState::Open)
            watch();
        else if (gate.host())
            handleLoss();
        else if (gate.beginReopening(SteadyClock::now()))
            reopen();
        else
            waitForWake(gate.nextReopening());
    }
}

/// Waits for a notice, a failure or the next check, and handles it.
void DeviceThread::watch()
{
    DeviceGate &gate = m_core.gate;
    const auto host = gate.host();
    const bool isQuiet = gate.turnCount() == m_seenTurns;
    m_seenTurns = gate.turnCount();
    // The end of the connection is also reported if POLLIN is not requested.
    std::array<pollfd, 2> polls{{{gate.wakeDescriptor(), POLLIN, 0},
        {host->descriptor(), static_cast<short>(isQuiet ? POLLIN : 0), 0}}};
    poll(polls.data(), polls.size(), static_cast<int>((isQuiet ? checkInterval : busyInterval).count()));
    gate.clearWake();
    if (polls[1].revents != 0 || !isQuiet)
        readNotices();
    checkHost();
}

void DeviceThread::readNotices()
{
    DeviceGate &gate = m_core.gate;
    const auto turn = gate.takeTurn(SteadyClock::now());
    if (!turn) { // Another thread uses the host and reads the notices.
        gate.waitIdle(SteadyClock::now() + busyInterval);
        return;
    }
    m_seenTurns = gate.turnCount(); // This turn does not count.
    if (const auto breakdown = turn->host().readNotices())
        gate.lose(turn->hostNumber(), *breakdown);
}

void DeviceThread::checkHost()
{
    if (auto sentence = m_runner.exitSentence())
        m_core.gate.lose(m_hostNumber, {Breakdown::Kind::Ended, std::move(*sentence)});
    if (const auto stream = m_core.gate.stream())
        stream->sample(SteadyClock::now());
}

void DeviceThread::waitForWake(TimePoint until)
{
    pollfd wake{m_core.gate.wakeDescriptor(), POLLIN, 0};
    poll(&wake, 1, waitingTime(until));
    m_core.gate.clearWake();
}

// ---- Losing and reopening ----------------------------------------------------------------------------

void DeviceThread::handleLoss()
{
    const std::string reason = lossSentence();
    m_core.gate.explainLoss(reason);
    // DeviceGate::lose() has ended the connection, so a caller that waits for a reply returns soon.
    m_core.gate.waitIdle(SteadyClock::now() + m_core.options.requestTimeout);
    if (const auto stream = m_core.gate.stream())
        stream->lost(m_hostNumber, reason);
    // A host that works ends by itself when the connection ends, so that its camera does not stay locked.
    const bool isHanging = m_core.gate.loss().kind == Breakdown::Kind::Timeout;
    endHost(SteadyClock::now() + (isHanging ? Milliseconds(0) : exitTime));
    m_core.notifier.stateChanged(DeviceState::Lost, m_core.results.text(reason));
}

std::string DeviceThread::lossSentence()
{
    const Breakdown breakdown = m_core.gate.loss();
    if (breakdown.kind != Breakdown::Kind::Ended)
        return breakdown.reason;
    return m_runner.awaitExit(SteadyClock::now() + exitTime).value_or(breakdown.reason);
}

void DeviceThread::reopen()
{
    m_core.notifier.stateChanged(
        DeviceState::Reopening, m_core.results.text("The camera is being opened again."));
    const CvxResult opened = openHost();
    if (!opened)
        return reopeningFailed(opened.text);
    auto restored = restoreDevice(m_core, *m_core.gate.host());
    if (const auto *reason = std::get_if<std::string>(&restored))
        return reopeningFailed(*reason);
    const auto &device = std::get<RestoredDevice>(restored);
    if (!finishReopening(device))
        return reopeningFailed("The stream cannot be stopped.");
    m_core.notifier.stateChanged(DeviceState::Open, m_core.results.text(openSentence(device.refused)));
    m_core.notifier.nodesChanged(m_core.directory()->names());
    if (m_core.temporary.requestedEnd()) // Requested after the settings were restored.
        static_cast<void>(TemporaryRequests(m_core).endAsRequested());
}

/// Lets the program use the camera. If the program has stopped the stream meanwhile, stops it first. Returns
/// false if the host fails.
bool DeviceThread::finishReopening(const RestoredDevice &restored)
{
    DeviceGate &gate = m_core.gate;
    if (gate.opened(restored.stream)) {
        if (restored.stream)
            restored.stream->started(restored.images, m_hostNumber);
        return true;
    }
    const TimePoint deadline = SteadyClock::now() + m_core.options.stopTimeout;
    const auto stopped = gate.host()->ask<StreamStoppedReply>(StopStreamRequest(), deadline);
    return std::holds_alternative<StreamStoppedReply>(stopped) && gate.opened(nullptr);
}

void DeviceThread::reopeningFailed(const std::string &reason)
{
    if (!m_core.gate.reopeningFailed(reason))
        return; // The device was closed.
    if (const auto host = m_core.gate.host())
        host->abort();
    endHost(SteadyClock::now() + exitTime);
    m_core.notifier.stateChanged(DeviceState::Lost, m_core.results.text(reason));
}

// ---- The end -----------------------------------------------------------------------------------------

void DeviceThread::closeHost()
{
    DeviceGate &gate = m_core.gate;
    const Milliseconds putBackTime
        = m_core.temporary.isPutBackAtClose() ? m_core.options.putBackTimeout : Milliseconds(0);
    const TimePoint deadline = gate.closeDeadline() + putBackTime - HostRunner::killTimeout;
    const bool isIdle = gate.waitIdle(deadline);
    if (const auto host = gate.host()) {
        if (isIdle)
            static_cast<void>(host->ask<DeviceClosedReply>(CloseDeviceRequest(), deadline));
        host->abort();
    }
    endHost(deadline);
    gate.waitIdle(deadline + HostRunner::killTimeout); // A thread may still be in a request.
}

void DeviceThread::endHost(TimePoint deadline)
{
    m_runner.awaitExit(deadline);
    m_runner.kill();
    m_core.gate.dropHost();
}
