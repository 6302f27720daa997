#pragma once

#include <cstddef>
#include <string>
#include <sys/types.h>
#include <vector>

/// The processes that have this parent, zombies included.
std::vector<pid_t> childrenOf(pid_t parent);

/// All processes with this text in their command line.
std::vector<pid_t> processesWith(const std::string &argument);

/// The open descriptors of this process.
std::size_t openDescriptors();

/// Threads of this process.
std::size_t threadCount();
