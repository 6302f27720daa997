#pragma once

#include "sdk/producerhost/OpenInterface.h"

#include <cstdint>
#include <memory>
#include <vector>

/// Searches all interfaces for devices. Each interface has `timeout` milliseconds. Slow searches run in
/// parallel on a limited number of threads. Blocks until all searches have ended.
void searchInterfaces(const std::vector<std::unique_ptr<OpenInterface>> &interfaces, std::uint32_t timeout);
