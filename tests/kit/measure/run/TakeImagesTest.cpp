#include "tests/features/ScriptedDevice.h"
#include "tests/kit/live/LiveImage.h"
#include "tests/kit/live/ScriptedStream.h"
#include "tools/kit/measure/run/MeasureContext.h"
#include "tools/kit/measure/run/StreamFrames.h"

#include <deque>
#include <gtest/gtest.h>

using namespace CvxCPP;
using namespace std::chrono_literals;

namespace {

class TimedImage : public LiveImage
{
public:
    TimedImage(std::uint64_t frameId, bool isComplete, std::chrono::nanoseconds later)
        : LiveImage(frameId, 4, 2, 0), m_timed(LiveImage::GetInfo())
    {
        const auto now = std::chrono::steady_clock::now().time_since_epoch() + later;
        m_timed.receivedAt = static_cast<std::uint64_t>(std::chrono::nanoseconds(now).count());
        m_timed.isComplete = isComplete;
    }
    const ImageInfo &GetInfo() const override { return m_timed; }

private:
    ImageInfo m_timed;
};

/// Delivers images 40 ms apart without waiting, until the script fails or ends.
class ScriptedFrames : public FrameSource
{
public:
    std::deque<bool> isComplete; // One entry for each image; after the last image, next() returns `end`.
    CvxResult end{CvxErrorTimeout, {}};
    int discardCount = 0;

    CvxResult next(std::chrono::milliseconds, std::shared_ptr<const Image> &image) override
    {
        if (isComplete.empty())
            return end;
        ++m_count;
        image = std::make_shared<TimedImage>(m_count, isComplete.front(), int(m_count) * 40ms);
        isComplete.pop_front();
        return {};
    }
    void discard() override { ++discardCount; }

private:
    std::uint64_t m_count = 0;
};

class TakeImages : public testing::Test
{
protected:
    Sentence take(std::size_t count)
    {
        const MeasureProgress progress = [this](std::size_t done, std::size_t total) {
            lastDone = done;
            lastTotal = total;
            return done < cancelAt;
        };
        return takeImages({device, frames, progress}, count, 0ms, [this](const Image &image) {
            taken.push_back(image.GetInfo().frameId);
            return answer;
        });
    }

    void SetUp() override
    {
        device.add("ExposureTime", 10000.0);
        device.add("AcquisitionFrameRate", 25.0);
        device.addEntries("TriggerMode", {"Off", "On"});
    }

    ScriptedDevice device;
    ScriptedFrames frames;
    Sentence answer;
    std::vector<std::uint64_t> taken;
    std::size_t cancelAt = 1000;
    std::size_t lastDone = 0;
    std::size_t lastTotal = 0;
};

} // namespace

TEST_F(TakeImages, completeAndFreshOnesAreTaken)
{
    frames.isComplete = {true, true, false, true, false, true, true};
    EXPECT_EQ(toEnglish(take(2)), "");
    EXPECT_EQ(taken, (std::vector<std::uint64_t>{4, 6}));
    EXPECT_EQ(frames.discardCount, 1);
    EXPECT_EQ(lastDone, 2u);
    EXPECT_EQ(lastTotal, 2u);
}

TEST_F(TakeImages, cancellingAndARefusedImageEndTheTaking)
{
    cancelAt = 1;
    frames.isComplete = {true, true, true, true, true};
    EXPECT_EQ(toEnglish(take(3)), toEnglish(cancelledSentence()));
    EXPECT_EQ(taken.size(), 1u);
    answer = {"No.", {}};
    cancelAt = 1000;
    taken.clear();
    frames.isComplete = {true, true, true, true, true};
    EXPECT_EQ(toEnglish(take(3)), "No.");
    EXPECT_EQ(taken.size(), 1u);
}

TEST_F(TakeImages, missingImagesAreExplained)
{
    EXPECT_NE(toEnglish(take(1)).find("no image"), std::string::npos);
    device.set("TriggerMode", std::string("On"));
    EXPECT_NE(toEnglish(take(1)).find("TriggerMode"), std::string::npos);
    device.set("TriggerMode", std::string("Off"));
    frames.isComplete.assign(40, false);
    EXPECT_NE(toEnglish(take(1)).find("missing data"), std::string::npos);
    frames.isComplete.clear();
    frames.end = {CvxErrorDeviceLost, "Unplugged."};
    EXPECT_NE(toEnglish(take(1)).find("Unplugged."), std::string::npos);
    frames.end = {CvxErrorClosed, "Closed."};
    EXPECT_NE(toEnglish(take(1)).find("has ended"), std::string::npos);
    EXPECT_TRUE(taken.empty());
}

TEST(StreamFrames, lossDuringDiscardIsReportedByTheNextCall)
{
    ScriptedStream stream([] {});
    StreamFrames frames(stream);
    std::shared_ptr<const Image> image;
    stream.deliver(LiveImage::make(1));
    frames.discard();
    EXPECT_EQ(frames.next(0ms, image).code, CvxErrorTimeout);
    stream.failOnce({CvxErrorDeviceLost, "Lost."});
    frames.discard();
    stream.deliver(LiveImage::make(2));
    EXPECT_EQ(frames.next(0ms, image).code, CvxErrorDeviceLost);
    EXPECT_TRUE(frames.next(0ms, image));
}
