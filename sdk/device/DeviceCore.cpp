#include "sdk/device/DeviceCore.h"

#include "sdk/device/StreamStart.h"
#include "sdk/process/ExecutableFile.h"

#include <unistd.h>

using namespace CvxCPP;

DeviceCore::DeviceCore(DeviceOptions deviceOptions, DeviceTarget deviceTarget)
    : options(std::move(deviceOptions)),
      target(std::move(deviceTarget)),
      results(target.label),
      gate(options.reopenInterval, options.closeTimeout),
      m_process(getpid()),
      m_thread(*this)
{ }

DeviceCore::~DeviceCore()
{
    close();
}

CvxResult DeviceCore::open()
{
    if (!isExecutableFile(options.hostProgram))
        return results.result(
            CvxErrorHostMissing, options.hostProgram + " is missing or is not an executable program.");
    return m_thread.open();
}

bool DeviceCore::isForked() const
{
    return getpid() != m_process;
}

void DeviceCore::beginClose()
{
    gate.close();
    if (const auto stream = gate.stream())
        stream->stopped();
}

void DeviceCore::close()
{
    beginClose();
    m_thread.join();
    notifier.close();
}

std::shared_ptr<const NodeDirectory> DeviceCore::directory() const
{
    const std::lock_guard lock(m_mutex);
    return m_directory;
}

void DeviceCore::setDirectory(std::shared_ptr<const NodeDirectory> directory)
{
    const std::lock_guard lock(m_mutex);
    m_directory.swap(directory);
}

// ---- Requests ----------------------------------------------------------------------------------------

std::variant<DeviceGate::Turn, CvxResult> DeviceCore::takeTurn(TimePoint deadline)
{
    do {
        if (auto turn = gate.takeTurn(deadline))
            return std::move(*turn);
    } while (gate.state() == DeviceState::Open && SteadyClock::now() < deadline); // Opened again meanwhile.
    return refusal();
}

CvxResult DeviceCore::refusal() const
{
    switch (gate.state()) {
    case DeviceState::Open:
        return results.result(CvxErrorTimeout, "Other calls have occupied the camera for too long.");
    case DeviceState::Lost:
    case DeviceState::Reopening:
        return lostResult();
    case DeviceState::Closed:
        break;
    }
    return results.result(CvxErrorClosed, "The camera is closed.");
}

CvxResult DeviceCore::failure(const DeviceGate::Turn &turn, const RequestFailedReply &failed)
{
    if (failed.failure == DeviceFailure::Lost)
        gate.lose(turn.hostNumber(), {Breakdown::Kind::CameraLost, failed.text});
    return results.result(failed);
}

CvxResult DeviceCore::failure(const DeviceGate::Turn &turn, const Breakdown &breakdown)
{
    gate.lose(turn.hostNumber(), breakdown);
    if (gate.state() == DeviceState::Closed)
        return refusal(); // The host was ended because the device was closed during the request.
    if (breakdown.kind == Breakdown::Kind::Timeout)
        return results.result(CvxErrorTimeout, breakdown.reason);
    return lostResult();
}

CvxResult DeviceCore::lostResult() const
{
    const std::string reason = gate.lossReason(SteadyClock::now() + DeviceThread::maxExitTime);
    return results.result(CvxErrorDeviceLost, reason + " The camera is being opened again.");
}

// ---- The stream --------------------------------------------------------------------------------------

std::variant<std::shared_ptr<StreamCore>, CvxResult> DeviceCore::startStream(
    unsigned buffers, StreamPolicy policy)
{
    const TimePoint deadline = SteadyClock::now() + options.startTimeout;
    auto turn = takeTurn(deadline);
    if (const auto *refused = std::get_if<CvxResult>(&turn))
        return *refused;
    const auto &taken = std::get<DeviceGate::Turn>(turn);
    if (gate.stream())
        return results.result(CvxErrorAlreadyStarted, "The stream is running already.");
    const auto started = ::startStream(taken.host(), target.access, buffers, policy, deadline);
    if (const auto *failed = std::get_if<RequestFailedReply>(&started))
        return failure(taken, *failed);
    if (const auto *breakdown = std::get_if<Breakdown>(&started))
        return failure(taken, *breakdown);
    const auto reportDamage = [core = weak_from_this()](std::uint64_t host, const std::string &reason) {
        if (const auto device = core.lock())
            device->gate.lose(host, {Breakdown::Kind::Protocol, reason});
    };
    auto stream = std::make_shared<StreamCore>(buffers, policy, results, reportDamage);
    stream->started(std::get<std::shared_ptr<const ImageQueue>>(started), taken.hostNumber());
    gate.setStream(stream);
    if (gate.state() == DeviceState::Closed) // beginClose() may not have seen the stream.
        stream->stopped();
    return stream;
}

CvxResult DeviceCore::stopStream(const std::shared_ptr<StreamCore> &stream)
{
    const TimePoint deadline = SteadyClock::now() + options.stopTimeout;
    auto turn = gate.takeTurn(deadline);
    const bool wasRunning = gate.removeStream(stream);
    if (!turn && wasRunning) { // The device may have been opened again with the stream meanwhile.
        if (auto next = gate.takeTurn(deadline))
            turn.emplace(std::move(*next));
    }
    CvxResult result;
    if (turn && wasRunning) {
        auto answer = ask<StreamStoppedReply>(*turn, StopStreamRequest(), deadline);
        if (auto *failed = std::get_if<CvxResult>(&answer))
            result = std::move(*failed);
    } else if (wasRunning && gate.state() == DeviceState::Open) {
        const Breakdown late = lateReply();
        gate.lose(gate.hostNumber(), late);
        result = results.result(CvxErrorTimeout, late.reason);
    }
    stream->stopped();
    // Without the camera or its host, nothing has to be stopped.
    const bool isGone = result.code == CvxErrorDeviceLost || result.code == CvxErrorClosed;
    return isGone ? CvxResult() : result;
}
