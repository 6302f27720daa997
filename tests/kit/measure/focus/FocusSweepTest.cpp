#include "tools/kit/measure/focus/FocusSweep.h"
#include "tests/features/ScriptedDevice.h"
#include "tests/kit/measure/focus/FocusPictures.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace CvxCPP;

namespace {
class RenderedImage : public Image
{
public:
    RenderedImage(std::vector<std::uint8_t> bytes, const RenderSettings &settings) : m_bytes(std::move(bytes))
    {
        m_info.width = static_cast<std::uint32_t>(settings.width);
        m_info.height = static_cast<std::uint32_t>(settings.height);
        m_info.pixelFormat = settings.pixelFormat;
        m_info.frameId = settings.frameNumber;
        const auto later = std::chrono::steady_clock::now().time_since_epoch() + std::chrono::minutes(1);
        m_info.receivedAt = static_cast<std::uint64_t>(std::chrono::nanoseconds(later).count());
    }
    const std::uint8_t *GetData() const override { return m_bytes.data(); }
    std::size_t GetSize() const override { return m_bytes.size(); }
    const ImageInfo &GetInfo() const override { return m_info; }
    std::vector<ChunkValue> GetChunks() const override { return {}; }

private:
    std::vector<std::uint8_t> m_bytes;
    ImageInfo m_info;
};

/// A camera with a motor for the focus, and the pictures that it takes.
class SweptCamera : public FrameSource
{
public:
    explicit SweptCamera(const SensorModel &model) : m_pictures(model), m_scene(model)
    {
        ScriptedDevice::Feature &lens = device.add("FocusPosition", std::int64_t{500});
        lens.onWrite = [this](NodeValue &value) { positions.push_back(std::get<std::int64_t>(value)); };
        lens.state.minimum = std::int64_t{0};
        lens.state.maximum = std::int64_t{1000};
        lens.state.increment = std::int64_t{1};
    }

    CvxResult next(std::chrono::milliseconds, std::shared_ptr<const Image> &image) override
    {
        RenderSettings &settings = m_pictures.settings;
        settings.focusPosition = static_cast<double>(std::get<std::int64_t>(device.value("FocusPosition")));
        settings.target = target;
        ++settings.frameNumber;
        image = std::make_shared<RenderedImage>(m_scene.render(settings), settings);
        return {};
    }
    void discard() override { }

    Sentence sweep()
    {
        SweepOptions options;
        options.focus = m_pictures.options;
        options.settle = std::chrono::milliseconds(0);
        const MeasureProgress progress = [this](std::size_t done, std::size_t total) {
            lastDone = done;
            lastTotal = total;
            return done < cancelAt;
        };
        return sweepFocus({device, *this, progress}, options, result);
    }

    ScriptedDevice device;
    std::vector<std::int64_t> positions; ///< Positions to which the lens was moved.
    SceneTarget target = SceneTarget::Chart;
    std::size_t cancelAt = 1000;
    std::size_t lastDone = 0;
    std::size_t lastTotal = 0;
    SweepResult result;

private:
    FocusPictures m_pictures;
    FocusScene m_scene;
};

std::string beginOf(const Sentence &sentence, std::size_t length)
{
    return toEnglish(sentence).substr(0, length);
}
} // namespace

TEST(FocusSweep, LensEndsAtTheTruePosition)
{
    for (const double truth : {142.0, 870.0}) {
        SensorModel model = FocusPictures::sensor();
        model.focusPosition = truth;
        SweptCamera camera(model);
        const Sentence problem = camera.sweep();
        EXPECT_TRUE(problem.isEmpty()) << toEnglish(problem);
        EXPECT_NEAR(camera.result.bestPosition, truth, 1);
        EXPECT_EQ(static_cast<double>(std::get<std::int64_t>(camera.device.value("FocusPosition"))),
            camera.result.bestPosition);
        EXPECT_EQ(camera.result.startPosition, 500);
        // The movement before it came from below, as all measured positions did.
        EXPECT_EQ(camera.positions.rbegin()[1], camera.positions.back() - 50);
        const auto firstFine = std::is_sorted_until(camera.positions.begin(), camera.positions.end());
        ASSERT_NE(firstFine, camera.positions.end());
        EXPECT_LT(static_cast<double>(*firstFine), camera.result.fine.front().position);
        EXPECT_EQ(camera.lastDone, camera.lastTotal - 1);
    }
}

TEST(FocusSweep, FailuresSayWhatToDo)
{
    SensorModel model = FocusPictures::sensor();
    model.width = 320;
    model.height = 240;
    SweptCamera camera(model);
    camera.target = SceneTarget::LensCap;
    EXPECT_EQ(beginOf(camera.sweep(), 24), "The picture is too dark.");
    camera.target = SceneTarget::FlatField;
    EXPECT_EQ(beginOf(camera.sweep(), 25), "The picture has no edges.");
    camera.target = SceneTarget::Chart;
    camera.cancelAt = 5;
    EXPECT_EQ(beginOf(camera.sweep(), 100), "The measurement was cancelled.");
    EXPECT_EQ(camera.lastDone, 5U);
    camera.device.feature("FocusPosition").state.access = NodeAccess::ReadOnly;
    EXPECT_EQ(beginOf(camera.sweep(), 32), "The camera cannot move its lens:");
}

TEST(FocusCamera, PositionsAndBlackLevelsAreConverted)
{
    const FocusAxis axis{"Focus", "", 5, 50, 4, true};
    EXPECT_EQ(axis.nearest(6.9), 5);
    EXPECT_EQ(axis.nearest(60), 49);
    EXPECT_EQ((FocusAxis{"FocalPower", "dpt", -2, 3, 0, false}.decimals()), 3);
    EXPECT_DOUBLE_EQ(blackLevelShare(64, "DN"), 64 / 4095.0);
    EXPECT_DOUBLE_EQ(blackLevelShare(2, "%"), 0.02);
}
