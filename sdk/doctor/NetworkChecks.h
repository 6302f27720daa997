#pragma once

#include "sdk/doctor/Finding.h"
#include "sdk/doctor/Machine.h"

/// Checks cable, address, speed and MTU of each Ethernet interface.
Findings checkLinks(const Machine &machine);

/// Checks that no two network interfaces are in the same subnet.
Findings checkSubnets(const Machine &machine);
