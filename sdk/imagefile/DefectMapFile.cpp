#include "sdk/imagefile/DefectMapFile.h"

#include "sdk/imagefile/MapFile.h"
#include "sdk/imagefile/OutputFile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace {

constexpr char mapFormat[] = "corvix-x-defect-map";
constexpr char csvHeader[] = "x,y,kind,deviation";
constexpr std::string_view csvBegin = "x,y"; // Other programs may leave the other columns out.
constexpr std::size_t maxDefects = 500000;
constexpr std::uint64_t maxFileSize = 64U << 20U;

/// The texts of the kinds, in the order of DefectKind.
constexpr std::array kindTexts = {"hot", "dead", "stuck", "blinking", "deviating"};

std::string writeText(const std::string &path, const std::string &text)
{
    OutputFile file;
    if (file.createHidden(path) && file.append(text.data(), text.size()) && file.publish())
        return {};
    return file.problem();
}

/// Returns the shortest text of the number that reads back as the same; 0 if it is not finite.
std::string deviationText(double number)
{
    std::array<char, 32> text{};
    const auto end
        = std::to_chars(text.data(), text.data() + text.size(), std::isfinite(number) ? number : 0.0).ptr;
    return {text.data(), end};
}

std::string pixelJson(const DefectPixelEntry &pixel)
{
    return "[" + std::to_string(pixel.x) + ", " + std::to_string(pixel.y) + ", \""
        + defectKindText(pixel.kind) + "\", " + deviationText(pixel.deviation) + "]";
}

bool isBefore(const DefectPixelEntry &pixel, const DefectPixelEntry &other)
{
    return pixel.y != other.y ? pixel.y < other.y : pixel.x < other.x;
}

bool isSamePlace(const DefectPixelEntry &pixel, const DefectPixelEntry &other)
{
    return pixel.x == other.x && pixel.y == other.y;
}

void sortPixels(std::vector<DefectPixelEntry> &pixels)
{
    std::stable_sort(pixels.begin(), pixels.end(), isBefore);
    pixels.erase(std::unique(pixels.begin(), pixels.end(), isSamePlace), pixels.end());
}

/// Returns the pixel of a list [x, y, kind, deviation], or nothing if it is none.
std::optional<DefectPixelEntry> pixelOf(const nlohmann::ordered_json &list)
{
    if (!list.is_array() || list.size() < 2 || !list[0].is_number_unsigned() || !list[1].is_number_unsigned())
        return std::nullopt;
    const auto x = list[0].get<std::uint64_t>();
    const auto y = list[1].get<std::uint64_t>();
    DefectPixelEntry pixel{static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y)};
    if (pixel.x != x || pixel.y != y)
        return std::nullopt;
    if (list.size() > 2) {
        const std::optional<DefectKind> kind
            = list[2].is_string() ? defectKind(list[2].get<std::string>()) : std::nullopt;
        if (!kind)
            return std::nullopt;
        pixel.kind = *kind;
    }
    if (list.size() > 3 && list[3].is_number())
        pixel.deviation = list[3].get<double>();
    return pixel;
}

/// Reads the JSON into the map. Returns what is wrong with it; empty if nothing is.
std::string readJsonMap(const nlohmann::ordered_json &json, DefectMap &map)
{
    const std::optional<std::uint32_t> width = unsignedMember(json, "width");
    const std::optional<std::uint32_t> height = unsignedMember(json, "height");
    const auto pixels = json.find("pixels");
    if (width.value_or(0) == 0 || height.value_or(0) == 0 || pixels == json.end() || !pixels->is_array())
        return "width, height or the list of pixels is missing";
    if (pixels->size() > maxDefects)
        return "it contains more than 500000 pixels";
    map.width = *width;
    map.height = *height;
    for (const nlohmann::ordered_json &list : *pixels) {
        const std::optional<DefectPixelEntry> pixel = pixelOf(list);
        if (!pixel)
            return "the pixel " + std::to_string(map.pixels.size() + 1) + " of its list is not valid";
        if (pixel->x >= map.width || pixel->y >= map.height)
            return "the pixel " + std::to_string(map.pixels.size() + 1) + " of its list is outside";
        map.pixels.push_back(*pixel);
    }
    return {};
}

bool isDefectMapCsv(std::string_view text)
{
    return text.substr(0, csvBegin.size()) == csvBegin;
}

/// Returns the fields of a line of a CSV file; those that it lacks are empty.
std::array<std::string_view, 4> csvFields(std::string_view line)
{
    std::array<std::string_view, 4> fields;
    for (std::string_view &field : fields) {
        const std::size_t end = std::min(line.find(','), line.size());
        field = line.substr(0, end);
        line.remove_prefix(std::min(end + 1, line.size()));
    }
    return fields;
}

/// Reads a number that fills the field. Returns false if it does not.
template <typename Number>
bool readNumber(std::string_view field, Number &number)
{
    const char *const end = field.data() + field.size();
    const auto [rest, error] = std::from_chars(field.data(), end, number);
    return error == std::errc() && rest == end;
}

/// Returns the pixel of a line; nothing if there is none. Its y is 0 if the field is empty.
std::optional<DefectPixelEntry> csvPixel(const std::array<std::string_view, 4> &fields)
{
    DefectPixelEntry pixel;
    const std::optional<DefectKind> kind
        = fields[2].empty() ? DefectKind::Hot : defectKind(std::string(fields[2]));
    const bool isValid = readNumber(fields[0], pixel.x)
        && (fields[1].empty() || readNumber(fields[1], pixel.y))
        && (fields[3].empty() || readNumber(fields[3], pixel.deviation)) && kind;
    if (!isValid || !std::isfinite(pixel.deviation))
        return std::nullopt;
    pixel.kind = *kind;
    return pixel;
}

/// Returns the first line without its end, and removes it from the text.
std::string_view takeLine(std::string_view &text)
{
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    return line;
}

/// Reads the CSV into the map. Returns what is wrong with it; empty if nothing is.
std::string readCsvMap(std::string_view text, DefectMap &map)
{
    takeLine(text); // The header.
    std::optional<bool> isLineScan;
    for (std::size_t number = 2; !text.empty(); ++number) {
        const std::string_view line = takeLine(text);
        if (line.empty())
            continue;
        const std::array<std::string_view, 4> fields = csvFields(line);
        const std::optional<DefectPixelEntry> pixel = csvPixel(fields);
        if (!pixel)
            return "line " + std::to_string(number) + " is not valid";
        if (isLineScan.value_or(fields[1].empty()) != fields[1].empty())
            return "y is missing in some lines, but not in all";
        isLineScan = fields[1].empty();
        map.pixels.push_back(*pixel);
        if (map.pixels.size() > maxDefects)
            return "it contains more than 500000 pixels";
    }
    map.height = isLineScan.value_or(false) ? 1 : 0;
    return {};
}

} // namespace

const char *defectKindText(DefectKind kind)
{
    return kindTexts[static_cast<std::size_t>(kind)];
}

std::optional<DefectKind> defectKind(const std::string &text)
{
    const auto found = std::find(kindTexts.begin(), kindTexts.end(), text);
    if (found == kindTexts.end())
        return std::nullopt;
    return static_cast<DefectKind>(found - kindTexts.begin());
}

std::string writeDefectMapJson(const std::string &path, const DefectMap &map, const CameraRecord &camera,
    const nlohmann::ordered_json &more)
{
    nlohmann::ordered_json json = mapJson(mapFormat, camera);
    json.update(more);
    json["width"] = map.width;
    json["height"] = map.height;
    // Texts of a camera may be broken UTF-8.
    std::string text = json.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
    text.resize(text.size() - 2); // The end of the line and of the object.
    text += ",\n  \"pixels\": [";
    for (std::size_t i = 0; i < map.pixels.size(); ++i) // One in each line, unlike dump().
        text += (i == 0 ? "\n    " : ",\n    ") + pixelJson(map.pixels[i]);
    return writeText(path, text + "\n  ]\n}\n");
}

std::string writeDefectMapCsv(const std::string &path, const DefectMap &map)
{
    std::string text = std::string(csvHeader) + "\n";
    for (const DefectPixelEntry &pixel : map.pixels)
        text += std::to_string(pixel.x) + "," + (map.isLineScan() ? "" : std::to_string(pixel.y)) + ","
            + defectKindText(pixel.kind) + "," + deviationText(pixel.deviation) + "\n";
    return writeText(path, text);
}

DefectMapReading readDefectMap(const std::string &path)
{
    DefectMapReading result;
    FileText file = readMapFile(path, maxFileSize);
    result.problem = std::move(file.problem);
    if (!result.problem.empty())
        return result;
    DefectMap map;
    std::string damage;
    if (isDefectMapCsv(file.text)) {
        damage = readCsvMap(file.text, map);
    } else if (const auto json = parseMapJson(file.text, mapFormat)) {
        damage = readJsonMap(*json, map);
        result.origin = originOf(*json);
    } else {
        damage = "it contains no defect map, neither as JSON nor as CSV";
    }
    if (!damage.empty()) {
        result.problem = damagedFile(path, damage);
        return result;
    }
    sortPixels(map.pixels);
    result.map = std::move(map);
    return result;
}
