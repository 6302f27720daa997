#include "sdk/doctor/ProducerTrial.h"

#include "sdk/cvxcpp/ProducerClient.h"
#include "sdk/process/ExitReason.h"
#include "sdk/process/HostProcess.h"

#include <algorithm>
#include <memory>
#include <poll.h>

namespace {

constexpr Milliseconds trialCloseTimeout{1500};
constexpr std::uint32_t trialSearchTime = 1000; // Milliseconds; a GigE Vision camera may wait that long.
constexpr int pollInterval = 20; // Milliseconds.

/// One producer in its host process.
class ProducerTrial
{
public:
    ProducerTrial(const std::string &hostProgram, const std::string &path, Milliseconds replyTimeout)
        : m_client(replyTimeout, replyTimeout)
    {
        m_report.path = path;
        auto started = m_host.start(hostProgram, path);
        if (!started.failure.empty()) {
            fail(started.failure);
            return;
        }
        m_client.connect(std::move(started.channel));
        m_client.send(ProducerInfoRequest(), SteadyClock::now());
    }

    bool isFinished() const { return m_isFinished; }
    ProducerReport takeReport() { return std::move(m_report); }

    /// Processes what has arrived. Never blocks for long.
    void update()
    {
        if (m_isClosing)
            return finishIfExited();
        std::visit([this](auto &&received) { handle(received); }, m_client.receive());
        if (!m_isClosing && m_client.isExpired(SteadyClock::now())) {
            m_host.kill();
            fail("the producer does not answer");
        }
    }

private:
    void handle(const ProducerClient::Nothing &) { }
    void handle(const ProducerClient::ProtocolError &error) { fail("the host " + error.reason); }
    void handle(const ProducerClient::ProducerFailure &failure)
    {
        fail(callReason(failure.problem.call, failure.problem.code, failure.problem.text));
    }
    void handle(const ProducerClient::Disconnected &)
    {
        m_hasCrashed = true;
        close();
    }
    void handle(const Message &message)
    {
        if (auto info = message.content<ProducerInfoReply>()) {
            m_report.info = std::move(info);
            m_client.send(ListCamerasRequest{true, trialSearchTime}, SteadyClock::now());
        } else if (auto cameras = message.content<CameraListReply>()) {
            m_report.interfaces = std::move(cameras->interfaces);
            m_report.problems = std::move(cameras->problems);
            m_client.sendLast(CloseProducerRequest());
            close();
        } else {
            fail("the host has sent an unexpected reply");
        }
    }

    void fail(const std::string &reason)
    {
        m_report.failure = reason;
        close();
    }

    void close()
    {
        m_isClosing = true;
        m_closeEnd = SteadyClock::now() + trialCloseTimeout;
    }

    void finishIfExited()
    {
        if (!m_host.isStarted()) {
            m_isFinished = true;
            return;
        }
        const auto status = m_host.tryReap();
        if (!status && SteadyClock::now() >= m_closeEnd)
            m_host.kill(); // The next updates reap the process.
        if (!status)
            return;
        m_isFinished = true;
        if (m_hasCrashed)
            m_report.failure = "the process of the producer " + exitReason(*status);
    }

    HostProcess m_host;
    ProducerClient m_client;
    ProducerReport m_report;
    TimePoint m_closeEnd{};
    bool m_isClosing = false; // If true, no message is expected, and the process is about to exit.
    bool m_hasCrashed = false;
    bool m_isFinished = false;
};

} // namespace

std::vector<ProducerReport> tryProducers(
    const std::string &hostProgram, const std::vector<std::string> &paths, Milliseconds replyTimeout)
{
    std::vector<std::unique_ptr<ProducerTrial>> trials;
    for (const std::string &path : paths)
        trials.push_back(std::make_unique<ProducerTrial>(hostProgram, path, replyTimeout));
    const auto isFinished = [](const auto &trial) { return trial->isFinished(); };
    while (!std::all_of(trials.begin(), trials.end(), isFinished)) {
        poll(nullptr, 0, pollInterval);
        for (const auto &trial : trials) {
            if (!trial->isFinished())
                trial->update();
        }
    }
    std::vector<ProducerReport> reports;
    for (const auto &trial : trials)
        reports.push_back(trial->takeReport());
    return reports;
}
