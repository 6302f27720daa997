#pragma once

#include "sdk/cvxcpp/CameraList.h"
#include "sdk/cvxcpp/HostProcess.h"
#include "sdk/cvxcpp/ProducerAnswer.h"
#include "sdk/cvxcpp/SystemOptions.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

/// One producer and its host over time: starts the host, asks it, notices every way in which it can fail, and
/// starts it again. Lives on one thread, which calls step() when there is something to read or a time has
/// come.
class HostedProducer
{
public:
    using Clock = std::chrono::steady_clock;
    using Time = Clock::time_point;

    /// What a step has brought.
    enum class Event
    {
        Nothing,
        Listed,
        InterfaceListed,
        Lost
    };

    HostedProducer(const SystemOptions &options, std::string path, std::size_t index,
        std::weak_ptr<InterfaceSource> source);

    /// What is known of its cameras; empty while the host is not there.
    const CameraList::Pointer &list() const { return m_list; }
    const std::vector<std::shared_ptr<const ListedInterface>> &records() const { return m_records; }

    /// The interface of the last InterfaceListed.
    const std::string &searchedInterface() const { return m_searchedInterface; }

    /// The next step will start its host.
    bool isStartDue(Time now) const { return m_state == State::Waiting && now >= m_startAt; }

    /// Since when it waits for that; the first start comes before every other.
    Time startDueAt() const { return m_startAt; }

    /// Could be asked something now.
    bool isIdle() const { return m_state == State::Running && !m_isBusy; }

    /// The answer is out for longer than a list waits.
    bool isLate(Time now) const { return m_isBusy && now - m_askedAt >= m_options.answerWait; }

    /// The answer that came just now did not keep a list waiting for too long.
    bool hasAnsweredInTime(Time now) const { return now - m_askedAt < m_options.answerWait; }

    void askForList(Time now);

    /// False when there is no such interface.
    bool askForInterface(const std::string &interfaceId, Time now);

    /// Poll this for reading; -1 for none.
    int descriptor() const { return m_host.descriptor(); }

    /// When step() is to be called at the latest.
    Time nextStep(Time now) const;
    Event step(Time now, bool isReadable);

    // The end: ask first, then step until it has gone.
    void askToEnd();
    bool hasGone() const { return !m_host.isStarted(); }
    void stepEnd();
    void killAtEnd(Time now);

private:
    enum class State
    {
        Waiting,
        Running,
        Ending
    };

    Event start(Time now);
    Event receive(Time now);
    Event takeAnswer(const std::string &line, Time now);
    Event takeList(ProducerAnswer &answer, const std::string &line);
    Event takeInterface(ProducerAnswer &answer);
    Event checkHost(Time now);

    /// Of a host that has ended: why it did, if it has told.
    std::optional<std::string> lastWords();
    Event awaitEnd(Time now);

    /// The host is lost; with an empty reason, how it ends will tell.
    Event fail(Time now, const std::string &reason, SystemOptions::Milliseconds grace = {});
    SystemOptions::Milliseconds nextRestartDelay(Time now);
    void send(const std::string &line, Time now);
    void report(const std::string &reason);
    void reportProblems(const std::vector<CallProblem> &problems);
    void reportCrowd();

    const SystemOptions &m_options;
    const std::string m_path;
    const std::shared_ptr<const std::string> m_name; // The file name, for extended camera IDs.
    const std::size_t m_index;
    const std::weak_ptr<InterfaceSource> m_source;

    HostProcess m_host;
    State m_state = State::Waiting;
    Time m_startAt{}; // While waiting.
    Time m_startedAt{};
    Time m_killAt{}; // While ending.
    bool m_isReported = false; // The failure that the host is ending for.
    std::string m_lastReport; // Since the last list; the same is not reported twice.
    int m_failures = 0; // Counted by the restart delay.
    bool m_isFirstOfHost = true;

    bool m_isBusy = false;
    Time m_askedAt{};
    Time m_interfacesAt{}; // When the list of interfaces was asked for.
    bool m_isListAsked = false; // Else one interface.
    std::string m_askedInterface;
    std::string m_searchedInterface;

    std::string m_lastAnswer; // The list as text: an idle system's lists are all the same, and read once.
    std::vector<std::shared_ptr<const ListedInterface>> m_records;
    CameraList::Pointer m_list = CameraList::empty();
    std::set<std::pair<std::string, std::int32_t>> m_reportedProblems; // Call and code, of this host.
};
