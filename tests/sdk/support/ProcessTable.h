#pragma once

#include <cstddef>
#include <string>
#include <sys/types.h>
#include <vector>

/// The processes that have this parent, zombies included.
std::vector<pid_t> childrenOf(pid_t parent);

/// All processes with this text in their command line.
std::vector<pid_t> processesWith(const std::string &argument);

/// Ends what a failed test has left of its own.
void killAll(const std::vector<pid_t> &processes);

/// The open descriptors of this process.
std::size_t openDescriptors();

/// Threads of this process.
std::size_t threadCount();
