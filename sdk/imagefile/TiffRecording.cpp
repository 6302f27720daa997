#include "sdk/imagefile/TiffRecording.h"

#include "sdk/imagefile/Sidecar.h"

#include <algorithm>

namespace {

/// Returns the TIFF form of a time: "2026-01-31T23:59:59.123456Z" becomes "2026:01:31 23:59:59".
std::string tiffTime(const std::string &time)
{
    constexpr std::size_t length = 19;
    std::string text = time.substr(0, length);
    std::replace(text.begin(), text.end(), '-', ':');
    std::replace(text.begin(), text.end(), 'T', ' ');
    return text;
}

} // namespace

TiffRecording::TiffRecording(const std::string &path, const CameraRecord &camera, CorrectionSource correction)
    : m_camera(camera), m_correction(std::move(correction))
{
    m_file.create(path);
}

bool TiffRecording::append(const CvxCPP::Image &image)
{
    if (const std::string problem = imageFileProblem(image.GetInfo()); !problem.empty())
        return m_file.fail(problem);
    if (const std::string problem = correctionProblem(m_correction, image.GetInfo()); !problem.empty())
        return m_file.fail(problem);
    m_converter.setCorrection(placedCorrection(m_correction, image.GetInfo()));
    return m_writer.append(m_converter.unscaled(rawImage(image)), tiffTexts(image, m_camera));
}

bool TiffRecording::finish()
{
    return m_file.publish();
}

std::string TiffRecording::problem() const
{
    return m_file.problem();
}

TiffTexts tiffTexts(const CvxCPP::Image &image, const CameraRecord &camera)
{
    const nlohmann::ordered_json json = imageJson(image);
    return {json.dump(-1, ' ', true, nlohmann::ordered_json::error_handler_t::replace),
        tiffTime(json["time"]), camera.vendor, camera.model};
}
