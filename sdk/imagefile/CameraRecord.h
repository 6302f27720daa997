#pragma once

#include "CvxCPP/Device.h"

#include <nlohmann/json.hpp>
#include <string>

/// What the files of a camera say about the camera.
struct CameraRecord
{
    std::string id; ///< The extended ID.
    std::string vendor;
    std::string model;
    std::string serialNumber;
    std::string userName;
    std::string settingsTime; ///< When the settings were read, in UTC; empty if they were not.
    nlohmann::ordered_json settings; ///< Names and values of the features that belong into a settings file.
};

/// Reads the record. Whatever the camera does not tell stays empty. Blocks for at most 10 s.
CameraRecord readCameraRecord(const CvxCPP::Camera &camera, CvxCPP::Device &device);
