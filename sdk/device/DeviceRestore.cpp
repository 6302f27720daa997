#include "sdk/device/DeviceRestore.h"

#include "sdk/device/StreamStart.h"

using namespace CvxCPP;

namespace {

/// Lets the journal read and write the nodes of a camera.
class HostTarget final : public JournalTarget
{
public:
    HostTarget(HostChannel &host, Milliseconds timeout) : m_host(host), m_timeout(timeout) { }

    std::optional<NodeValue> read(const std::string &name) override { return ask(ReadValueRequest{name}); }

    bool write(const std::string &name, const NodeValue &value) override
    {
        return ask(WriteValueRequest{name, value}).has_value();
    }

    /// Lets the host remember the values that it has to put back, and those of later writes if `isActive`.
    void continueTemporaryChanges(const TemporaryValues &temporary)
    {
        if (m_breakdown)
            return;
        const auto answer = m_host.ask<TemporaryChangesBegunReply>(
            BeginTemporaryChangesRequest{temporary.remembered(), temporary.isActive()},
            SteadyClock::now() + m_timeout);
        if (const auto *breakdown = std::get_if<Breakdown>(&answer))
            m_breakdown = *breakdown;
    }

    /// Ends the changes in this way. What the camera refuses stays remembered.
    void endTemporaryChanges(DeviceCore &core, TemporaryChanges how)
    {
        if (m_breakdown)
            return;
        const auto answer = m_host.ask<TemporaryChangesEndedReply>(
            EndTemporaryChangesRequest{how == TemporaryChanges::PutBack}, SteadyClock::now() + m_timeout);
        if (const auto *breakdown = std::get_if<Breakdown>(&answer))
            m_breakdown = *breakdown;
        else if (const auto *ended = std::get_if<TemporaryChangesEndedReply>(&answer))
            core.temporary.end(how, core.journal, ended->refused);
    }

    bool isLost() const override { return m_breakdown.has_value(); }
    const std::string &reason() const { return m_breakdown->reason; }

private:
    template <typename Request>
    std::optional<NodeValue> ask(const Request &request)
    {
        if (m_breakdown)
            return std::nullopt;
        const auto answer = m_host.ask<NodeValueReply>(request, SteadyClock::now() + m_timeout);
        if (const auto *reply = std::get_if<NodeValueReply>(&answer))
            return reply->value;
        if (const auto *breakdown = std::get_if<Breakdown>(&answer))
            m_breakdown = *breakdown;
        return std::nullopt;
    }

    HostChannel &m_host;
    const Milliseconds m_timeout;
    std::optional<Breakdown> m_breakdown;
};

/// Writes the settings of the program. Returns the names of the nodes whose values were refused.
std::vector<std::string> restoreSettings(DeviceCore &core, HostTarget &target)
{
    TemporaryValues &temporary = core.temporary;
    const auto requested = temporary.requestedEnd();
    if (temporary.isActive() && requested == TemporaryChanges::Keep)
        temporary.end(TemporaryChanges::Keep, core.journal);
    if (!temporary.isPutBackAtClose())
        return core.journal.replay(target);
    if (!temporary.isActive()) {
        auto refused = core.journal.replay(target);
        target.continueTemporaryChanges(temporary);
        return refused;
    }
    // The host must not remember a temporary value as the original one, so the temporary values come last.
    auto refused = temporary.journalBefore().replay(target);
    target.continueTemporaryChanges(temporary);
    if (requested) {
        target.endTemporaryChanges(core, *requested);
        return refused;
    }
    return core.journal.replay(target);
}

} // namespace

std::variant<RestoredDevice, std::string> restoreDevice(DeviceCore &core, HostChannel &host)
{
    RestoredDevice restored;
    HostTarget target(host, core.options.requestTimeout);
    restored.refused = restoreSettings(core, target);
    if (target.isLost())
        return target.reason();
    restored.stream = core.gate.stream();
    if (!restored.stream)
        return restored;
    auto started = startStream(host, core.target.access, restored.stream->buffers(),
        restored.stream->policy(), SteadyClock::now() + core.options.startTimeout);
    if (auto *failed = std::get_if<RequestFailedReply>(&started))
        return std::move(failed->text);
    if (auto *breakdown = std::get_if<Breakdown>(&started))
        return std::move(breakdown->reason);
    restored.images = std::get<std::shared_ptr<const ImageQueue>>(std::move(started));
    return restored;
}
