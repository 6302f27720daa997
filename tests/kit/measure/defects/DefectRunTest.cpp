#include "tools/kit/measure/defects/DefectRun.h"
#include "tests/features/ScriptedDevice.h"
#include "tests/kit/live/LiveImage.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

constexpr std::uint32_t imageSide = 64;
constexpr std::size_t wantedImages = 16;

class EvenImage : public LiveImage
{
public:
    EvenImage(std::uint64_t frameId, std::uint8_t value)
        : LiveImage(frameId, imageSide, imageSide, value), m_even(LiveImage::GetInfo())
    {
        const auto now = std::chrono::steady_clock::now().time_since_epoch() + frameId * 40ms;
        m_even.receivedAt = static_cast<std::uint64_t>(std::chrono::nanoseconds(now).count());
        m_even.isComplete = true;
    }
    const CvxCPP::ImageInfo &GetInfo() const override { return m_even; }

private:
    CvxCPP::ImageInfo m_even;
};

/// Delivers images 40 ms apart without waiting. Only some are different: they come in turn, but a new one
/// comes for the first time after several that are known.
class RepeatingFrames : public FrameSource
{
public:
    RepeatingFrames(std::size_t different, std::size_t spacing) : m_different(different), m_spacing(spacing)
    { }

    std::size_t delivered() const { return m_count; }

    CvxCPP::CvxResult next(std::chrono::milliseconds, std::shared_ptr<const CvxCPP::Image> &image) override
    {
        const std::size_t known = std::min(m_different, 1 + m_count / m_spacing);
        const bool isNew = m_count % m_spacing == 0 && m_count / m_spacing < m_different;
        const std::size_t value = isNew ? known - 1 : m_count % known;
        ++m_count;
        image = std::make_shared<EvenImage>(m_count, static_cast<std::uint8_t>(20 + value));
        return {};
    }
    void discard() override { }

private:
    const std::size_t m_different;
    const std::size_t m_spacing;
    std::size_t m_count = 0;
};

} // namespace

TEST(DefectRun, TakesFurtherImagesWhileImagesAreRepeated)
{
    struct Case
    {
        std::size_t different;
        std::size_t spacing;
        std::size_t expectedImages; // Number of images in the statistics.
        std::size_t leastTaken;
        bool isProblem;
    };
    const Case cases[] = {
        {100, 1, wantedImages, wantedImages, false}, {wantedImages, 2, wantedImages, wantedImages + 1, false},
        {8, 1, 8, 3 * wantedImages, false}, {7, 1, 7, 3 * wantedImages, true},
        {2, 1, 2, 3 * wantedImages, true}, {1, 1, 1, wantedImages, false}, // A camera without noise.
    };
    for (const Case &test : cases) {
        SCOPED_TRACE(testing::Message() << test.different << " different images");
        ScriptedDevice device;
        device.add("ExposureTime", 10000.0);
        device.add("AcquisitionFrameRate", 25.0);
        RepeatingFrames frames(test.different, test.spacing);
        std::size_t previous = 0;
        const MeasureProgress progress = [&](std::size_t done, std::size_t total) {
            EXPECT_GE(done, previous);
            EXPECT_EQ(total, wantedImages);
            previous = done;
            return true;
        };
        DefectImages dark;
        const Sentence problem = takeDarkImages({device, frames, progress}, wantedImages, dark);
        EXPECT_EQ(toEnglish(problem),
            test.isProblem ? "The camera has sent the same pictures again and again. Lower "
                             "AcquisitionFrameRate, then measure again."
                           : "");
        EXPECT_EQ(dark.statistics.images(), test.expectedImages);
        EXPECT_GE(frames.delivered(), test.leastTaken);
    }
}
