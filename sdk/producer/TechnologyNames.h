#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Returns the names that the type features of the modules use for the transport layer types.
std::vector<std::string> technologyNames();

/// Returns the index of a transport layer type in technologyNames(). An unknown type counts as "Custom".
std::uint64_t technologyIndex(const std::string &tlType);
