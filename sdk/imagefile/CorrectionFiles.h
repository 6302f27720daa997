#pragma once

#include "CvxCPP/Image.h"
#include "sdk/image/Correction.h"
#include "sdk/imagefile/CameraRecord.h"
#include "sdk/imagefile/MapOrigin.h"

#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

/// A correction and the files that it was read from.
struct CorrectionSource
{
    std::shared_ptr<const Correction> correction; ///< Null: pictures are not corrected.
    std::vector<MapOrigin> origins; ///< The origin of each file.
    /// For sidecars: a list with "file", "format", "created" and "camera" of each file.
    nlohmann::ordered_json files = nlohmann::ordered_json::array();
    std::string problem; ///< Why the files cannot be used, for people; empty if they can.
};

/// Reads a defect map (JSON or CSV) and a flat field (TIFF), or one of them. The contents decide what a file
/// is, not its name. Two files of the same kind are refused.
CorrectionSource readCorrection(const std::vector<std::string> &paths);

/// Returns the correction at the place of the image on the sensor.
PlacedCorrection placedCorrection(const CorrectionSource &source, const CvxCPP::ImageInfo &image);

/// Returns why the image cannot be corrected; empty if it can, or if there is no correction.
std::string correctionProblem(const CorrectionSource &source, const CvxCPP::ImageInfo &image);

/// Returns why the correction does not fit the camera, as far as both records say it: the files are of
/// another camera, or its pictures were mirrored, binned or decimated in another way. Pictures themselves do
/// not tell that. Empty if nothing speaks against the correction.
std::string cameraProblem(const CorrectionSource &source, const CameraRecord &camera);
