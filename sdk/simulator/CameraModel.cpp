#include "sdk/simulator/CameraModel.h"

#include "sdk/simulator/EnumerationValues.h"
#include "sdk/simulator/FeatureLimits.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string_view>
#include <tuple>

namespace {

bool contains(const std::string &text, std::string_view part)
{
    return text.find(part) != std::string::npos;
}

bool endsWith(const std::string &text, std::string_view end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

/// FNV-1a.
std::uint64_t hashOf(std::string_view text, std::uint64_t hash = 0xCBF29CE484222325U)
{
    for (const char character : text)
        hash = (hash ^ static_cast<unsigned char>(character)) * 0x100000001B3U;
    return hash;
}

struct SensorSize
{
    int width;
    int height;
};

/// Returns the number in front of a unit, for example 1.3 in "Borea 1.3MP"; 0 if there is none.
double numberBefore(const std::string &text, std::string_view unit)
{
    const std::size_t end = text.find(unit);
    if (end == std::string::npos)
        return 0;
    std::size_t start = end;
    while (start > 0 && (std::isdigit(static_cast<unsigned char>(text[start - 1])) || text[start - 1] == '.'))
        --start;
    return std::strtod(text.substr(start, end - start).c_str(), nullptr);
}

int multipleBelow(double value, int step)
{
    return static_cast<int>(value) / step * step;
}

bool isLineScanName(const std::string &model)
{
    return contains(model, "TDI") || numberBefore(model, "k") > 0;
}

SensorSize sizeByName(const std::string &model, bool isLineScan)
{
    if (isLineScan)
        return {std::clamp(multipleBelow(numberBefore(model, "k") * 1024, 16), 2048, 32768), 1};
    const double megapixels = std::clamp(numberBefore(model, "MP"), 0.0, 200.0);
    if (megapixels <= 0)
        return {1280, 1024};
    const double width = std::sqrt(megapixels * 1e6 * 5 / 4);
    return {std::max(64, multipleBelow(width, 16)), std::max(64, multipleBelow(width * 4 / 5, 16))};
}

/// What follows from the technology of the link.
struct LinkTraits
{
    std::string_view tlType;
    std::int64_t bytesPerSecond;
    int taps;
    bool isColor;
};
constexpr LinkTraits links[] = {
    {GenTL::TLTypeGEVName, 125'000'000, 1, false},
    {GenTL::TLTypeU3VName, 400'000'000, 1, false},
    {GenTL::TLTypeCLName, 850'000'000, 4, false},
    {GenTL::TLTypeCLHSName, 2'100'000'000, 1, false},
    {GenTL::TLTypeCXPName, 2'500'000'000, 1, false},
    {GenTL::TLTypeUVCName, 40'000'000, 1, true},
};
constexpr LinkTraits otherLink{{}, 1'000'000'000, 1, false};

const LinkTraits &linkOf(const std::string &tlType)
{
    const auto *const found = std::find_if(
        std::begin(links), std::end(links), [&](const LinkTraits &link) { return link.tlType == tlType; });
    return found != std::end(links) ? *found : otherLink;
}

/// Adds the flaws of the model; two cameras of a model have them at different places.
void addFlaws(SensorModel &sensor, const DeviceRecord &record)
{
    const std::uint64_t model = hashOf(record.vendor + '\n' + record.model);
    const auto share = [model](unsigned shift) { return static_cast<double>(model >> shift & 0xFF) / 255; };
    sensor.shading = 0.1 + 0.3 * share(0);
    sensor.hotPixels = 20 + 80 * share(8);
    sensor.stuckPixels = 4 + 12 * share(16);
    sensor.blinkingPixels = 2 + 6 * share(24);
    sensor.tapMismatch = sensor.taps > 1 ? 0.02 + 0.04 * share(32) : 0;
    sensor.focusPosition = 470 + 60 * share(40); // Near 500, where the lens is after power-on.
    sensor.focusTilt = 20 * share(48);
    sensor.focusTiltAngle = 360 * share(56);
    if (contains(record.model, "SWIR"))
        sensor.hotPixels *= 10;
}

/// InGaAs sensors have much more dark current.
void setMaterial(SensorModel &sensor, const DeviceRecord &record)
{
    if (!contains(record.model, "SWIR"))
        return;
    sensor.darkCurrent = 4000;
    sensor.fullWell = 40000;
    sensor.sensitivity = 4; // A picture is as bright as those of other cameras.
}

} // namespace

bool CameraModel::isBigEndianLink() const
{
    return record.tlType == GenTL::TLTypeGEVName;
}

CameraModel cameraModel(const DeviceRecord &record, const SensorKeys &keys)
{
    const LinkTraits &link = linkOf(record.tlType);
    CameraModel model;
    model.record = record;
    SensorModel &sensor = model.sensor;
    sensor.isLineScan = keys.isLineScan.value_or(isLineScanName(record.model));
    const SensorSize size = sizeByName(record.model, sensor.isLineScan);
    sensor.width = multipleBelow(keys.width.value_or(size.width), 2); // Colours need even numbers.
    sensor.height = sensor.isLineScan ? 1 : multipleBelow(keys.height.value_or(size.height), 2);
    sensor.isColor
        = !sensor.isLineScan && keys.isColor.value_or(link.isColor || endsWith(record.model, "-C"));
    sensor.taps = keys.taps.value_or(link.taps);
    sensor.seed = keys.seed.value_or(hashOf(record.serial.empty() ? record.id : record.serial));
    if (keys.hasFlaws.value_or(true))
        addFlaws(sensor, record);
    setMaterial(sensor, record);
    model.exposureTime = sensor.isLineScan ? 80 : 8000;
    if (sensor.isLineScan)
        sensor.sensitivity = 100;
    model.linkSpeed = link.bytesPerSecond;
    model.temperatureTimeConstant = 60 + static_cast<double>(hashOf(record.model) % 240);
    return model;
}

std::uint64_t fingerprint(const CameraModel &model)
{
    const SensorModel &sensor = model.sensor;
    // Every sensor with flaws has hot pixels.
    std::uint64_t hash = hashOf(model.record.model + '\n' + model.record.vendor + '\n' + model.record.tlType);
    for (const std::uint64_t value :
        {static_cast<std::uint64_t>(sensor.width), static_cast<std::uint64_t>(sensor.height),
            static_cast<std::uint64_t>(sensor.isColor), static_cast<std::uint64_t>(sensor.isLineScan),
            static_cast<std::uint64_t>(sensor.taps), sensor.seed,
            static_cast<std::uint64_t>(sensor.hotPixels > 0), static_cast<std::uint64_t>(registersSize)})
        hash = hashOf({reinterpret_cast<const char *>(&value), sizeof value}, hash);
    return hash;
}
