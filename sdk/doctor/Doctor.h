#pragma once

#include "sdk/doctor/Finding.h"

#include <string>

/// What is checked.
struct DoctorOptions
{
    /// The directory that contains libCvxCPP.so, the host programs and CvxC.xml.
    std::string libraryDirectory;

    /// The directory that stands for "/" for the files in /proc, /sys, /dev and /etc; empty for the system
    /// itself.
    std::string root;

    /// Returns the options for the directory of the running program, which in an installation contains the
    /// library too.
    static DoctorOptions forThisProgram();
};

/// Makes all checks that need no camera to be opened: producers, network, GigE cameras and USB. Blocks for
/// three seconds, and for up to a minute if many producers or cameras do not answer. Never fails: a check
/// that cannot be made is a finding.
Findings runDoctor(const DoctorOptions &options);
