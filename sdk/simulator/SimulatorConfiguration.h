#pragma once

#include "sdk/producer/DeviceSource.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// What the configuration file says about the sensor of a device.
struct SensorKeys
{
    std::optional<int> width; ///< Pixels.
    std::optional<int> height;
    std::optional<bool> isColor;
    std::optional<bool> isLineScan;
    std::optional<int> taps;
    std::optional<std::uint64_t> seed; ///< Decides where the flaws of the sensor are.
    std::optional<bool> hasFlaws; ///< Without flaws, there is only the noise that every sensor has.
};

/// A simulated interface and the devices that are connected to it.
struct SimulatedInterface
{
    InterfaceRecord record;
    std::vector<DeviceRecord> devices;
    std::map<std::string, SensorKeys> sensors = {}; ///< By the ID of the device.
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
///                         "tlType": "…",       the interface's tlType if absent or empty
///                         "sensorWidth": 2448, pixels; this and the next six follow from the model's name
///                         "sensorHeight": 2048,     and from tlType if absent
///                         "color": false,      true for a sensor with colour filters; ignored for line scan
///                         "lineScan": false,   true for a sensor of one line
///                         "taps": 1,           number of stripes that are read out separately, 1 to 8
///                         "seed": 1,           decides where the flaws of the sensor are
///                         "flaws": true        false for a sensor without shading, defect pixels,
///                                                   differences of the taps and tilt, but with noise
///                     }
///                 ]
///             }
///         ]
///     }
///
/// Serial numbers are strings. Other keys are ignored. Throws std::runtime_error if the text
/// is invalid; the message names the place of the error. Any thread may call this function.
SimulatorConfiguration parseConfiguration(const std::string &text);
