#pragma once

#include "sdk/cvxcpp/FailureReporter.h"
#include "sdk/cvxcpp/InterfaceUpdateSchedule.h"
#include "sdk/cvxcpp/ProducerClient.h"
#include "sdk/cvxcpp/RestartPolicy.h"
#include "sdk/cvxcpp/SearchKind.h"
#include "sdk/cvxcpp/SearchState.h"
#include "sdk/cvxcpp/SystemOptions.h"
#include "sdk/process/HostProcess.h"
#include "sdk/protocol/CameraRecords.h"
#include "sdk/protocol/DiscoveryMessages.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Keeps the host of one producer running: starts the host, sends requests to it, detects all its failures,
/// and starts it again. Use a supervisor on one thread only. The thread calls step() when there is
/// something to read or when the time of the next step is reached.
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

        Kind kind = Kind::HostLost;
        /// All interfaces; for InterfaceSearched, only the searched interface or none.
        std::vector<InterfaceRecord> interfaces{};
        std::string searchedInterface{}; ///< ID of the interface; empty unless the kind is InterfaceSearched.
        SearchKind search = SearchKind::Short;
        bool isInTime = true; ///< True if the reply was not late.
        Milliseconds processorTime{0}; ///< Processor time that the host used for the search.
    };

    ProducerSupervisor(const SystemOptions &options, const std::string &producerPath);

    /// Returns the time after which the next step starts the host, or TimePoint::max() if the host is
    /// already started.
    TimePoint startTime() const;

    /// Returns true if a request can be sent now.
    bool isIdle() const { return m_state == State::Running && !m_client.isWaiting(); }
    bool isReplyLate(TimePoint now) const { return m_client.isLate(now); }

    void requestCameras(SearchState::Request request, TimePoint now);
    void requestInterface(const InterfaceRecord &interface, TimePoint now);

    /// Returns true if the host has reported a changed list since the last call.
    bool takeListChange() { return m_client.takeListChange(); }

    /// Returns the descriptor to poll for reading, or -1 if there is no connection.
    int descriptor() const { return m_client.descriptor(); }

    /// Returns the time at which step() has to be called at the latest.
    TimePoint nextStep(TimePoint now) const;
    std::optional<Event> step(TimePoint now, bool isReadable);

    /// Moves all deadlines after a time in which this process could not receive anything.
    void extendDeadlines(Milliseconds time);

    void reportUnusedCameras(std::size_t reported, std::size_t used);

    // At the end of the session, call beginClose(), then stepClose() until the host is gone or the time of
    // its closeTimeout() is over, and killUnclosed() if the host still exists.
    void beginClose();
    Milliseconds closeTimeout() const;
    void stepClose();
    void killUnclosed(TimePoint now);
    bool isGone() const { return !m_process.isStarted(); }

private:
    enum class State
    {
        Waiting, ///< There is no process until startTime().
        Running, ///< The host is connected.
        Disconnected, ///< The connection ended without a reason; the exit status will be reported.
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
    HostProcess m_process;
    ProducerClient m_client;
    RestartPolicy m_restartPolicy;
    InterfaceUpdateSchedule m_interfaceUpdates;
    FailureReporter m_reporter;
    // ID of the interface; nothing if the last request was for all cameras.
    std::optional<std::string> m_requestedInterface;
    SearchKind m_requestedSearch = SearchKind::Short;
    bool m_isSelfUpdating = false; // Whether the last reply came from a self-updating producer.
    TimePoint m_killAt{}; // Time at which a Disconnected or Failed host is killed.
};
