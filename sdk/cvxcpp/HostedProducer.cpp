#include "sdk/cvxcpp/HostedProducer.h"

#include "sdk/cvxcpp/ExitReason.h"
#include "sdk/cvxcpp/Utf8.h"

#include <algorithm>
#include <cstdint>
#include <nlohmann/json.hpp>

namespace {

using namespace std::chrono_literals;

constexpr auto CheckInterval = 250ms; // While an answer is out: a driver that forked keeps the socket open.
constexpr auto ReapInterval = 5ms; // A host whose socket is closed has all but ended …
constexpr auto ReapTime = 1s; // … unless it is stuck in the kernel; then it is looked at less often.
constexpr auto CloseGrace = 500ms; // From the socket's end to the process's.
constexpr int MostLastLines = 4; // An answer that was on its way and that of the end, and some more.

std::string fileName(const std::string &path)
{
    return toValidUtf8(std::string_view(path).substr(path.rfind('/') + 1));
}

std::string seconds(std::chrono::milliseconds time)
{
    const auto tenths = time.count() / 100;
    return std::to_string(tenths / 10) + '.' + std::to_string(tenths % 10) + " s";
}

std::string problemReason(const CallProblem &problem)
{
    return callReason(problem.call, problem.code, problem.text);
}

/// Why a host has given up; nothing when the line tells something else.
std::optional<std::string> errorReason(const std::string &line)
{
    ProducerAnswer answer;
    if (!parseAnswer(line, answer) || answer.kind != ProducerAnswer::Kind::Error)
        return std::nullopt;
    return problemReason(answer.problems.front());
}

} // namespace

HostedProducer::HostedProducer(
    const SystemOptions &options, std::string path, std::size_t index, std::weak_ptr<InterfaceSource> source)
    : m_options(options),
      m_path(std::move(path)),
      m_name(std::make_shared<const std::string>(fileName(m_path))),
      m_index(index),
      m_source(std::move(source))
{ }

void HostedProducer::askForList(Time now)
{
    // Looks for cameras come at whole intervals, give or take a little; so half of one is let pass.
    const bool withInterfaces
        = m_isFirstOfHost || now - m_interfacesAt >= m_options.interfaceInterval - m_options.lookInterval / 2;
    if (withInterfaces)
        m_interfacesAt = now;
    m_isFirstOfHost = false;
    m_isListAsked = true;
    send(nlohmann::json{{"request", "list"}, {"interfaces", withInterfaces}}.dump(), now);
}

bool HostedProducer::askForInterface(const std::string &interfaceId, Time now)
{
    const auto found = std::find_if(
        m_records.begin(), m_records.end(), [&](const auto &record) { return record->id == interfaceId; });
    if (found == m_records.end())
        return false;
    m_isListAsked = false;
    m_askedInterface = interfaceId;
    send(nlohmann::json{{"request", "interface"}, {"number", (*found)->number}}.dump(), now);
    return true;
}

void HostedProducer::send(const std::string &line, Time now)
{
    m_isBusy = true;
    m_askedAt = now;
    m_host.send(line + '\n');
}

HostedProducer::Time HostedProducer::nextStep(Time now) const
{
    switch (m_state) {
    case State::Waiting:
        return m_startAt;
    case State::Ending:
        return now + (now - m_killAt < ReapTime ? ReapInterval : CheckInterval);
    case State::Running:
        break;
    }
    if (!m_isBusy)
        return Time::max();
    Time next = std::min(m_askedAt + m_options.answerLimit, now + CheckInterval);
    if (!isLate(now))
        next = std::min(next, m_askedAt + m_options.answerWait);
    return next;
}

HostedProducer::Event HostedProducer::step(Time now, bool isReadable)
{
    switch (m_state) {
    case State::Waiting:
        return isStartDue(now) ? start(now) : Event::Nothing;
    case State::Running:
        return isReadable ? receive(now) : checkHost(now);
    case State::Ending:
        break;
    }
    return awaitEnd(now);
}

HostedProducer::Event HostedProducer::start(Time now)
{
    m_startedAt = now;
    m_isFirstOfHost = true;
    m_isReported = false;
    m_reportedProblems.clear();
    if (const auto reason = m_host.start(m_options.hostProgram, m_path))
        return fail(now, *reason);
    m_state = State::Running;
    askForList(now); // It finds the request when it is ready, and loads the producer meanwhile.
    return Event::Nothing;
}

HostedProducer::Event HostedProducer::receive(Time now)
{
    std::string line;
    switch (m_host.readLine(line)) {
    case HostProcess::Reading::Pending:
        return checkHost(now);
    case HostProcess::Reading::Line:
        return takeAnswer(line, now);
    case HostProcess::Reading::TooLong:
        return fail(now, "sent an answer without end");
    case HostProcess::Reading::Closed:
        break;
    }
    return fail(now, {}, CloseGrace);
}

HostedProducer::Event HostedProducer::takeAnswer(const std::string &line, Time now)
{
    if (!m_isBusy) {
        const auto reason = errorReason(line); // A thread of the driver may fail at any time.
        return reason ? fail(now, *reason, m_options.endWait)
                      : fail(now, "sent an answer that nobody asked for");
    }
    const bool hasMore = m_host.hasMore();
    if (!hasMore && m_isListAsked && line == m_lastAnswer) {
        m_isBusy = false;
        return Event::Listed;
    }
    ProducerAnswer answer;
    if (!parseAnswer(line, answer) || answer.kind == ProducerAnswer::Kind::Ended)
        return fail(now, "sent an answer that cannot be read");
    if (answer.kind == ProducerAnswer::Kind::Error) {
        return fail(now, problemReason(answer.problems.front()), m_options.endWait);
    }
    if (hasMore)
        return fail(now, "sent more than the answer that it was asked for");
    m_isBusy = false;
    reportProblems(answer.problems);
    return m_isListAsked ? takeList(answer, line) : takeInterface(answer);
}

HostedProducer::Event HostedProducer::takeList(ProducerAnswer &answer, const std::string &line)
{
    m_lastReport.clear();
    m_lastAnswer = line;
    m_records.clear();
    m_records.reserve(answer.interfaces.size());
    for (ListedInterface &record : answer.interfaces)
        m_records.push_back(std::make_shared<const ListedInterface>(std::move(record)));
    m_list = CameraList::create(m_source, m_index, m_name, m_records);
    reportCrowd();
    return Event::Listed;
}

HostedProducer::Event HostedProducer::takeInterface(ProducerAnswer &answer)
{
    m_searchedInterface = m_askedInterface;
    if (answer.interfaces.empty())
        return Event::InterfaceListed; // It went meanwhile; the next list shows it.
    ListedInterface &record = answer.interfaces.front();
    for (auto &known : m_records) {
        if (known->number != record.number || *known == record)
            continue;
        known = std::make_shared<const ListedInterface>(std::move(record));
        m_lastAnswer.clear();
        m_list = CameraList::create(m_source, m_index, m_name, m_records);
        reportCrowd();
        break;
    }
    return Event::InterfaceListed;
}

HostedProducer::Event HostedProducer::checkHost(Time now)
{
    if (!m_isBusy)
        return Event::Nothing;
    if (now - m_askedAt >= m_options.answerLimit)
        return fail(now, "did not answer within " + seconds(m_options.answerLimit) + " and was killed");
    if (now - m_askedAt < CheckInterval)
        return Event::Nothing;
    const auto status = m_host.tryReap();
    return status ? fail(now, lastWords().value_or(exitReason(*status))) : Event::Nothing;
}

std::optional<std::string> HostedProducer::lastWords()
{
    std::string line;
    return m_host.readLine(line) == HostProcess::Reading::Line ? errorReason(line) : std::nullopt;
}

HostedProducer::Event HostedProducer::fail(
    Time now, const std::string &reason, SystemOptions::Milliseconds grace)
{
    if (!reason.empty())
        report(reason);
    m_isReported = !reason.empty();
    m_state = State::Ending;
    m_startAt = now + nextRestartDelay(now);
    m_killAt = now + grace;
    m_isBusy = false;
    m_lastAnswer.clear();
    m_records.clear();
    m_list = CameraList::empty();
    m_host.closeSocket();
    awaitEnd(now);
    return Event::Lost;
}

HostedProducer::Event HostedProducer::awaitEnd(Time now)
{
    const auto status = m_host.isStarted() ? m_host.tryReap() : std::optional<int>(0);
    if (status) {
        if (!m_isReported)
            report(exitReason(*status));
        m_state = State::Waiting;
    } else if (now >= m_killAt) {
        if (!m_isReported)
            report("closed its connection and was killed");
        m_isReported = true;
        m_host.kill();
    }
    return Event::Nothing;
}

SystemOptions::Milliseconds HostedProducer::nextRestartDelay(Time now)
{
    if (now - m_startedAt >= m_options.longestRestart)
        m_failures = 0; // It went well for long enough.
    SystemOptions::Milliseconds delay = m_options.firstRestart;
    for (int i = 0; i < m_failures && delay < m_options.longestRestart; ++i)
        delay *= 2;
    ++m_failures;
    return std::min(delay, m_options.longestRestart);
}

void HostedProducer::askToEnd()
{
    if (m_state == State::Running)
        m_host.send(nlohmann::json{{"request", "end"}}.dump() + '\n');
    else
        m_host.kill();
}

void HostedProducer::stepEnd()
{
    if (hasGone())
        return;
    const auto status = m_host.tryReap(); // Before the reading: what it has sent is all there then.
    std::string line;
    HostProcess::Reading reading = HostProcess::Reading::Line;
    for (int lines = 0; lines < MostLastLines && reading == HostProcess::Reading::Line; ++lines) {
        reading = m_host.readLine(line);
        ProducerAnswer answer;
        if (reading == HostProcess::Reading::Line && parseAnswer(line, answer))
            reportProblems(answer.problems);
    }
    if (status || reading != HostProcess::Reading::Pending)
        m_host.closeSocket();
    const bool isBadEnd = status && *status != HostProcess::LostStatus && *status != 0;
    if (isBadEnd && !m_isReported && m_state == State::Running) // With a request out it was not yet closing.
        report(exitReason(*status) + (m_isBusy ? "" : " while it was closed"));
}

void HostedProducer::killAtEnd(Time now)
{
    if (hasGone())
        return;
    // One that has failed since its last list was just being tried again, and its failure is known.
    const bool isReported = m_isReported || (m_isBusy && !m_lastReport.empty());
    const auto waited = std::chrono::duration_cast<std::chrono::milliseconds>(now - m_askedAt);
    if (!isReported && m_isBusy)
        report("had not answered for " + seconds(waited) + " and was killed");
    else if (!isReported)
        report("did not end within " + seconds(m_options.endWait) + " and was killed");
    m_isReported = true;
    m_host.kill();
}

void HostedProducer::report(const std::string &reason)
{
    constexpr std::size_t LongestReason = 500; // Bytes.
    const std::string start = reason.substr(0, LongestReason);
    if (start == std::exchange(m_lastReport, start))
        return; // It fails in the same way at every start.
    if (m_options.report)
        m_options.report(toLine(m_path + ": " + start));
}

void HostedProducer::reportProblems(const std::vector<CallProblem> &problems)
{
    constexpr std::size_t MostReports = 64; // In the life of a host: some codes are new every time.
    constexpr std::size_t LongestCall = 64; // Bytes; no function has as long a name.
    for (const CallProblem &problem : problems) {
        if (m_reportedProblems.size() < MostReports
            && m_reportedProblems.emplace(problem.call.substr(0, LongestCall), problem.code).second)
            report(problemReason(problem));
    }
}

void HostedProducer::reportCrowd()
{
    std::size_t count = 0;
    for (const auto &record : m_records)
        count += record->devices.size();
    const std::size_t most = CameraList::MostCameras;
    if (count > most && m_reportedProblems.emplace("", 0).second)
        report("lists " + std::to_string(count) + " cameras, of which the first " + std::to_string(most)
            + " are shown");
}
