#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <stdexcept>

/// Returns the enumerator that a message contains as a number. Throws if the enumeration, whose last
/// enumerator is `last`, does not have it.
template <typename Enumeration>
Enumeration toEnumeration(const nlohmann::json &value, Enumeration last)
{
    const auto number = value.get<std::uint32_t>();
    if (number > static_cast<std::uint32_t>(last))
        throw std::out_of_range("not a value of the enumeration");
    return static_cast<Enumeration>(number);
}

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
