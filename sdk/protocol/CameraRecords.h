#pragma once

#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

/// One device as its producer reports it. Every string except the ID may be empty. The strings are raw
/// bytes in the host and valid UTF-8 in the library: sending a message replaces malformed bytes by U+FFFD.
struct DeviceRecord
{
    std::string id;
    std::string vendor;
    std::string model;
    std::string serial;
    std::string name;
    std::string type; ///< GenTL transport layer type, for example "GEV".
    std::string userName{}; ///< The name that a user has stored in the camera.
};

/// One interface of a producer, with its devices.
struct InterfaceRecord
{
    std::uint64_t number = 0; ///< Number that identifies the interface; a host never reuses a number.
    std::string id;
    std::string name;
    std::string type; ///< GenTL transport layer type, for example "GEV".
    std::vector<DeviceRecord> devices; ///< Sorted by operator<.
};

bool operator==(const DeviceRecord &a, const DeviceRecord &b);
bool operator==(const InterfaceRecord &a, const InterfaceRecord &b);

/// Orders devices by ID, then by the other fields.
bool operator<(const DeviceRecord &a, const DeviceRecord &b);

void to_json(nlohmann::json &json, const DeviceRecord &value);
void from_json(const nlohmann::json &json, DeviceRecord &value);
void to_json(nlohmann::json &json, const InterfaceRecord &value);
void from_json(const nlohmann::json &json, InterfaceRecord &value);
