#include "tools/kit/measure/flatfield/FlatFieldMeasurement.h"
#include "tests/features/ScriptedDevice.h"
#include "tests/kit/measure/flatfield/FieldBench.h"

#include <gtest/gtest.h>

using namespace CvxCPP;

namespace {

class RenderedImage final : public Image
{
public:
    RenderedImage(std::vector<std::uint8_t> bytes, const RenderSettings &settings) : m_bytes(std::move(bytes))
    {
        m_info.width = static_cast<std::uint32_t>(settings.width);
        m_info.height = static_cast<std::uint32_t>(settings.height);
        m_info.pixelFormat = settings.pixelFormat;
        m_info.frameId = settings.frameNumber;
        // Images come slowly enough that each has begun after the last change.
        const auto later = std::chrono::steady_clock::now().time_since_epoch()
            + settings.frameNumber * std::chrono::milliseconds(100);
        m_info.receivedAt = static_cast<std::uint64_t>(std::chrono::nanoseconds(later).count());
    }
    const std::uint8_t *GetData() const override { return m_bytes.data(); }
    std::size_t GetSize() const override { return m_bytes.size(); }
    const ImageInfo &GetInfo() const override { return m_info; }
    std::vector<ChunkValue> GetChunks() const override { return {}; }

private:
    ImageInfo m_info;
    std::vector<std::uint8_t> m_bytes;
};

/// A camera whose images follow its exposure time.
class FieldCamera : public FrameSource
{
public:
    explicit FieldCamera(const SensorModel &model) : m_pictures(model)
    {
        settings.width = model.width;
        settings.height = model.isLineScan ? 32 : model.height;
        settings.pixelFormat = fieldMono12;
        settings.target = SceneTarget::LensCap;
        ScriptedDevice::Feature &exposure = device.add("ExposureTime", 2000.0);
        exposure.state.minimum = 10.0;
        exposure.state.maximum = 100000.0;
        device.addEntries("ExposureAuto", {"Continuous", "Off"});
        device.add("Gamma", 0.5);
        device.add("Gain", 0.0);
        device.addEntries("ShadingCorrectionMode", {"On", "Off"});
        device.addEntries("SceneTarget", {"FlatField", "Off"});
        device.addEntries("DeviceScanType", {model.isLineScan ? "Linescan" : "Areascan"});
    }

    CvxResult next(std::chrono::milliseconds, std::shared_ptr<const Image> &image) override
    {
        ++settings.frameNumber;
        settings.exposureTime = std::get<double>(device.value("ExposureTime"));
        image = std::make_shared<RenderedImage>(m_pictures.picture(settings), settings);
        return {};
    }
    void discard() override { }

    ScriptedDevice device;
    RenderSettings settings;

private:
    SensorPictures m_pictures;
};

class FlatFieldMeasuring : public testing::Test
{
protected:
    FlatFieldMeasuring() : camera(FieldBench::sensor(0.4)), measurement(options()) { }

    static FlatFieldOptions options()
    {
        FlatFieldOptions options;
        options.images = 16;
        options.setsExposure = true;
        return options;
    }

    std::string takeDark()
    {
        camera.settings.target = SceneTarget::LensCap;
        return toEnglish(measurement.takeDark(context()));
    }
    std::string takeBright()
    {
        camera.settings.target = SceneTarget::FlatField;
        return toEnglish(measurement.takeBright(context()));
    }
    MeasureContext context() { return {camera.device, camera, progress}; }

    std::size_t cancelAt = 1000;
    const MeasureProgress progress = [this](std::size_t done, std::size_t) { return done < cancelAt; };
    FieldCamera camera;
    FlatFieldMeasurement measurement;
};

} // namespace

TEST_F(FlatFieldMeasuring, shadingOf40PercentFallsBelow1Percent)
{
    ASSERT_EQ(takeDark(), "");
    ASSERT_EQ(takeBright(), "");
    const FlatFieldResult &result = measurement.result().value();
    EXPECT_GT(result.before.shading, 0.35);
    EXPECT_LT(result.after.shading, 0.01);
    EXPECT_LT(result.after.prnu, 0.1 * result.before.prnu);
    // The noise of 16 dark images remains in the offsets.
    EXPECT_LT(result.after.pixelDsnu, 1.2 * result.before.channels.front().darkNoise / 4);
    EXPECT_TRUE(result.warnings.empty()) << toEnglish(result.warnings.front());
    EXPECT_EQ(result.darkImages, 16U);
    EXPECT_EQ(result.checkImages, 8U);
    const nlohmann::ordered_json json = toJson(result);
    EXPECT_EQ(json["pixelFormat"], "Mono12");
    EXPECT_EQ(json["before"]["shading"], result.before.shading);
    EXPECT_EQ(json["after"]["channels"][0]["channel"], "Mono");
}

TEST_F(FlatFieldMeasuring, cameraIsPreparedAndTheExposureSet)
{
    ASSERT_EQ(takeDark(), "");
    ASSERT_EQ(takeBright(), "");
    const FlatFieldResult &result = measurement.result().value();
    const std::vector<std::string> changes{"ExposureAuto=Off", "Gamma=1", "ShadingCorrectionMode=Off"};
    EXPECT_EQ(result.darkSettings.switchedOff, changes);
    EXPECT_EQ(result.darkSettings.exposureTime, 2000);
    EXPECT_GT(result.brightSettings.exposureTime, 5000);
    EXPECT_NEAR(result.brightShare, bestLevel, 0.05);
    EXPECT_EQ(std::get<std::string>(camera.device.value("SceneTarget")), "FlatField");
}

TEST_F(FlatFieldMeasuring, tooMuchLightIsReducedToo)
{
    ASSERT_EQ(takeDark(), "");
    camera.device.set("ExposureTime", 90000.0);
    ASSERT_EQ(takeBright(), "");
    EXPECT_NEAR(measurement.result()->brightShare, bestLevel, 0.05);
}

TEST_F(FlatFieldMeasuring, gainOfTheDarkImagesIsUsedAgain)
{
    ASSERT_EQ(takeDark(), "");
    camera.device.set("Gain", 6.0);
    ASSERT_EQ(takeBright(), "");
    EXPECT_EQ(std::get<double>(camera.device.value("Gain")), 0);
}

TEST_F(FlatFieldMeasuring, forgottenLensCapEndsTheMeasurement)
{
    camera.device.set("ExposureTime", 7000.0);
    camera.settings.target = SceneTarget::FlatField;
    EXPECT_NE(toEnglish(measurement.takeDark(context())).find("Cover the lens"), std::string::npos);
    EXPECT_FALSE(measurement.hasDark());

    ASSERT_EQ(takeDark(), "");
    camera.settings.target = SceneTarget::LensCap;
    EXPECT_NE(toEnglish(measurement.takeBright(context())).find("too dark"), std::string::npos);
    EXPECT_FALSE(measurement.result());
    EXPECT_TRUE(measurement.hasDark()); // The step can be repeated.
    EXPECT_EQ(takeBright(), "");
}

TEST_F(FlatFieldMeasuring, anotherRegionNeedsNewDarkImages)
{
    ASSERT_EQ(takeDark(), "");
    camera.settings.height = 120;
    EXPECT_NE(takeBright().find("Take the dark images again"), std::string::npos);
}

TEST_F(FlatFieldMeasuring, cancelledStepLeavesNothing)
{
    cancelAt = 3;
    EXPECT_EQ(takeDark(), toEnglish(cancelledSentence()));
    EXPECT_FALSE(measurement.hasDark());
}

TEST(FlatFieldOfALine, linesAreAveraged)
{
    SensorModel model = FieldBench::sensor(0.4);
    model.isLineScan = true;
    model.width = 1024;
    FieldCamera camera(model);
    FlatFieldOptions options;
    options.images = 8;
    options.setsExposure = true;
    FlatFieldMeasurement measurement(options);
    const MeasureProgress progress = [](std::size_t, std::size_t) { return true; };
    const MeasureContext context{camera.device, camera, progress};
    ASSERT_EQ(toEnglish(measurement.takeDark(context)), "");
    camera.settings.target = SceneTarget::FlatField;
    ASSERT_EQ(toEnglish(measurement.takeBright(context)), "");
    EXPECT_EQ(measurement.result()->built.field.height, 1U);
    EXPECT_GT(measurement.result()->before.shading, 0.2);
    EXPECT_LT(measurement.result()->after.shading, 0.01);
}
