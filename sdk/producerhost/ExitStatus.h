#pragma once

/// What a host exits with when its connection is gone although the other end has not closed it: its driver
/// has.
constexpr int ConnectionLostStatus
    = 113; // No value of sysexits.h, and none that drivers were seen to exit with.
