#pragma once

#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <string>

/// One failed call into a producer.
struct Problem
{
    std::string call; ///< The function, for example "TLOpen".
    std::int32_t code = 0; ///< The GenTL error code; 0 if the failure has no code.
    std::string text; ///< The producer's error text or ours; may be empty.
};

void to_json(nlohmann::json &json, const Problem &value);
void from_json(const nlohmann::json &json, Problem &value);
