#pragma once

#include <nlohmann/json.hpp>

/// Defines to_json() and from_json() for a struct and its members; every member must be present. For source
/// files: headers declare the two functions only, because the JSON library takes long to compile.
#define CORVIX_JSON_CONVERSIONS(Type, ...)                                                                   \
    void to_json(nlohmann::json &nlohmann_json_j, const Type &nlohmann_json_t)                               \
    {                                                                                                        \
        NLOHMANN_JSON_EXPAND(NLOHMANN_JSON_PASTE(NLOHMANN_JSON_TO, __VA_ARGS__))                             \
    }                                                                                                        \
    void from_json(const nlohmann::json &nlohmann_json_j, Type &nlohmann_json_t)                             \
    {                                                                                                        \
        NLOHMANN_JSON_EXPAND(NLOHMANN_JSON_PASTE(NLOHMANN_JSON_FROM, __VA_ARGS__))                           \
    }
