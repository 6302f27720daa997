#pragma once

#include "sdk/imagefile/CameraRecord.h"
#include "tools/cvxctl/ExitStatus.h"
#include "tools/kit/measure/run/MeasureContext.h"

#include <CLI/CLI.hpp>
#include <functional>
#include <string>
#include <vector>

/// What every measuring command knows of its command line.
struct MeasureOptions
{
    std::string camera;
    std::vector<std::string> assignments; ///< NAME=VALUE; put back after the measurement.
    bool keepsChanges = false; ///< The other settings that the work changes stay if it succeeds.
};

/// Adds the argument CAMERA and the option --set.
void addMeasureOptions(CLI::App &command, MeasureOptions &options);

/// Does the measurement. Returns why that failed; empty if it succeeded.
using MeasureWork = std::function<Sentence(const MeasureContext &context, const CameraRecord &camera)>;

/// Opens the camera, begins temporary changes, applies the assignments, starts the stream and runs the work
/// with a line of progress on standard error, if that is a terminal. Then stops the stream and puts the
/// settings back, also after Ctrl-C. Prints an error on failure.
ExitStatus runMeasurement(const MeasureOptions &options, const MeasureWork &work);

/// Asks the person at the terminal to do something, for example to cover the lens, and waits for Return.
/// Without a terminal, prints an error, in which `options` names those that avoid the question.
ExitStatus askPerson(const std::string &request, const std::string &options = {});
