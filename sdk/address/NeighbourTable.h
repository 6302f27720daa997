#pragma once

#include "sdk/gvcp/CameraData.h"

#include <cstdint>
#include <string>
#include <vector>

/// A device that has answered this machine on a network interface.
struct Neighbour
{
    std::uint32_t address = 0; ///< In the byte order of this machine.
    MacAddress mac{};
    std::string networkInterface;
};

/// Returns the devices of a text in the form of /proc/net/arp. Leaves out the devices that have not answered.
std::vector<Neighbour> parseNeighbours(const std::string &text);

/// Returns the kernel's table. The table is empty if it cannot be read.
/// @param root The directory that stands for "/"; empty for the system's own.
std::vector<Neighbour> readNeighbours(const std::string &root = {});
