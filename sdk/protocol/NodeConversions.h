#pragma once

#include "CvxCPP/Node.h"

#include <nlohmann/json_fwd.hpp>

// The JSON conversions of the node records. They are in the namespace of the records, where the JSON library
// looks for them.

namespace CvxCPP {

void to_json(nlohmann::json &json, const EnumerationEntry &value);
void from_json(const nlohmann::json &json, EnumerationEntry &value);
void to_json(nlohmann::json &json, const NodeInfo &value);
void from_json(const nlohmann::json &json, NodeInfo &value);
void to_json(nlohmann::json &json, const NodeState &value);
void from_json(const nlohmann::json &json, NodeState &value);

} // namespace CvxCPP

/// Converts a value. The JSON library cannot find a conversion of its own for a std::variant. A float is sent
/// as text with all its digits, because JSON knows neither infinity nor NaN; bytes are sent as hexadecimal
/// digits.
nlohmann::json toJson(const CvxCPP::NodeValue &value);
/// Throws std::exception if the JSON is not a value.
CvxCPP::NodeValue toNodeValue(const nlohmann::json &json);
