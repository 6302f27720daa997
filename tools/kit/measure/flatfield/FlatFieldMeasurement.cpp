#include "tools/kit/measure/flatfield/FlatFieldMeasurement.h"

#include "tools/kit/measure/flatfield/BrightExposure.h"
#include "tools/kit/measure/flatfield/CameraPreparation.h"

#include <map>

using namespace CvxCPP;

struct FlatFieldMeasurement::Analog
{
    std::map<std::string, NodeValue> values;
};

namespace {

/// Settings that change the offsets of the pixels.
constexpr const char *analogFeatures[] = {"Gain", "GainRaw", "BlackLevel", "BlackLevelRaw"};

Sentence addImage(FrameStack &stack, const Image &image)
{
    return stack.add(rawImage(image), image.GetInfo().offsetX, image.GetInfo().offsetY);
}

bool isSameField(const FrameStack &first, const FrameStack &second)
{
    return first.pixelFormat() == second.pixelFormat() && first.mosaic().width == second.mosaic().width
        && first.mosaic().height == second.mosaic().height && first.offsetX() == second.offsetX()
        && first.offsetY() == second.offsetY();
}

std::vector<Sentence> sentencesOf(const ReferenceFindings &findings)
{
    std::vector<Sentence> sentences;
    for (const ReferenceFinding &finding : findings)
        sentences.push_back(finding.sentence);
    return sentences;
}

} // namespace

FlatFieldMeasurement::FlatFieldMeasurement(const FlatFieldOptions &options) : m_options(options) { }

FlatFieldMeasurement::~FlatFieldMeasurement() = default;

Sentence FlatFieldMeasurement::takeStacks(
    const MeasureContext &context, FrameStack &reference, const std::function<Sentence(const Image &)> &check)
{
    const std::size_t total = m_options.images + m_options.checkImages();
    return takeImages(context, total, usualImageLimit, [&](const Image &image) {
        return reference.count() < m_options.images ? addImage(reference, image) : check(image);
    });
}

Sentence FlatFieldMeasurement::takeDark(const MeasureContext &context)
{
    ReferenceSettings settings;
    if (const Sentence problem = prepareCamera(context.device, settings.switchedOff); !problem.isEmpty())
        return problem;
    settings.exposureTime = exposureTimeOf(context.device);
    m_isLineScan = isLineScanCamera(context.device);
    auto analog = std::make_unique<Analog>();
    for (const char *name : analogFeatures) {
        NodeValue value;
        if (context.device.Read(name, value))
            analog->values.emplace(name, value);
    }

    auto dark = std::make_unique<FrameStack>(m_isLineScan);
    auto check = std::make_unique<FrameStack>(m_isLineScan);
    const auto addCheck = [&](const Image &image) { return addImage(*check, image); };
    if (const Sentence problem = takeStacks(context, *dark, addCheck); !problem.isEmpty())
        return problem;
    const ReferenceFindings findings = checkDarkImages(*dark);
    if (const Sentence problem = fatalSentence(findings); !problem.isEmpty())
        return problem;
    m_dark = std::move(dark);
    m_darkCheck = std::move(check);
    m_analog = std::move(analog);
    m_darkSettings = settings;
    m_darkWarnings = sentencesOf(findings);
    m_result.reset();
    return {};
}

Sentence FlatFieldMeasurement::takeBright(const MeasureContext &context)
{
    FlatFieldResult result;
    if (const Sentence problem = prepareCamera(context.device, result.brightSettings.switchedOff);
        !problem.isEmpty())
        return problem;
    if (const Sentence problem = restoreAnalog(context.device); !problem.isEmpty())
        return problem;
    if (m_options.setsExposure) {
        if (const Sentence problem = setBrightExposure(context, m_dark->brightestLevel(), m_isLineScan);
            !problem.isEmpty())
            return problem;
    }
    result.brightSettings.exposureTime = exposureTimeOf(context.device);

    FrameStack bright(m_isLineScan);
    FrameStack check(m_isLineScan);
    const auto correctAndAdd = [&](const Image &image) -> Sentence {
        if (check.isEmpty()) {
            if (const Sentence problem = build(bright, result); !problem.isEmpty())
                return problem;
            check.setCorrection(std::make_shared<Correction>(std::nullopt, result.built.field));
        }
        return addImage(check, image);
    };
    if (const Sentence problem = takeStacks(context, bright, correctAndAdd); !problem.isEmpty())
        return problem;
    result.after = measureUniformity(correctedMean(m_darkCheck->mean(), result.built.field), check.mean());
    result.checkImages = check.count();
    m_result = std::move(result);
    return {};
}

Sentence FlatFieldMeasurement::build(const FrameStack &bright, FlatFieldResult &result) const
{
    if (!isSameField(bright, *m_dark))
        return {QT_TRANSLATE_NOOP("Sentence",
            "The region or the pixel format has changed since the dark images. Take the dark images again.")};
    const ReferenceFindings findings = checkBrightImages(bright, *m_dark);
    if (const Sentence problem = fatalSentence(findings); !problem.isEmpty())
        return problem;
    result.warnings = m_darkWarnings;
    for (const Sentence &sentence : sentencesOf(findings))
        result.warnings.push_back(sentence);
    const MeanImage dark = m_dark->mean();
    const MeanImage light = bright.mean();
    result.built = buildFlatField(dark, light, m_options.detail, m_options.level);
    result.before = measureUniformity(dark, light);
    result.detail = m_options.detail;
    result.level = m_options.level;
    result.pixelFormat = findPixelFormat(bright.pixelFormat())->name;
    result.darkImages = m_dark->count();
    result.brightImages = bright.count();
    result.brightShare = bright.brightestLevel() / bright.maxValue();
    result.darkSettings = m_darkSettings;
    return {};
}

/// An automatic function may have changed gain and black level since the dark images.
Sentence FlatFieldMeasurement::restoreAnalog(Device &device) const
{
    for (const auto &[name, value] : m_analog->values) {
        NodeValue present;
        if (!device.Read(name, present) || present == value)
            continue;
        if (const CvxResult written = device.Write(name, value); !written)
            return untranslated(written.text);
    }
    return {};
}
