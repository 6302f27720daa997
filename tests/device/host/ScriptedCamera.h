#pragma once

#include "CvxCPP/Node.h"
#include "sdk/protocol/DeviceMessages.h"

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// The features of the scripted host's camera. They have their defaults when the host starts.
class ScriptedCamera
{
public:
    std::vector<CvxCPP::NodeInfo> nodes() const;

    std::optional<CvxCPP::NodeState> state(const std::string &name) const;
    std::optional<CvxCPP::NodeValue> read(const std::string &name) const;

    /// OffsetX and Width together may not exceed 200. Other values are not checked.
    std::optional<RequestFailedReply> write(const std::string &name, const CvxCPP::NodeValue &value);

    /// Returns the nodes that depend on this one.
    std::vector<std::string> dependents(const std::string &name) const;

private:
    /// Returns the name with the value of the selector, if there is one.
    std::string key(const std::string &name) const;

    std::map<std::string, CvxCPP::NodeValue> m_values{{"Width", std::int64_t(200)},
        {"OffsetX", std::int64_t(0)}, {"GainSelector", std::string("All")}, {"Gain All", 1.0},
        {"Gain Red", 1.0}, {"ReverseX", false}, {"UserName", std::string("unnamed")},
        {"Table", std::vector<std::uint8_t>{1, 2, 255}}};
};
