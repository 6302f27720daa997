#pragma once

#include "sdk/doctor/Finding.h"
#include "sdk/doctor/Machine.h"

/// Checks cable, address, speed and MTU of each Ethernet interface.
Findings checkLinks(const Machine &machine);

/// Checks whether the packets of a streaming GigE camera fit through the network interfaces with cameras, and
/// whether they could be larger.
/// @param camera The name of the camera.
/// @param packetSize Bytes, as the feature GevSCPSPacketSize counts them.
Findings checkPacketSize(const Machine &machine, const std::string &camera, std::int64_t packetSize);

/// Checks that no two network interfaces are in the same subnet.
Findings checkSubnets(const Machine &machine);
