#pragma once

#include "sdk/cvxcpp/FailureReporter.h"
#include "sdk/cvxcpp/InterfaceUpdateSchedule.h"
#include "sdk/cvxcpp/ProducerClient.h"
#include "sdk/cvxcpp/ProducerProcess.h"
#include "sdk/cvxcpp/RestartPolicy.h"
#include "sdk/cvxcpp/SystemOptions.h"
#include "sdk/protocol/CameraRecords.h"
#include "sdk/protocol/DiscoveryMessages.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Keeps the host of one producer running: starts it, sends it requests, notices every way in which it can
/// fail, and starts it again. Lives on one thread, which calls step() when there is something to read or a
/// time has come.
class ProducerSupervisor
{
public:
    struct Event
    {
        enum class Kind
        {
            CamerasListed,
            InterfaceSearched,
            HostLost
        };

        Kind kind;
        std::vector<InterfaceRecord> interfaces; ///< All; after a search of one interface that one, or none.
        std::string searchedInterface; ///< ID; only for InterfaceSearched.
        bool isInTime = true; ///< The reply was not late.
    };

    ProducerSupervisor(const SystemOptions &options, const std::string &producerPath);

    /// Returns the time from which the next step starts the host; TimePoint::max() while there is one.
    TimePoint startTime() const;

    /// Returns true if a request can be sent now.
    bool isIdle() const { return m_state == State::Running && !m_client.isWaiting(); }
    bool isReplyLate(TimePoint now) const { return m_client.isLate(now); }

    void requestCameras(TimePoint now);
    void requestInterface(const InterfaceRecord &interface, TimePoint now);

    /// Returns the descriptor to poll for reading; -1 for none.
    int descriptor() const { return m_client.descriptor(); }

    /// Returns the latest time of the next step.
    TimePoint nextStep(TimePoint now) const;
    std::optional<Event> step(TimePoint now, bool isReadable);

    void reportUnusedCameras(std::size_t reported, std::size_t used);

    // The end of the session: beginClose(), then stepClose() until the host is gone or its time is over.
    void beginClose();
    void stepClose();
    void killUnclosed(TimePoint now);
    bool isGone() const { return !m_process.isStarted(); }

private:
    enum class State
    {
        Waiting, ///< There is no process until startTime().
        Running, ///< The host is connected.
        Disconnected, ///< The connection ended without a reason; the exit status will tell it.
        Failed, ///< The failure is reported; the process has not ended yet.
        Closing, ///< The idle host was asked to close.
        ClosingDuringRequest ///< The host was asked to close while a reply was outstanding.
    };

    std::optional<Event> start(TimePoint now);
    std::optional<Event> receive(TimePoint now);
    std::optional<Event> acceptReply(const Message &message, TimePoint now);
    std::optional<Event> checkHost(TimePoint now);
    std::string reasonForEnd(int status);
    Event fail(State state, Milliseconds grace, TimePoint now);
    Event failWith(const std::string &reason, Milliseconds grace, TimePoint now);
    void awaitExit(TimePoint now);

    const SystemOptions &m_options;
    const std::string m_path;
    State m_state = State::Waiting;
    ProducerProcess m_process;
    ProducerClient m_client;
    RestartPolicy m_restartPolicy;
    InterfaceUpdateSchedule m_interfaceUpdates;
    FailureReporter m_reporter;
    std::optional<std::string> m_requestedInterface; // ID; nothing if the last request was for all cameras.
    TimePoint m_killAt{}; // While Disconnected or Failed.
};
