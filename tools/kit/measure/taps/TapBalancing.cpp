#include "tools/kit/measure/taps/TapBalancing.h"

#include "tools/kit/measure/taps/BalancingModel.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>
#include <sstream>

using namespace CvxCPP;

namespace {

/// Switches automatic functions off, and on again at the end.
class AutomaticFunctions
{
public:
    explicit AutomaticFunctions(Device &device) : m_device(device) { }

    Sentence switchOff()
    {
        for (const char *const name : {"GainAuto", "ExposureAuto", "BlackLevelAuto"}) {
            std::string value;
            if (!m_device.ReadString(name, value) || value == "Off")
                continue;
            if (const CvxResult result = m_device.WriteString(name, "Off"); !result)
                return untranslated(result.text);
            m_before.emplace_back(name, value);
        }
        return {};
    }

    Sentence restore()
    {
        for (const auto &[name, value] : m_before) {
            if (const CvxResult result = m_device.WriteString(name, value); !result)
                return untranslated(result.text);
        }
        return {};
    }

private:
    Device &m_device;
    std::vector<std::pair<std::string, std::string>> m_before;
};

Sentence checkGamma(Device &device)
{
    double gamma = 1;
    bool isEnabled = true;
    const bool isUsed = !device.ReadBoolean("GammaEnable", isEnabled) || isEnabled;
    if (!isUsed || !device.ReadFloat("Gamma", gamma) || gamma == 1)
        return {};
    return {QT_TRANSLATE_NOOP("Sentence",
        "The pixel values are not proportional to the light. Set Gamma to 1, then measure again.")};
}

double goalOf(TapSetting setting, const TapMeasurement &measurement)
{
    return setting == TapSetting::Gain ? gainGoal : blackLevelGoal * measurement.maxValue;
}

std::vector<double> valuesOf(const std::vector<TapValue> &values)
{
    std::vector<double> numbers;
    for (const TapValue &value : values)
        numbers.push_back(value.value);
    return numbers;
}

std::vector<double> errorsOf(TapSetting setting, const TapMeasurement &measurement)
{
    std::vector<double> errors;
    for (const TapMeasurement::Tap &tap : measurement.taps)
        errors.push_back(setting == TapSetting::Gain ? std::log1p(tap.deviation) : tap.deviation);
    return errors;
}

/// The rounds of one balancing.
class Balancing
{
public:
    Balancing(
        const MeasureContext &context, const TapOptions &options, TapSetting setting, TapBalance &balance)
        : m_context(context), m_options(options), m_setting(setting), m_balance(balance)
    { }

    Sentence run()
    {
        if (Sentence problem = measure(m_balance.before); !problem.isEmpty())
            return problem;
        auto control = findTapControl(m_context.device, m_setting, m_balance.before.taps.size());
        if (auto *const problem = std::get_if<Sentence>(&control))
            return std::move(*problem);
        m_balance.control = std::get<TapControl>(std::move(control));
        if (Sentence problem = readTapValues(m_context.device, m_balance.control, m_present);
            !problem.isEmpty())
            return problem;
        m_balance.after = m_balance.before;
        m_balance.valuesBefore = m_balance.valuesAfter = valuesOf(m_present);
        if (Sentence problem = improve(); !problem.isEmpty())
            return problem;
        m_balance.isReached = m_balance.after.mismatch <= goalOf(m_setting, m_balance.after);
        return write(m_balance.valuesAfter); // The best ones.
    }

private:
    Sentence improve()
    {
        BalancingModel model(m_balance.control, m_present);
        TapMeasurement newest = m_balance.before;
        std::size_t withoutImprovement = 0;
        while (m_balance.rounds < maxBalancingRounds && withoutImprovement < 2
            && newest.mismatch > goalOf(m_setting, newest)) {
            const std::vector<double> values = model.nextValues(errorsOf(m_setting, newest), m_present);
            if (values == valuesOf(m_present))
                return {}; // The increments allow nothing better.
            if (Sentence problem = write(values); !problem.isEmpty())
                return problem;
            ++m_balance.rounds;
            if (Sentence problem = measure(newest); !problem.isEmpty())
                return problem;
            ++withoutImprovement;
            if (newest.mismatch < m_balance.after.mismatch) {
                withoutImprovement = 0;
                m_balance.after = newest;
                m_balance.valuesAfter = valuesOf(m_present);
            }
        }
        return {};
    }

    Sentence measure(TapMeasurement &measurement)
    {
        const std::size_t before = m_measured * m_options.images;
        const std::size_t total = (maxBalancingRounds + 1) * m_options.images;
        const MeasureProgress progress = [this, before, total](std::size_t done, std::size_t) {
            return m_context.progress(before + done, total);
        };
        ++m_measured;
        return measureTaps({m_context.device, m_context.frames, progress}, m_options, m_setting, measurement);
    }

    Sentence write(const std::vector<double> &values)
    {
        return writeTapValues(m_context.device, m_balance.control, values, m_present);
    }

    const MeasureContext &m_context;
    const TapOptions &m_options;
    const TapSetting m_setting;
    TapBalance &m_balance;
    std::vector<TapValue> m_present;
    std::size_t m_measured = 0;
};

} // namespace

std::variant<TapLayout, Sentence> findTapLayout(Device &device, const TapOptions &options)
{
    if (options.layout)
        return *options.layout;
    std::string geometry;
    if (!device.ReadString("DeviceTapGeometry", geometry))
        return Sentence{QT_TRANSLATE_NOOP("Sentence",
            "The camera has no feature \"DeviceTapGeometry\". Choose the layout of its taps by hand.")};
    const auto layout = parseTapGeometry(geometry);
    if (!layout)
        return Sentence{QT_TRANSLATE_NOOP("Sentence",
                            "The tap geometry \"%1\" is unknown. Choose the layout of the taps by hand."),
            {geometry}};
    return *layout;
}

SensorPlace readSensorPlace(Device &device)
{
    const auto integer = [&device](const char *name, std::uint32_t otherwise) {
        std::int64_t value = 0;
        const bool isKnown = device.ReadInteger(name, value) && value > 0 && value < 1000000;
        return isKnown ? static_cast<std::uint32_t>(value) : otherwise;
    };
    const auto boolean = [&device](const char *name) {
        bool value = false;
        return device.ReadBoolean(name, value) && value;
    };
    SensorPlace place;
    place.sensorWidth = integer("SensorWidth", 0);
    place.sensorHeight = integer("SensorHeight", 0);
    place.offsetX = integer("OffsetX", 0);
    place.offsetY = integer("OffsetY", 0);
    place.binningX = integer("BinningHorizontal", 1) * integer("DecimationHorizontal", 1);
    place.binningY = integer("BinningVertical", 1) * integer("DecimationVertical", 1);
    place.isReversedX = boolean("ReverseX");
    place.isReversedY = boolean("ReverseY");
    return place;
}

Sentence takeTapPicture(const MeasureContext &context, const TapOptions &options, TapPicture &picture)
{
    auto layout = findTapLayout(context.device, options);
    if (auto *const problem = std::get_if<Sentence>(&layout))
        return std::move(*problem);
    TapStack stack(std::get<TapLayout>(layout), readSensorPlace(context.device));
    const Sentence problem = takeImages(context, std::max<std::size_t>(options.images, 2), usualImageLimit,
        [&stack](const Image &image) { return stack.add(rawImage(image)); });
    if (problem.isEmpty())
        picture = stack.picture();
    return problem;
}

Sentence measureTaps(
    const MeasureContext &context, const TapOptions &options, TapSetting setting, TapMeasurement &measurement)
{
    if (Sentence problem = checkGamma(context.device); !problem.isEmpty())
        return problem;
    TapPicture picture;
    if (Sentence problem = takeTapPicture(context, options, picture); !problem.isEmpty())
        return problem;
    const bool isBright = setting == TapSetting::Gain;
    if (Sentence problem = isBright ? checkBright(picture, options.darkLevel) : checkDark(picture);
        !problem.isEmpty())
        return problem;
    TapMeasurement result = isBright ? measureBright(picture, options.darkLevel, options.reference)
                                     : measureDark(picture, options.reference);
    if (Sentence problem = checkCertainty(result); !problem.isEmpty())
        return problem;
    measurement = std::move(result);
    return {};
}

Sentence balanceTaps(
    const MeasureContext &context, const TapOptions &options, TapSetting setting, TapBalance &balance)
{
    auto layout = findTapLayout(context.device, options);
    if (auto *const problem = std::get_if<Sentence>(&layout))
        return std::move(*problem);
    const std::size_t taps = std::get<TapLayout>(layout).tapCount();
    if (taps < 2)
        return {QT_TRANSLATE_NOOP("Sentence",
            "The sensor has one tap only, so there is nothing to balance. If that is wrong, choose the "
            "layout "
            "of the taps by hand.")};
    const auto control = findTapControl(context.device, setting, taps);
    if (const auto *const problem = std::get_if<Sentence>(&control))
        return *problem;
    const std::string selector = std::get<TapControl>(control).selector;
    std::string selected;
    const bool isSelectorKnown = bool(context.device.ReadString(selector, selected));
    AutomaticFunctions automatic(context.device);
    if (Sentence problem = automatic.switchOff(); !problem.isEmpty())
        return problem;
    if (Sentence problem = Balancing(context, options, setting, balance).run(); !problem.isEmpty())
        return problem;
    if (isSelectorKnown)
        static_cast<void>(bool(context.device.WriteString(selector, selected)));
    return automatic.restore();
}

Sentence undoBalance(Device &device, const TapBalance &balance)
{
    AutomaticFunctions automatic(device);
    if (Sentence problem = automatic.switchOff(); !problem.isEmpty())
        return problem;
    std::string selected;
    const bool isSelectorKnown = bool(device.ReadString(balance.control.selector, selected));
    std::vector<TapValue> present;
    if (Sentence problem = readTapValues(device, balance.control, present); !problem.isEmpty())
        return problem;
    const Sentence problem = writeTapValues(device, balance.control, balance.valuesBefore, present);
    if (isSelectorKnown)
        static_cast<void>(bool(device.WriteString(balance.control.selector, selected)));
    return problem.isEmpty() ? automatic.restore() : problem;
}

nlohmann::ordered_json toJson(const TapBalance &balance)
{
    const TapControl &control = balance.control;
    auto settings = nlohmann::ordered_json::array();
    for (std::size_t i = 0; i < control.entries.size(); ++i)
        settings.push_back({{control.selector, control.entries[i]}, {"before", balance.valuesBefore.at(i)},
            {"after", balance.valuesAfter.at(i)}});
    return {{"feature", control.feature}, {"settings", std::move(settings)}, {"rounds", balance.rounds},
        {"isGoalReached", balance.isReached}, {"before", toJson(balance.before)},
        {"after", toJson(balance.after)}};
}

std::string toCsv(const TapMeasurement &measurement, const std::optional<TapBalance> &balance)
{
    std::ostringstream csv;
    csv.imbue(std::locale::classic());
    csv << "tap,mean,noise,deviation" << (balance ? ",deviationBefore,valueBefore,valueAfter" : "") << '\n';
    for (std::size_t i = 0; i < measurement.taps.size(); ++i) {
        const TapMeasurement::Tap &tap = measurement.taps[i];
        csv << i + 1 << ',' << tap.mean << ',' << tap.noise << ',' << tap.deviation;
        if (balance)
            csv << ',' << balance->before.taps.at(i).deviation << ',' << balance->valuesBefore.at(i) << ','
                << balance->valuesAfter.at(i);
        csv << '\n';
    }
    return csv.str();
}
