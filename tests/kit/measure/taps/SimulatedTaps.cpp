#include "tests/kit/measure/taps/SimulatedTaps.h"

#include "sdk/simulator/CameraModel.h"
#include "sdk/simulator/SceneRenderer.h"

#include <algorithm>
#include <cmath>

using namespace CvxCPP;

namespace {

constexpr std::uint32_t mono12 = 0x01100005;

/// A rendered picture.
class TapImage final : public Image
{
public:
    TapImage(SceneRenderer &renderer, const RenderSettings &settings) : m_bytes(imageSize(settings))
    {
        renderer.render(settings, m_bytes.data());
        m_info.width = static_cast<std::uint32_t>(settings.width);
        m_info.height = static_cast<std::uint32_t>(settings.height);
        m_info.pixelFormat = settings.pixelFormat;
        m_info.frameId = settings.frameNumber;
        // Each image seems to arrive long after the previous one.
        const auto now = std::chrono::steady_clock::now().time_since_epoch()
            + std::chrono::seconds(settings.frameNumber);
        m_info.receivedAt = static_cast<std::uint64_t>(std::chrono::nanoseconds(now).count());
    }

    const std::uint8_t *GetData() const override { return m_bytes.data(); }
    std::size_t GetSize() const override { return m_bytes.size(); }
    const ImageInfo &GetInfo() const override { return m_info; }
    std::vector<ChunkValue> GetChunks() const override { return {}; }

private:
    std::vector<std::uint8_t> m_bytes;
    ImageInfo m_info;
};

} // namespace

SensorModel sensorWithTaps(int taps, double mismatch)
{
    DeviceRecord record;
    record.vendor = "KORDANE";
    record.model = "HX-2040M";
    record.serial = "K1902207";
    record.tlType = GenTL::TLTypeCLName;
    SensorKeys keys;
    keys.width = 640;
    keys.height = 480;
    keys.taps = taps;
    SensorModel sensor = cameraModel(record, keys).sensor;
    sensor.tapMismatch = mismatch;
    return sensor;
}

SimulatedTaps::SimulatedTaps(const SensorModel &model)
    : m_model(model), m_flaws(model), m_renderer(std::make_unique<SceneRenderer>(model))
{
    settings.width = model.width;
    settings.height = model.height;
    settings.pixelFormat = mono12;
    settings.target = SceneTarget::FlatField;
    settings.exposureTime = 5000;
    std::vector<std::string> entries{"All"};
    for (int tap = 1; tap <= model.taps; ++tap)
        entries.push_back("Tap" + std::to_string(tap));
    addEntries("GainSelector", entries);
    Feature &gain = add("Gain", 0.0);
    gain.info.unit = "dB";
    gain.state.minimum = 0.0;
    gain.state.maximum = 36.0;
    gain.state.increment = 0.01;
    select("GainSelector", {"Gain"});
    addEntries("BlackLevelSelector", entries);
    Feature &black = add("BlackLevel", 0.0);
    black.state.minimum = 0.0;
    black.state.maximum = 1023.9375;
    black.state.increment = 0.0625;
    select("BlackLevelSelector", {"BlackLevel"});
    add("DeviceTapGeometry", "Geometry_" + std::to_string(model.taps) + "X_1Y");
    add("ExposureTime", 5000.0);
    add("AcquisitionFrameRate", 100.0);
}

SimulatedTaps::~SimulatedTaps() = default;

double SimulatedTaps::tapValue(const std::string &name, int tap)
{
    const NodeValue selected = value(name + "Selector");
    set(name + "Selector", "Tap" + std::to_string(tap));
    const double present = std::get<double>(value(name));
    set(name + "Selector", selected);
    return present;
}

RenderSettings SimulatedTaps::present()
{
    RenderSettings now = settings;
    for (int tap = 1; tap <= m_model.taps; ++tap) {
        const auto index = static_cast<std::size_t>(tap - 1);
        const double gain = tapValue("Gain", tap);
        now.tapGain.at(index) = isGainLinear ? gain : std::pow(10, gain / 20);
        now.tapBlackLevel.at(index) = tapValue("BlackLevel", tap);
    }
    return now;
}

CvxResult SimulatedTaps::next(std::chrono::milliseconds, std::shared_ptr<const Image> &image)
{
    RenderSettings now = present();
    now.frameNumber = ++frames;
    image = std::make_shared<TapImage>(*m_renderer, now);
    return {};
}

double SimulatedTaps::trueMismatch()
{
    const RenderSettings now = present();
    std::vector<double> gains;
    double mean = 0;
    for (int tap = 0; tap < m_model.taps; ++tap) {
        gains.push_back(m_flaws.tapGain(tap) * now.tapGain.at(static_cast<std::size_t>(tap)));
        mean += gains.back() / m_model.taps;
    }
    double mismatch = 0;
    for (const double gain : gains)
        mismatch = std::max(mismatch, std::abs(gain / mean - 1));
    return mismatch;
}

double SimulatedTaps::trueBlackLevelRange()
{
    const RenderSettings now = present();
    std::vector<double> levels;
    for (int tap = 0; tap < m_model.taps; ++tap)
        levels.push_back(m_flaws.tapOffset(tap) + now.tapBlackLevel.at(static_cast<std::size_t>(tap)));
    const auto [least, most] = std::minmax_element(levels.begin(), levels.end());
    return *most - *least;
}
