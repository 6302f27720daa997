#pragma once

#include "sdk/producer/DeviceSource.h"

#include <string>
#include <vector>

/// An interface of the scene with the devices connected to it.
struct SceneInterface
{
    InterfaceRecord record;
    std::vector<DeviceRecord> devices;
};

/// What the simulator shows.
using Scene = std::vector<SceneInterface>;

/// Two cameras on one interface: what is shown without a scene file.
Scene defaultScene();

/// Reads a scene file's text, which is one JSON object in UTF-8:
///
///     {
///         "interfaces": [                      required, may be empty
///             {
///                 "id": "gev-0",               required, unique in the file
///                 "name": "Network card 0",    text for people; the ID if left out or empty
///                 "tlType": "GEV",             GenTL transport layer type; "Custom" if left out or empty
///                 "devices": [                 none if left out
///                     {
///                         "id": "00:11:22",    required, unique in the interface
///                         "vendor": "…",       these five may each be left out or be empty
///                         "model": "…",
///                         "serial": "…",
///                         "userName": "…",
///                         "displayName": "…",  if empty: the user name, else vendor, model and ID joined
///                         "tlType": "…"        the interface's if left out or empty
///                     }
///                 ]
///             }
///         ]
///     }
///
/// All values are strings, a serial number too. Keys that are not named here are ignored. Throws
/// std::runtime_error, which names the faulty place, for any other text.
Scene parseScene(const std::string &text);
