#pragma once

#include <cstddef>
#include <string>
#include <sys/types.h>
#include <vector>

/// Returns the children of this process, including zombies.
std::vector<pid_t> childrenOf(pid_t parent);

/// Returns all processes with this text in their command line.
std::vector<pid_t> processesWith(const std::string &argument);

/// Kills processes that a failed test did not end.
void killAll(const std::vector<pid_t> &processes);

/// Returns the number of open descriptors of this process.
std::size_t openDescriptors();

/// Returns the number of threads of this process.
std::size_t threadCount();
