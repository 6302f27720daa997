#pragma once

#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <string>

/// One failed call of a producer's function.
struct Problem
{
    std::string call; ///< Name of the function, for example "TLOpen".
    std::int32_t code = 0; ///< The GenTL error code; 0 if the failure has no code.
    std::string text; ///< Error text of the producer or of the host; may be empty.
};

void to_json(nlohmann::json &json, const Problem &value);
void from_json(const nlohmann::json &json, Problem &value);
