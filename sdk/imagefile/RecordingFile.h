#pragma once

#include "CvxCPP/Image.h"
#include "sdk/imagefile/CameraRecord.h"
#include "sdk/imagefile/CorrectionFiles.h"

#include <cstdint>
#include <memory>
#include <string>

/// The file of a recording. Whatever happens to the program, the images that were appended stay readable.
class RecordingFile
{
public:
    virtual ~RecordingFile() = default;

    /// Appends an image. Returns false on failure; the file then ends with the previous image.
    virtual bool append(const CvxCPP::Image &image) = 0;

    /// Closes the file. Returns false on failure.
    virtual bool finish() = 0;

    /// Returns why a function has failed, for people.
    virtual std::string problem() const = 0;
};

/// Creates or replaces the file: a BigTIFF file if its name ends in ".tif" or ".tiff", otherwise a raw file
/// with an index. RecordingFile::problem() says if that failed. Pictures of a TIFF file are corrected; raw
/// files stay what the camera has sent.
std::unique_ptr<RecordingFile> createRecordingFile(
    const std::string &path, const CameraRecord &camera, const CorrectionSource &correction);

/// How many bytes an image takes in a recording, without what describes it.
struct RecordedSize
{
    std::uint64_t bytes = 0;
    std::string problem; ///< Why this file cannot contain such images, for people; empty if it can.
};

/// Returns the size of images in the recording that createRecordingFile() creates for the path.
RecordedSize recordedSize(
    const std::string &path, std::uint32_t pixelFormat, std::uint32_t width, std::uint32_t height);
