#include "sdk/imagefile/ImageFileWriter.h"

#include "sdk/imagefile/OutputFile.h"
#include "sdk/imagefile/PngWriter.h"
#include "sdk/imagefile/Sidecar.h"
#include "sdk/imagefile/TiffRecording.h"
#include "sdk/imagefile/TiffWriter.h"

#include <filesystem>

namespace {

bool writePicture(OutputFile &file, const CvxCPP::Image &image, ImageFileFormat format,
    const CameraRecord &camera, SampleConverter &converter)
{
    const RawImage picture = rawImage(image);
    switch (format) {
    case ImageFileFormat::Png8:
        return writePng(file, converter.fullRange8(picture));
    case ImageFileFormat::Png16:
        return writePng(file, converter.fullRange16(picture));
    case ImageFileFormat::Tiff:
        return TiffWriter(file, TiffWriter::Variant::Classic)
            .append(converter.unscaled(picture), tiffTexts(image, camera));
    case ImageFileFormat::Raw:
        break;
    }
    return file.append(image.GetData(), image.GetSize());
}

} // namespace

std::string ImageFileWriter::write(
    const CvxCPP::Image &image, const std::string &path, ImageFileFormat format, const CameraRecord &camera)
{
    if (format != ImageFileFormat::Raw) {
        std::string problem = imageFileProblem(image.GetInfo());
        if (problem.empty())
            problem = correctionProblem(m_correction, image.GetInfo());
        if (!problem.empty())
            return problem;
        m_converter.setCorrection(placedCorrection(m_correction, image.GetInfo()));
    }
    OutputFile file;
    if (!file.createHidden(path) || !writePicture(file, image, format, camera, m_converter))
        return file.problem();
    if (!isSpecialFile(path)) {
        nlohmann::ordered_json json{{"file", std::filesystem::path(path).filename().string()},
            {"format", formatText(format)}, {"image", imageJson(image)}};
        if (format != ImageFileFormat::Raw && m_correction.correction)
            json["corrections"] = m_correction.files;
        json.update(cameraJson(camera));
        if (std::string problem = writeSidecar(sidecarPath(path), json); !problem.empty())
            return problem;
    }
    return file.publish() ? std::string() : file.problem();
}
