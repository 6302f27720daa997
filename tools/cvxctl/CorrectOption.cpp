#include "tools/cvxctl/CorrectOption.h"

#include "tools/cvxctl/Terminal.h"

void addCorrectOption(CLI::App &command, std::vector<std::string> &files)
{
    command
        .add_option("--correct", files,
            "Defect map (JSON or CSV) or flat field (TIFF) that corrects the images; can be given once for "
            "each, "
            "but not for raw files")
        ->type_name("FILE")
        ->allow_extra_args(false); // Otherwise, the option would take the arguments after it.
}

ExitStatus readCorrectionFiles(
    const std::vector<std::string> &files, ImageFileFormat format, CorrectionSource &correction)
{
    if (files.empty())
        return exitSuccess;
    if (format == ImageFileFormat::Raw) {
        printError("a raw file contains what the camera has sent, so --correct cannot be used with it; save "
                   "a TIFF file, or correct the images later");
        return exitUsage;
    }
    correction = readCorrection(files);
    if (correction.problem.empty())
        return exitSuccess;
    printError(correction.problem);
    return exitFailure;
}
