#pragma once

#include "sdk/producer/DeviceSource.h"

#include <string>
#include <vector>

/// A simulated interface and the devices that are connected to it.
struct SimulatedInterface
{
    InterfaceRecord record;
    std::vector<DeviceRecord> devices;
};

/// Everything that the simulator reports.
using SimulatorConfiguration = std::vector<SimulatedInterface>;

/// Returns what the simulator reports without a configuration file: two cameras on one interface.
SimulatorConfiguration defaultConfiguration();

/// Parses the text of a configuration file, which is one JSON object in UTF-8:
///
///     {
///         "interfaces": [                      required, may be empty
///             {
///                 "id": "gev-0",               required, unique in the file
///                 "name": "Network interface 0", the display name; the ID if absent or empty
///                 "tlType": "GEV",             GenTL transport layer type; "Custom" if absent or empty
///                 "devices": [                 none if absent
///                     {
///                         "id": "00:11:22",    required, unique in the interface
///                         "vendor": "…",       this and the next four may be absent or empty
///                         "model": "…",
///                         "serial": "…",
///                         "userName": "…",
///                         "displayName": "…",  if empty: user name, else vendor, model and ID
///                         "tlType": "…"        the interface's tlType if absent or empty
///                     }
///                 ]
///             }
///         ]
///     }
///
/// All values are strings, even serial numbers. Other keys are ignored. Throws std::runtime_error if the text
/// is invalid; the message names the place of the error. Any thread may call this function.
SimulatorConfiguration parseConfiguration(const std::string &text);
