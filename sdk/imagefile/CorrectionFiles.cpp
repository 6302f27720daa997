#include "sdk/imagefile/CorrectionFiles.h"

#include "sdk/imagefile/DefectMapFile.h"
#include "sdk/imagefile/FlatFieldFile.h"
#include "sdk/imagefile/MapFile.h"

#include <array>
#include <fstream>

namespace {

/// Returns true if the file begins as TIFF files do, in either byte order and variant.
bool isTiffFile(const std::string &path)
{
    std::array<char, 4> bytes{};
    std::ifstream(path, std::ios::binary).read(bytes.data(), bytes.size());
    const std::string_view begin(bytes.data(), bytes.size());
    for (const std::string_view magic : {std::string_view("II*\0", 4), std::string_view("MM\0*", 4),
             std::string_view("II+\0", 4), std::string_view("MM\0+", 4)})
        if (begin == magic)
            return true;
    return false;
}

/// What was read so far.
struct CorrectionParts
{
    std::optional<DefectMap> defects;
    std::optional<FlatField> field;
    CorrectionSource source; ///< Without the correction.
};

/// Adds a part. Returns why it cannot be added; empty if it was.
template <typename Part>
std::string addPart(std::optional<Part> &present, std::optional<Part> &&added, const char *format,
    const std::string &path, const MapOrigin &origin, CorrectionSource &source)
{
    if (present)
        return "\"" + path
            + "\" is of the same kind as a file before; give one defect map and one flat field";
    present = std::move(added);
    source.files.push_back({{"file", path}, {"format", format}, {"created", origin.created},
        {"camera", origin.camera.value("camera", nlohmann::ordered_json())}});
    source.origins.push_back(origin);
    return {};
}

std::string readPart(const std::string &path, CorrectionParts &parts)
{
    if (std::string problem = mapFileProblem(path, std::uint64_t(1) << 40U); !problem.empty())
        return problem; // Opening a pipe would wait for its other end.
    if (isTiffFile(path)) {
        FlatFieldReading reading = readFlatField(path);
        if (!reading.field)
            return reading.problem;
        return addPart(
            parts.field, std::move(reading.field), "corvix-x-flat-field", path, reading.origin, parts.source);
    }
    DefectMapReading reading = readDefectMap(path);
    if (!reading.map)
        return reading.problem;
    return addPart(
        parts.defects, std::move(reading.map), "corvix-x-defect-map", path, reading.origin, parts.source);
}

/// Returns a member of what may be an object; null if there is none.
nlohmann::ordered_json memberOf(const nlohmann::ordered_json &object, const char *name)
{
    const auto member = object.is_object() ? object.find(name) : object.end();
    return member == object.end() ? nlohmann::ordered_json() : *member;
}

/// Returns a member as text; empty if it is not known.
std::string memberText(const nlohmann::ordered_json &object, const char *name)
{
    const nlohmann::ordered_json member = memberOf(object, name);
    if (member.is_null())
        return {};
    return member.is_string() ? member.get<std::string>() : member.dump();
}

/// Returns true if both texts are known and differ.
bool isDifferent(const std::string &text, const std::string &other)
{
    return !text.empty() && !other.empty() && text != other;
}

/// Returns why a file does not fit the camera; empty if nothing speaks against it.
std::string originProblem(const std::string &path, const MapOrigin &origin, const CameraRecord &camera)
{
    const std::string serialNumber = memberText(memberOf(origin.camera, "camera"), "serialNumber");
    if (isDifferent(serialNumber, camera.serialNumber))
        return "\"" + path + "\" was measured with the camera " + serialNumber + ", but this camera is "
            + camera.serialNumber + "; choose the file of this camera";
    for (const char *const name : {"ReverseX", "ReverseY", "BinningHorizontal", "BinningVertical",
             "DecimationHorizontal", "DecimationVertical"}) {
        const std::string measured = memberText(memberOf(origin.camera, "settings"), name);
        const std::string present = memberText(camera.settings, name);
        if (isDifferent(measured, present))
            return "\"" + path + "\" was measured with " + name + " = " + measured + ", but the camera has "
                + name + " = " + present + "; set " + name + " to " + measured + ", or measure again";
    }
    return {};
}

} // namespace

CorrectionSource readCorrection(const std::vector<std::string> &paths)
{
    CorrectionParts parts;
    for (const std::string &path : paths) {
        if (std::string problem = readPart(path, parts); !problem.empty()) {
            CorrectionSource failed;
            failed.problem = std::move(problem);
            return failed;
        }
    }
    if (parts.defects || parts.field)
        parts.source.correction
            = std::make_shared<const Correction>(std::move(parts.defects), std::move(parts.field));
    return std::move(parts.source);
}

PlacedCorrection placedCorrection(const CorrectionSource &source, const CvxCPP::ImageInfo &image)
{
    return {source.correction, image.offsetX, image.offsetY};
}

std::string correctionProblem(const CorrectionSource &source, const CvxCPP::ImageInfo &image)
{
    if (!source.correction)
        return {};
    return source.correction->problem(
        image.pixelFormat, image.offsetX, image.offsetY, image.width, image.height);
}

std::string cameraProblem(const CorrectionSource &source, const CameraRecord &camera)
{
    for (std::size_t i = 0; i < source.origins.size(); ++i) {
        std::string problem = originProblem(source.files[i]["file"], source.origins[i], camera);
        if (!problem.empty())
            return problem;
    }
    return {};
}
