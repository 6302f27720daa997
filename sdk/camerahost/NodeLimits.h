#pragma once

#include "CvxCPP/Node.h"
#include "sdk/camerahost/NodeEngine.h"

#include <limits>
#include <optional>
#include <string>

/// The values that a number may have at present. An absent limit does not exist or cannot be read.
struct Limits
{
    // Exact for all integers of 64 bits.
    std::optional<long double> minimum;
    std::optional<long double> maximum;
    std::optional<long double> increment;
    std::string problem; ///< Why a limit cannot be read; a sentence.
};

/// Determines the limits of integers and floats: those that the node states, narrowed by those of the nodes
/// behind which its value is, down to the size of the register.
class NodeLimits
{
public:
    /// All must exist as long as this object.
    NodeLimits(const Description &description, NodeEngine &engine)
        : m_description(description), m_engine(engine)
    { }

    Limits read(NodeIndex node);

private:
    std::optional<long double> stated(
        const NodeDescription &node, PropertyKind constant, PropertyKind reference, std::string &problem);
    void narrow(Limits &limits, const NodeDescription &node);
    void addConverterLimits(Limits &limits, NodeIndex node);
    void addRegisterLimits(Limits &limits, const NodeDescription &node);

    const Description &m_description;
    NodeEngine &m_engine;
};

static_assert(std::numeric_limits<long double>::digits >= 63);
