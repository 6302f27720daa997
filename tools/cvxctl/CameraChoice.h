#pragma once

#include <string>
#include <vector>

/// How a person can name a camera.
struct CameraNames
{
    std::string id; ///< Device ID of the producer.
    std::string extendedId; ///< With producer and interface; unique.
    std::string model;
    std::string serial;
    std::string name; ///< Display name.
    std::string userName; ///< The name that a user has stored in the camera.
};

/// Returns the indexes of the cameras that the text means. A camera whose ID, serial number or user name is
/// exactly the text wins over the cameras of which the text is only a part of the ID, serial number, user
/// name, model or display name. Letter case does not matter (ASCII only).
std::vector<std::size_t> matchCameras(const std::vector<CameraNames> &cameras, const std::string &text);
