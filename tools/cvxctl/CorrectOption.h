#pragma once

#include "sdk/imagefile/CorrectionFiles.h"
#include "sdk/imagefile/ImageFileFormat.h"
#include "tools/cvxctl/ExitStatus.h"

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

/// Adds the option --correct, which may be given several times.
void addCorrectOption(CLI::App &command, std::vector<std::string> &files);

/// Reads the files, before anything is asked of a camera. Prints an error if they cannot be used, or if
/// images of this format stay what the camera has sent.
ExitStatus readCorrectionFiles(
    const std::vector<std::string> &files, ImageFileFormat format, CorrectionSource &correction);
