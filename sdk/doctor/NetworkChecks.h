#pragma once

#include "sdk/doctor/Finding.h"
#include "sdk/doctor/Machine.h"

/// Checks cable, address, speed and MTU of each Ethernet interface.
Findings checkLinks(const Machine &machine);

/// Checks whether the packets of a streaming GigE camera fit through its network interface, and whether they
/// could be larger. Returns nothing unless exactly one interface has cameras, because otherwise it is unknown
/// which one the camera uses.
/// @param camera The name of the camera.
/// @param packetSize Bytes, as the feature GevSCPSPacketSize counts them.
Findings checkPacketSize(const Machine &machine, const std::string &camera, std::int64_t packetSize);

/// Checks that no two network interfaces are in the same subnet.
Findings checkSubnets(const Machine &machine);
