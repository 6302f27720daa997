#pragma once

#include "CvxCPP/Device.h"
#include "tools/cvxctl/ExitStatus.h"

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

/// Returns an error message unless the text is NAME=VALUE, for CLI::Option::check().
std::string checkAssignment(const std::string &text);

/// Returns the NAME of NAME=VALUE.
std::string assignedName(const std::string &assignment);

/// Writes one feature. Prints an error on failure.
ExitStatus writeAssignment(CvxCPP::Device &device, const std::string &assignment);

/// Writes features in the given order, up to the first failure.
ExitStatus writeAssignments(CvxCPP::Device &device, const std::vector<std::string> &assignments);

/// Adds the option --set, which may be given several times.
void addSetOption(CLI::App &command, std::vector<std::string> &assignments);
