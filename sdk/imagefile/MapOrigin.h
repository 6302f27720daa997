#pragma once

#include <nlohmann/json.hpp>
#include <string>

/// Where a file that corrects the pictures of a camera comes from.
struct MapOrigin
{
    std::string created; ///< UTC time; empty if the file does not say it.
    /// The members "camera", "settingsTime" and "settings" of cameraJson(); an empty object if they are not
    /// known. Files that other programs have made can contain anything.
    nlohmann::ordered_json camera = nlohmann::ordered_json::object();
};
