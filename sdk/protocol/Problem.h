#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>

/// One failed call into a producer.
struct Problem
{
    std::string call; ///< The function, for example "TLOpen".
    std::int32_t code = 0; ///< The GenTL error code; 0 if the failure has no code.
    std::string text; ///< The producer's error text or ours; may be empty.
};

NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(Problem, call, code, text)
