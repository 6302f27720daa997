#include "sdk/camerahost/MissingNodeMap.h"

#include <utility>

MissingNodeMap::MissingNodeMap(std::string reason) : m_failure{DeviceFailure::NotFound, std::move(reason)} { }

std::variant<CvxCPP::NodeState, NodeMap::Failure> MissingNodeMap::state(const std::string &)
{
    return m_failure;
}

std::variant<CvxCPP::NodeValue, NodeMap::Failure> MissingNodeMap::read(const std::string &)
{
    return m_failure;
}

std::optional<NodeMap::Failure> MissingNodeMap::write(const std::string &, const CvxCPP::NodeValue &)
{
    return m_failure;
}
