#pragma once

#include "sdk/gvcp/InterfaceAddresses.h"

#include <cstdint>
#include <vector>

/// Makes the kernel ask which devices have these addresses. The neighbour table then contains the devices
/// that have answered. Blocks for at most 1.1 s. No privilege is needed.
/// @param from The address of this machine in the subnet of the addresses.
void probeAddresses(const InterfaceAddress &from, const std::vector<std::uint32_t> &addresses);
