#pragma once

#include <filesystem>
#include <set>
#include <string>

/// Every symbol that a 64-bit ELF library offers to others.
std::set<std::string> exportedSymbols(const std::filesystem::path &library);
