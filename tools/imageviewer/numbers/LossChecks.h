#pragma once

#include "CvxCPP/CvxCPP.h"
#include "sdk/doctor/Finding.h"
#include "sdk/doctor/Machine.h"
#include "sdk/doctor/StreamCheck.h"

#include <string>

/// What checks for the cause of losses are about.
struct LossQuestion
{
    std::string camera; ///< Name of the camera.
    CvxCPP::CvxTransportLayerType technology = CvxCPP::CvxTransportLayerUnknown;
    StreamReport report; ///< The stream so far.
};

/// Makes the checks that matter for the technology of the camera. Blocks for some seconds.
Findings findLossCauses(const LossQuestion &question);

/// Returns the findings about a GigE camera that can explain losses, the most specific one first.
Findings gigeLossCauses(const LossQuestion &question, const Machine &machine);

/// Returns the findings about a USB camera that can explain losses, the most specific one first.
Findings usbLossCauses(const FileTree &files);
