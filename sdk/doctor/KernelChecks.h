#pragma once

#include "sdk/doctor/Finding.h"
#include "sdk/doctor/Machine.h"

/// Checks the limit of receive buffers, which streams of GigE cameras need.
Findings checkReceiveBuffer(const Machine &machine);

/// Checks whether the reverse-path filter drops answers of cameras in other subnets.
Findings checkReversePathFilter(const Machine &machine);

/// Looks for a firewall that may drop answers of cameras, as far as it can be read without privileges.
Findings checkFirewall(const Machine &machine);
