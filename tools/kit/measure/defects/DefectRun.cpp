#include "tools/kit/measure/defects/DefectRun.h"

#include "sdk/image/ImageConverter.h"
#include "sdk/image/PixelFormat.h"
#include "tools/kit/measure/defects/DefectFinder.h"
#include "tools/kit/measure/defects/DefectReferences.h"

#include <algorithm>
#include <cmath>

using namespace CvxCPP;

namespace {

// Functions of the camera that would change or hide the values of the pixels, apart from its corrections of
// defects. Booleans become false, enumerations "Off".
constexpr const char *influences[] = {"ExposureAuto", "GainAuto", "BlackLevelAuto", "BalanceWhiteAuto",
    "LUTEnable", "GammaEnable", "SharpnessEnable", "NoiseReduction", "NoiseReductionEnable"};

// SFNC has no name for corrections of defects; these are usual.
constexpr const char *corrections[] = {"DefectCorrectStaticEnable", "DefectCorrectDynamicEnable",
    "DefectCorrectionEnable", "DefectPixelCorrectionEnable", "DefectivePixelCorrectionEnable",
    "PixelCorrectionEnable", "HotPixelCorrectionEnable", "StaticDefectCorrection", "DefectCorrection",
    "DefectPixelCorrection", "DefectivePixelCorrection", "PixelCorrection", "HotPixelCorrection"};

// Features that change the places of the pixels, with the value that leaves them where they are.
struct PlaceFeature
{
    const char *name;
    NodeValue value;
    const char *text;
};
const PlaceFeature placeFeatures[] = {
    {"BinningHorizontal", std::int64_t{1}, "1"},
    {"BinningVertical", std::int64_t{1}, "1"},
    {"DecimationHorizontal", std::int64_t{1}, "1"},
    {"DecimationVertical", std::int64_t{1}, "1"},
    {"ReverseX", false, "false"},
    {"ReverseY", false, "false"},
};

constexpr std::uint32_t minSize = 64; // Pixels; the spread of fewer pixels is uncertain.

/// Switches a function of the camera off if the camera has it. `isChanged` is true if it was on.
Sentence switchOff(Device &device, const char *name, bool &isChanged)
{
    std::vector<NodeState> states;
    if (!device.ReadStates({name}, states))
        return {}; // The camera does not have the function.
    const NodeValue &value = states.front().value;
    const std::vector<std::string> &entries = states.front().availableEntries;
    NodeValue off;
    if (std::holds_alternative<bool>(value))
        off = false;
    else if (std::find(entries.begin(), entries.end(), "Off") != entries.end())
        off = std::string("Off");
    if (value.index() == 0 || off.index() == 0 || off == value)
        return {};
    isChanged = true;
    return untranslated(device.Write(name, off).text);
}

Sentence setGammaToOne(Device &device)
{
    double gamma = 1;
    if (!device.ReadFloat("Gamma", gamma) || gamma == 1)
        return {};
    return untranslated(device.WriteFloat("Gamma", 1).text);
}

Sentence prepareCamera(Device &device, DefectImages &images)
{
    for (const PlaceFeature &feature : placeFeatures) {
        NodeValue value;
        if (device.Read(feature.name, value) && value.index() == feature.value.index()
            && value != feature.value)
            return {QT_TRANSLATE_NOOP("Measure",
                        "Set %1 to %2: defect pixels are measured at full resolution without mirroring."),
                {std::string(feature.name), std::string(feature.text)}};
    }
    for (const char *const name : influences) {
        bool isChanged = false;
        if (Sentence problem = switchOff(device, name, isChanged); !problem.isEmpty())
            return problem;
    }
    for (const char *const name : corrections) {
        bool isChanged = false;
        if (Sentence problem = switchOff(device, name, isChanged); !problem.isEmpty())
            return problem;
        if (isChanged)
            images.cameraCorrections.emplace_back(name);
    }
    return setGammaToOne(device);
}

std::optional<double> readNumber(Device &device, const std::vector<std::string> &names)
{
    for (const std::string &name : names) {
        NodeValue value;
        if (!device.Read(name, value))
            continue;
        if (const auto *number = std::get_if<double>(&value))
            return *number;
        if (const auto *number = std::get_if<std::int64_t>(&value))
            return static_cast<double>(*number);
    }
    return {};
}

bool isLineScan(Device &device)
{
    std::string type;
    return device.ReadString("DeviceScanType", type) && type == "Linescan";
}

Sentence formatProblem(const ImageInfo &info, bool isLine)
{
    const PixelFormat *const format = findPixelFormat(info.pixelFormat);
    const bool isUsable = format && (format->kind == PixelKind::Mono || format->kind == PixelKind::Bayer)
        && format->depth >= 8 && format->depth <= 16;
    if (!isUsable)
        return {QT_TRANSLATE_NOOP("Measure",
            "Choose a pixel format that contains the values of the pixels as they are, with 8 to 16 bits: "
            "Mono8 to "
            "Mono16, or Bayer (PixelFormat).")};
    if (info.width < minSize || (!isLine && info.height < minSize))
        return {QT_TRANSLATE_NOOP("Measure", "Choose a region of %1 x %1 pixels or more (Width, Height)."),
            {SentenceNumber{minSize}}};
    return {};
}

StatisticsLayout layoutOf(const ImageInfo &info, bool isLine)
{
    const PixelFormat *const format = findPixelFormat(info.pixelFormat);
    StatisticsLayout layout;
    layout.offsetX = info.offsetX;
    layout.offsetY = isLine ? 0 : info.offsetY;
    layout.width = info.width;
    layout.height = isLine ? 1 : info.height;
    layout.colorStep = format->kind == PixelKind::Bayer ? 2 : 1;
    layout.maxValue = std::ldexp(1, format->depth) - 1;
    return layout;
}

bool isSame(const StatisticsLayout &layout, const ImageInfo &info)
{
    return layout.width == info.width && layout.offsetX == info.offsetX
        && (layout.isLineScan() || (layout.height == info.height && layout.offsetY == info.offsetY));
}

/// Adds images to the statistics.
class Collector
{
public:
    Collector(DefectImages &images, bool isLine) : m_images(images), m_isLineScan(isLine) { }

    Sentence take(const Image &image)
    {
        const ImageInfo &info = image.GetInfo();
        if (m_images.statistics.images() == 0) {
            if (Sentence problem = formatProblem(info, m_isLineScan); !problem.isEmpty())
                return problem;
            m_images.statistics = PixelStatistics(layoutOf(info, m_isLineScan));
            m_images.pixelFormat = info.pixelFormat;
        }
        if (info.pixelFormat != m_images.pixelFormat || !isSame(m_images.statistics.layout(), info))
            return {QT_TRANSLATE_NOOP(
                "Measure", "The size or the pixel format of the images has changed. Take the images again.")};
        m_images.statistics.add(rawImage(image), m_converter);
        return {};
    }

private:
    DefectImages &m_images;
    const bool m_isLineScan;
    ImageConverter m_converter;
};

/// Takes further images if some were equal to earlier ones. If all are equal, the camera has no noise.
Sentence takeDifferentImages(
    const MeasureContext &context, std::size_t count, std::chrono::milliseconds limit, DefectImages &images)
{
    constexpr std::size_t maxRepetition = 3; // Times `count`.
    const PixelStatistics &statistics = images.statistics;
    Collector collector(images, isLineScan(context.device));
    const MeasureProgress progress
        = [&](std::size_t, std::size_t) { return context.progress(statistics.images(), count); };
    const MeasureContext part{context.device, context.frames, progress};
    std::size_t taken = 0;
    while (statistics.images() < count && taken < maxRepetition * count) {
        const std::size_t wanted = std::min(count - statistics.images(), maxRepetition * count - taken);
        Sentence problem
            = takeImages(part, wanted, limit, [&](const Image &image) { return collector.take(image); });
        if (!problem.isEmpty())
            return problem;
        taken += wanted;
        if (statistics.images() == 1)
            return {};
    }
    if (statistics.showsNoise())
        return {};
    return {QT_TRANSLATE_NOOP("Measure",
        "The camera has sent the same pictures again and again. Lower AcquisitionFrameRate, then measure "
        "again.")};
}

Sentence collect(const MeasureContext &context, std::size_t count, DefectImages &images)
{
    if (count < minDefectImages)
        return {QT_TRANSLATE_NOOP(
                    "Measure", "Take %1 images or more: with fewer images, the noise hides defects."),
            {SentenceNumber{static_cast<double>(minDefectImages)}}};
    images = {};
    if (Sentence problem = prepareCamera(context.device, images); !problem.isEmpty())
        return problem;
    images.exposureTime = readNumber(context.device, {"ExposureTime", "ExposureTimeAbs", "ExposureTimeRaw"});
    images.gain = readNumber(context.device, {"Gain", "GainAbs", "GainRaw"});
    const auto exposure = std::chrono::microseconds(std::llround(images.exposureTime.value_or(0)));
    const auto limit = usualImageLimit + std::chrono::ceil<std::chrono::milliseconds>(2 * exposure);
    return takeDifferentImages(context, count, limit, images);
}

Sentence differenceProblem(const DefectImages &dark, const DefectImages &bright)
{
    const StatisticsLayout &a = dark.statistics.layout();
    const StatisticsLayout &b = bright.statistics.layout();
    if (dark.pixelFormat != bright.pixelFormat || a.width != b.width || a.height != b.height
        || a.offsetX != b.offsetX || a.offsetY != b.offsetY)
        return {QT_TRANSLATE_NOOP("Measure",
            "The region or the pixel format differs from that of the dark images. Set it as before, or take "
            "the "
            "dark images again.")};
    if (dark.gain != bright.gain)
        return {QT_TRANSLATE_NOOP("Measure",
                    "The gain differs from that of the dark images, %1. Set it as before, or take the dark "
                    "images "
                    "again."),
            {SentenceNumber{dark.gain.value_or(0), 2}}};
    return {};
}

} // namespace

Sentence takeDarkImages(const MeasureContext &context, std::size_t count, DefectImages &dark)
{
    if (Sentence problem = collect(context, count, dark); !problem.isEmpty())
        return problem;
    return darkProblem(dark.statistics);
}

Sentence takeBrightImages(
    const MeasureContext &context, std::size_t count, const DefectImages &dark, DefectImages &bright)
{
    if (Sentence problem = collect(context, count, bright); !problem.isEmpty())
        return problem;
    if (Sentence problem = differenceProblem(dark, bright); !problem.isEmpty())
        return problem;
    return brightProblem(dark.statistics, bright.statistics);
}

Sentence examinePixels(const DefectImages &dark, const DefectImages &bright, const MeasureProgress &progress,
    DefectFindings &findings)
{
    std::optional<DefectFindings> found = findDefects(dark.statistics, bright.statistics, progress);
    if (!found)
        return cancelledSentence();
    findings = std::move(*found);
    return findingsProblem(findings);
}
