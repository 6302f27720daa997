#pragma once

#include "CvxCPP/CvxCPP.h"

#include <string>

/// How a person can name a camera. A string that the camera does not report is empty.
struct CameraNames
{
    std::string id; ///< Device ID of the producer.
    std::string extendedId; ///< Device ID with producer and interface; unique.
    std::string model;
    std::string serial;
    std::string name; ///< Display name.
    std::string userName; ///< The name that a user has stored in the camera.
};

/// Reads the names from the camera object. A string that cannot be read is empty.
CameraNames readCameraNames(const CvxCPP::Camera &camera);

/// Returns the name of the technology that connects the camera, for example "GigE"; "unknown" if the camera
/// does not tell.
const char *technologyName(const CvxCPP::Camera &camera);
