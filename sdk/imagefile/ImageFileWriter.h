#pragma once

#include "CvxCPP/Image.h"
#include "sdk/imagefile/CameraRecord.h"
#include "sdk/imagefile/CorrectionFiles.h"
#include "sdk/imagefile/ImageFileFormat.h"
#include "sdk/imagefile/SampleConverter.h"

#include <string>

/// Writes image files, each with a sidecar. Its memory is reused from file to file.
class ImageFileWriter
{
public:
    /// Corrects the pictures of the PNG and TIFF files that follow; their sidecars name the files of the
    /// correction. Raw files stay what the camera has sent.
    void setCorrection(CorrectionSource correction) { m_correction = std::move(correction); }

    /// Writes the file and its sidecar; existing ones are replaced. Whoever sees the file sees all of it, and
    /// its sidecar too. A pipe or a device gets no sidecar. Returns why the file cannot be written, for
    /// people; empty if it was.
    std::string write(const CvxCPP::Image &image, const std::string &path, ImageFileFormat format,
        const CameraRecord &camera);

private:
    CorrectionSource m_correction;
    SampleConverter m_converter;
};
