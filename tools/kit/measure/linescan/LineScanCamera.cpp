#include "tools/kit/measure/linescan/LineScanCamera.h"

#include "sdk/features/DeviceCalls.h"
#include "sdk/features/SelectorControl.h"
#include "sdk/image/PixelFormat.h"

#include <algorithm>
#include <limits>

using namespace CvxCPP;

namespace {

/// How cameras name a feature: the name of the standard first, then those that were used before or by some
/// cameras only. Features of the group Trigger are selected by the trigger of lines, those of the group
/// Encoder by the first encoder.
struct FeatureNames
{
    enum Group
    {
        Plain,
        Trigger,
        Encoder
    };
    LineFeature feature;
    Group group;
    std::vector<const char *> names;
};

const FeatureNames featureNames[] = {
    {LineFeature::LineRate, FeatureNames::Plain,
        {"AcquisitionLineRate", "AcquisitionLineRateAbs", "AcquisitionLineRateRaw", "LineRate"}},
    {LineFeature::LineRateEnable, FeatureNames::Plain,
        {"AcquisitionLineRateEnable", "AcquisitionLineRateEnabled"}},
    {LineFeature::ExposureTime, FeatureNames::Plain, {"ExposureTime", "ExposureTimeAbs"}},
    {LineFeature::ExposureAuto, FeatureNames::Plain, {"ExposureAuto"}},
    {LineFeature::TriggerMode, FeatureNames::Trigger, {"TriggerMode"}},
    {LineFeature::TriggerSource, FeatureNames::Trigger, {"TriggerSource"}},
    {LineFeature::TriggerActivation, FeatureNames::Trigger, {"TriggerActivation"}},
    {LineFeature::TriggerDivider, FeatureNames::Trigger, {"TriggerDivider"}},
    {LineFeature::TriggerMultiplier, FeatureNames::Trigger, {"TriggerMultiplier"}},
    {LineFeature::EncoderSourceA, FeatureNames::Encoder, {"EncoderSourceA"}},
    {LineFeature::EncoderSourceB, FeatureNames::Encoder, {"EncoderSourceB"}},
    {LineFeature::EncoderMode, FeatureNames::Encoder, {"EncoderMode"}},
    {LineFeature::EncoderDivider, FeatureNames::Encoder, {"EncoderDivider", "EncoderDivisor"}},
    {LineFeature::EncoderResolution, FeatureNames::Encoder, {"EncoderResolution"}},
};

std::optional<double> numberOf(const NodeValue &value)
{
    if (const auto *const integer = std::get_if<std::int64_t>(&value))
        return static_cast<double>(*integer);
    if (const auto *const real = std::get_if<double>(&value))
        return *real;
    return std::nullopt;
}

/// Reads the camera with selectors set and puts them back.
class CameraReader
{
public:
    explicit CameraReader(Device &device) : m_device(device) { }

    CvxResult read(LineScanCamera &camera)
    {
        if (CvxResult result = readDirectory(m_device, m_directory); !result)
            return result;
        SelectorControl selectors(m_device, m_directory);
        CvxResult result = readAll(selectors, camera);
        const CvxResult restored = selectors.restore();
        return result ? restored : result;
    }

private:
    CvxResult readAll(SelectorControl &selectors, LineScanCamera &camera)
    {
        if (CvxResult result = selectTrigger(selectors); !result)
            return result;
        if (CvxResult result = selectEncoder(selectors); !result)
            return result;
        for (const FeatureNames &names : featureNames)
            if (CvxResult result = readFeature(names, camera); !result)
                return result;
        return readFacts(camera);
    }

    /// Cameras call the trigger of lines "LineStart". A camera with only one trigger has no selector.
    CvxResult selectTrigger(SelectorControl &selectors)
    {
        NodeState state;
        if (CvxResult result = readState("TriggerSelector", state); !result || !isReadable(state))
            return result;
        for (const char *const entry : {"LineStart", "LineTrigger"})
            if (contains(state.availableEntries, entry))
                return select(selectors, "TriggerSelector", entry, m_trigger);
        m_hasLineTrigger = false;
        return {};
    }

    CvxResult selectEncoder(SelectorControl &selectors)
    {
        NodeState state;
        if (CvxResult result = readState("EncoderSelector", state);
            !result || !isReadable(state) || state.availableEntries.empty())
            return result;
        return select(selectors, "EncoderSelector", state.availableEntries.front(), m_encoder);
    }

    static CvxResult select(SelectorControl &selectors, const std::string &name, const std::string &entry,
        std::vector<SelectorSetting> &group)
    {
        group = {{name, entry}};
        return selectors.select(name, entry);
    }

    CvxResult readFeature(const FeatureNames &names, LineScanCamera &camera)
    {
        if (names.group == FeatureNames::Trigger && !m_hasLineTrigger)
            return {};
        for (const char *const name : names.names) {
            LineFeatureState read;
            if (CvxResult result = readState(name, read.state); !result)
                return result;
            if (!isReadable(read.state))
                continue;
            if (names.group != FeatureNames::Plain)
                read.selectors = names.group == FeatureNames::Trigger ? m_trigger : m_encoder;
            camera.features[names.feature] = read;
            break;
        }
        return {};
    }

    CvxResult readFacts(LineScanCamera &camera)
    {
        NodeState scanType;
        if (CvxResult result = readState("DeviceScanType", scanType); !result)
            return result;
        camera.takesLines = scanType.value == NodeValue("Linescan") || camera.find(LineFeature::LineRate);
        camera.binning
            = readNumber("BinningHorizontal").value_or(1) * readNumber("DecimationHorizontal").value_or(1);
        camera.sensorPixelSize = readNumber("SensorPixelWidth");
        camera.linesPerPicture = readNumber("Height");
        RateFacts &facts = camera.facts;
        if (const LineFeatureState *const exposure = camera.find(LineFeature::ExposureTime)) {
            facts.exposure = exposure->number();
            facts.shortestExposure = exposure->minimum();
        }
        if (const LineFeatureState *const rate = camera.find(LineFeature::LineRate))
            facts.maxRate = rate->maximum();
        facts.linkSpeed = readLinkSpeed();
        return readBytesPerLine(facts);
    }

    /// Returns the throughput limit if it is on, otherwise the speed of the link.
    std::optional<double> readLinkSpeed()
    {
        NodeState mode;
        (void)readState("DeviceLinkThroughputLimitMode", mode);
        const bool isLimited = mode.value != NodeValue("Off");
        const std::optional<double> limit
            = isLimited ? readNumber("DeviceLinkThroughputLimit") : std::nullopt;
        return limit ? limit : readNumber("DeviceLinkSpeed");
    }

    CvxResult readBytesPerLine(RateFacts &facts)
    {
        const std::optional<double> width = readNumber("Width");
        NodeState format;
        if (CvxResult result = readState("PixelFormat", format); !result || !width)
            return result;
        const auto *const name = std::get_if<std::string>(&format.value);
        const PixelFormat *const known = name ? findPixelFormat(*name) : nullptr;
        if (known)
            facts.bytesPerLine = *width * bitsPerPixel(known->code) / 8;
        return {};
    }

    std::optional<double> readNumber(const std::string &name)
    {
        NodeState state;
        if (!readState(name, state) || !isReadable(state))
            return std::nullopt;
        return numberOf(state.value);
    }

    CvxResult readState(const std::string &name, NodeState &state)
    {
        if (!m_directory.find(name))
            return {};
        std::vector<NodeState> states;
        CvxResult result = m_device.ReadStates({name}, states);
        if (result && !states.empty())
            state = states.front();
        return result;
    }

    static bool isReadable(const NodeState &state) { return state.value.index() != 0; }

    static bool contains(const std::vector<std::string> &entries, const char *entry)
    {
        return std::find(entries.begin(), entries.end(), entry) != entries.end();
    }

    Device &m_device;
    FeatureDirectory m_directory;
    bool m_hasLineTrigger = true;
    std::vector<SelectorSetting> m_trigger;
    std::vector<SelectorSetting> m_encoder;
};

/// A factor that cannot be written keeps its value.
FactorRange factorRange(const LineFeatureState *feature)
{
    if (!feature)
        return {};
    const auto present = static_cast<std::int64_t>(feature->number());
    if (feature->state.access != NodeAccess::ReadWrite)
        return {present, present, 1};
    constexpr std::int64_t largestFactor = std::numeric_limits<std::int32_t>::max();
    FactorRange range{1, largestFactor, 1};
    if (const auto minimum = feature->minimum())
        range.min = std::max<std::int64_t>(1, static_cast<std::int64_t>(*minimum));
    if (const auto maximum = feature->maximum()) {
        const double limited = std::min(*maximum, static_cast<double>(largestFactor));
        range.max = std::max(range.min, static_cast<std::int64_t>(limited));
    }
    if (const auto increment = numberOf(feature->state.increment))
        range.increment = std::max<std::int64_t>(1, static_cast<std::int64_t>(*increment));
    return range;
}

std::int64_t factorOf(const LineFeatureState *feature)
{
    return feature ? std::max<std::int64_t>(1, static_cast<std::int64_t>(feature->number())) : 1;
}

constexpr char fourPhase[] = "FourPhase";
constexpr char highResolution[] = "HighResolution";

/// Returns what the mode of the encoder can be set to, as in RatioLimits.
std::vector<int> countsPerPulse(const LineScanCamera &camera)
{
    const LineFeatureState *const mode = camera.find(LineFeature::EncoderMode);
    if (mode && mode->state.access != NodeAccess::ReadWrite)
        return {camera.presentRatio().countsPerPulse};
    if (!mode || !mode->allows(highResolution))
        return {1};
    return mode->allows(fourPhase) ? std::vector<int>{1, 4} : std::vector<int>{4};
}

} // namespace

double LineFeatureState::number() const
{
    return numberOf(state.value).value_or(0);
}

std::string LineFeatureState::text() const
{
    if (const auto *const flag = std::get_if<bool>(&state.value))
        return *flag ? "true" : "false";
    const auto *const entry = std::get_if<std::string>(&state.value);
    return entry ? *entry : std::string();
}

std::optional<double> LineFeatureState::minimum() const
{
    return numberOf(state.minimum);
}

std::optional<double> LineFeatureState::maximum() const
{
    return numberOf(state.maximum);
}

bool LineFeatureState::allows(const std::string &entry) const
{
    return std::find(state.availableEntries.begin(), state.availableEntries.end(), entry)
        != state.availableEntries.end();
}

const LineFeatureState *LineScanCamera::find(LineFeature feature) const
{
    const auto found = features.find(feature);
    return found != features.end() ? &found->second : nullptr;
}

bool LineScanCamera::usesEncoder() const
{
    const LineFeatureState *const mode = find(LineFeature::TriggerMode);
    const LineFeatureState *const source = find(LineFeature::TriggerSource);
    return mode && source && mode->text() == "On" && source->text().find("Encoder") != std::string::npos;
}

EncoderRatio LineScanCamera::presentRatio() const
{
    EncoderRatio ratio;
    const LineFeatureState *const mode = find(LineFeature::EncoderMode);
    ratio.countsPerPulse = mode && mode->text() == highResolution ? 4 : 1;
    ratio.multiplier = factorOf(find(LineFeature::TriggerMultiplier));
    ratio.encoderDivider = factorOf(find(LineFeature::EncoderDivider));
    ratio.triggerDivider = factorOf(find(LineFeature::TriggerDivider));
    return ratio;
}

RatioLimits LineScanCamera::ratioLimits() const
{
    RatioLimits limits;
    limits.countsPerPulse = countsPerPulse(*this);
    limits.multiplier = factorRange(find(LineFeature::TriggerMultiplier));
    limits.encoderDivider = factorRange(find(LineFeature::EncoderDivider));
    limits.triggerDivider = factorRange(find(LineFeature::TriggerDivider));
    return limits;
}

CvxResult readLineScanCamera(Device &device, LineScanCamera &camera)
{
    camera = {};
    return CameraReader(device).read(camera);
}

Sentence unsuitableCamera(const LineScanCamera &camera)
{
    if (!camera.takesLines)
        return {QT_TRANSLATE_NOOP("Sentence",
            "This camera takes whole pictures. Choose a line scan camera, which takes single lines of a "
            "moving object.")};
    return {};
}
