#pragma once

#include "CvxCPP/Device.h"
#include "sdk/device/DeviceCore.h"

#include <string>
#include <vector>

/// The requests for the nodes of a device, which check their arguments before they use the host; see
/// CvxCPP::Device. Every function throws only std::exception.
class NodeRequests
{
public:
    explicit NodeRequests(DeviceCore &core) : m_core(core) { }

    CvxCPP::CvxResult readStates(
        const std::vector<std::string> &names, std::vector<CvxCPP::NodeState> &states);
    CvxCPP::CvxResult read(const std::string &name, CvxCPP::NodeValue &value);
    CvxCPP::CvxResult write(const std::string &name, const CvxCPP::NodeValue &value);
    CvxCPP::CvxResult writeText(const std::string &name, const std::string &text);
    CvxCPP::CvxResult execute(const std::string &name);

private:
    CvxCPP::CvxResult error(CvxCPP::CvxError code, const std::string &name, const char *reason) const;
    void learnSelectors(
        const DeviceGate::Turn &turn, const std::vector<std::string> &selectors, TimePoint end);
    TimePoint deadline() const { return SteadyClock::now() + m_core.options.requestTimeout; }

    template <typename Reply, typename Request>
    std::variant<Reply, CvxCPP::CvxResult> ask(const Request &request);

    DeviceCore &m_core;
};
