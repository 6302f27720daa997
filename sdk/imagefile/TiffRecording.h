#pragma once

#include "sdk/imagefile/CorrectionFiles.h"
#include "sdk/imagefile/OutputFile.h"
#include "sdk/imagefile/RecordingFile.h"
#include "sdk/imagefile/SampleConverter.h"
#include "sdk/imagefile/TiffWriter.h"

/// A BigTIFF file with the measured values of all images; packed formats are unpacked. The description of
/// each image is its record as JSON. A picture that the correction does not fit ends the recording.
class TiffRecording final : public RecordingFile
{
public:
    TiffRecording(const std::string &path, const CameraRecord &camera, CorrectionSource correction = {});

    bool append(const CvxCPP::Image &image) override;
    bool finish() override;
    std::string problem() const override;

private:
    const CameraRecord m_camera;
    const CorrectionSource m_correction;
    OutputFile m_file;
    TiffWriter m_writer{m_file, TiffWriter::Variant::Big};
    SampleConverter m_converter;
};

/// Returns the texts that a TIFF file contains about an image.
TiffTexts tiffTexts(const CvxCPP::Image &image, const CameraRecord &camera);
