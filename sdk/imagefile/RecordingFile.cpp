#include "sdk/imagefile/RecordingFile.h"

#include "sdk/image/PixelFormat.h"
#include "sdk/imagefile/ImageFileFormat.h"
#include "sdk/imagefile/RawRecording.h"
#include "sdk/imagefile/SampleConverter.h"
#include "sdk/imagefile/TiffRecording.h"

namespace {

bool isTiff(const std::string &path)
{
    return imageFileFormat(path) == ImageFileFormat::Tiff;
}

} // namespace

std::unique_ptr<RecordingFile> createRecordingFile(
    const std::string &path, const CameraRecord &camera, const CorrectionSource &correction)
{
    if (isTiff(path))
        return std::make_unique<TiffRecording>(path, camera, correction);
    return std::make_unique<RawRecording>(path);
}

RecordedSize recordedSize(
    const std::string &path, std::uint32_t pixelFormat, std::uint32_t width, std::uint32_t height)
{
    if (!isTiff(path))
        return {(std::uint64_t(width) * bitsPerPixel(pixelFormat) + 7) / 8 * height, {}};
    std::string problem = fileFormatProblem(pixelFormat);
    if (!problem.empty())
        return {0, std::move(problem)};
    return {unscaledSize(pixelFormat, width, height), {}};
}
