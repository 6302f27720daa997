#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

using Fields = std::vector<std::string>; // The first one is the ID.

struct ScriptedDevice
{
    Fields fields;
    std::uint64_t searchTime = 0; // Milliseconds. A search with a shorter timeout does not find the device.
};

/// The content of a script; TestProducer.cpp describes its lines.
struct Script
{
    std::vector<Fields> interfaces;
    std::multimap<std::string, ScriptedDevice> devices; // Key: interface ID.
    std::map<std::string, std::string> faults; // Key: function; value: action.
    bool isQuiet = false;
    bool isSelfUpdating = false;
};

/// Returns the path of the producer's file without its suffix.
const std::string &basePath();

/// Returns the path of the script.
std::string scriptPath();

/// Reads the script.
Script readScriptFile();
