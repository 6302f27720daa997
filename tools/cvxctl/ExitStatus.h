#pragma once

#include "CvxCPP/Device.h"

/// The exit status of the program. Scripts rely on the numbers, so they never change.
enum ExitStatus : int
{
    exitSuccess = 0,
    exitFailure = 1, ///< The SDK, the camera or a file failed.
    exitUsage = 2, ///< The command line is wrong.
    exitNoCamera = 3, ///< No camera matches.
    exitAmbiguous = 4, ///< Several cameras match.
    exitInUse = 5, ///< Another program uses the camera.
    exitLost = 6, ///< The camera is gone or does not answer.
    exitFeature = 7, ///< The feature does not exist, or its value cannot be read or written.
    exitFindings = 10, ///< The doctor has found something to correct.
    exitInterrupted = 130 ///< Ctrl-C ended the command before it was complete.
};

/// The list of the numbers and their meanings, for the help.
extern const char exitStatusHelp[];

/// Returns the exit status for an error of the SDK.
ExitStatus exitStatus(CvxCPP::CvxError error);
