#include "sdk/imagefile/FlatFieldFile.h"

#include "sdk/imagefile/MapFile.h"
#include "sdk/imagefile/OutputFile.h"
#include "sdk/imagefile/TiffWriter.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <tiffio.h>

namespace {

constexpr char fieldFormat[] = "corvix-x-flat-field";
constexpr std::uint64_t maxPixels = 1U << 28U;
constexpr std::uint64_t maxDescription = 16U << 20U; // Bytes.
constexpr unsigned valuesPerPixel = 2;

bool appendPage(
    TiffWriter &writer, const FlatField &field, const std::vector<float> &values, const TiffTexts &texts)
{
    Samples samples;
    samples.data = reinterpret_cast<const std::uint8_t *>(values.data());
    samples.width = field.width;
    samples.height = field.height;
    samples.bits = samples.significantBits = 32;
    samples.isFloat = true;
    return writer.append(samples, texts);
}

/// Closes the file at the end.
class OpenTiff
{
public:
    explicit OpenTiff(const std::string &path)
    {
        // libtiff would print what it finds wrong.
        TIFFSetErrorHandler(nullptr);
        TIFFSetWarningHandler(nullptr);
        m_tiff = TIFFOpen(path.c_str(), "rm"); // Without mapping: the file can be cut meanwhile.
    }
    OpenTiff(const OpenTiff &) = delete;
    OpenTiff &operator=(const OpenTiff &) = delete;
    ~OpenTiff()
    {
        if (m_tiff)
            TIFFClose(m_tiff);
    }

    TIFF *get() const { return m_tiff; }

private:
    TIFF *m_tiff = nullptr;
};

std::uint32_t tiffNumber(TIFF *tiff, std::uint32_t tag)
{
    std::uint32_t number = 0;
    return TIFFGetField(tiff, tag, &number) != 0 ? number : 0;
}

std::uint16_t tiffShort(TIFF *tiff, std::uint32_t tag)
{
    std::uint16_t number = 0;
    return TIFFGetFieldDefaulted(tiff, tag, &number) != 0 ? number : std::uint16_t(0);
}

/// Returns the JSON of the present page, or nothing.
std::optional<nlohmann::ordered_json> description(TIFF *tiff)
{
    const char *text = nullptr;
    if (TIFFGetField(tiff, TIFFTAG_IMAGEDESCRIPTION, &text) == 0 || !text)
        return std::nullopt;
    const std::string_view view = text;
    return view.size() > maxDescription ? std::nullopt : parseMapJson(view, fieldFormat);
}

/// Fills the field with everything but the values. Returns false if something is missing or not possible.
bool readMembers(const nlohmann::ordered_json &json, FlatField &field)
{
    const auto depth = unsignedMember(json, "depth");
    const auto blackLevel = numberMember(json, "blackLevel");
    field.offsetX = unsignedMember(json, "offsetX").value_or(0);
    field.offsetY = unsignedMember(json, "offsetY").value_or(0);
    field.width = unsignedMember(json, "width").value_or(0);
    field.height = unsignedMember(json, "height").value_or(0);
    field.depth = depth.value_or(0);
    field.blackLevel = blackLevel.value_or(-1);
    return field.width > 0 && field.height > 0 && std::uint64_t(field.width) * field.height <= maxPixels
        && field.depth >= 8 && field.depth <= 16 && field.blackLevel >= 0
        && field.blackLevel < std::ldexp(1, static_cast<int>(field.depth));
}

/// Reads the values of the present page. Returns false if they are not finite numbers of this size.
bool readPage(TIFF *tiff, const FlatField &field, std::vector<float> &values)
{
    const bool hasLayout = tiffNumber(tiff, TIFFTAG_IMAGEWIDTH) == field.width
        && tiffNumber(tiff, TIFFTAG_IMAGELENGTH) == field.height
        && tiffShort(tiff, TIFFTAG_BITSPERSAMPLE) == 8 * sizeof(float)
        && tiffShort(tiff, TIFFTAG_SAMPLEFORMAT) == SAMPLEFORMAT_IEEEFP
        && tiffShort(tiff, TIFFTAG_SAMPLESPERPIXEL) == 1
        && tiffShort(tiff, TIFFTAG_COMPRESSION) == COMPRESSION_NONE && TIFFIsTiled(tiff) == 0
        && TIFFScanlineSize64(tiff) == std::uint64_t(field.width) * sizeof(float);
    if (!hasLayout)
        return false;
    values.resize(std::size_t(field.width) * field.height);
    for (std::uint32_t y = 0; y < field.height; ++y)
        if (TIFFReadScanline(tiff, values.data() + std::size_t(y) * field.width, y, 0) != 1)
            return false;
    return std::all_of(values.begin(), values.end(), [](float value) { return std::isfinite(value); });
}

/// Reads the file into the result. Returns what is wrong with it; empty if nothing is.
std::string readTiff(TIFF *tiff, std::uint64_t fileSize, FlatFieldReading &result)
{
    const std::optional<nlohmann::ordered_json> json = tiff ? description(tiff) : std::nullopt;
    if (!json)
        return "it contains no flat field";
    FlatField field;
    if (!readMembers(*json, field))
        return "its description of the region, the depth or the black level is damaged";
    // The values are not compressed. This also limits the memory to that of the file.
    const std::uint64_t pixels = std::uint64_t(field.width) * field.height;
    if (pixels * valuesPerPixel * sizeof(float) > fileSize)
        return "it is incomplete or compressed";
    if (!readPage(tiff, field, field.offset) || TIFFReadDirectory(tiff) == 0
        || !readPage(tiff, field, field.gain))
        return "it does not contain the offset and the gain of each pixel as 32-bit floating-point numbers";
    result.field = std::move(field);
    result.origin = originOf(*json);
    return {};
}

} // namespace

std::string writeFlatField(const std::string &path, const FlatField &field, const CameraRecord &camera,
    const nlohmann::ordered_json &more)
{
    nlohmann::ordered_json json = mapJson(fieldFormat, camera);
    json.update({{"offsetX", field.offsetX}, {"offsetY", field.offsetY}, {"width", field.width},
        {"height", field.height}, {"depth", field.depth}, {"blackLevel", field.blackLevel}});
    json.update(more);
    const std::string text = json.dump(-1, ' ', true, nlohmann::ordered_json::error_handler_t::replace);
    OutputFile file;
    if (!file.createHidden(path))
        return file.problem();
    TiffWriter writer(file, TiffWriter::Variant::Classic);
    const bool isWritten = appendPage(writer, field, field.offset, {text, {}, camera.vendor, camera.model})
        && appendPage(
            writer, field, field.gain, {"gain of each pixel; the first page is the offset", {}, {}, {}})
        && file.publish();
    return isWritten ? std::string() : file.problem();
}

FlatFieldReading readFlatField(const std::string &path)
{
    FlatFieldReading result;
    constexpr std::uint64_t maxFileSize
        = maxPixels * valuesPerPixel * sizeof(float) + valuesPerPixel * maxDescription;
    result.problem = mapFileProblem(path, maxFileSize);
    if (!result.problem.empty())
        return result;
    std::error_code error;
    const std::uint64_t fileSize = std::filesystem::file_size(path, error);
    const OpenTiff tiff(path);
    if (const std::string damage = error ? error.message() : readTiff(tiff.get(), fileSize, result);
        !damage.empty())
        result.problem = damagedFile(path, damage);
    return result;
}
