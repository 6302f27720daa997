#pragma once

#include "sdk/simulator/CameraModel.h"
#include "sdk/simulator/RegisterFile.h"

/// Executes a command register of the camera. Throws GenTlError if the command is refused.
void executeCommand(
    const RegisterInfo &command, std::size_t element, RegisterFile &registers, const CameraModel &model);
