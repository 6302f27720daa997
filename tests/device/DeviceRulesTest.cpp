#include "sdk/device/CameraLabel.h"
#include "sdk/device/DeviceLife.h"
#include "sdk/device/InUseRetry.h"
#include "sdk/device/RateMeter.h"

#include <gtest/gtest.h>

using namespace CvxCPP;
using namespace std::chrono_literals;

namespace {

const TimePoint start{1000s};

} // namespace

TEST(DeviceLifeTest, lostCameraIsReopenedOncePerInterval)
{
    DeviceLife life(1s, start);
    EXPECT_EQ(life.state(), DeviceState::Reopening);
    EXPECT_TRUE(life.opened());
    EXPECT_EQ(life.state(), DeviceState::Open);
    EXPECT_EQ(life.reopenCount(), 0U);
    EXPECT_EQ(life.nextReopening(), TimePoint::max());
    EXPECT_FALSE(life.beginReopening(start + 10s));

    EXPECT_TRUE(life.lost());
    EXPECT_FALSE(life.lost());
    EXPECT_EQ(life.state(), DeviceState::Lost);
    EXPECT_EQ(life.nextReopening(), start + 1s) << "1 s after the last attempt began";
    EXPECT_FALSE(life.beginReopening(start + 999ms));
    EXPECT_TRUE(life.beginReopening(start + 5s));
    EXPECT_EQ(life.state(), DeviceState::Reopening);
    EXPECT_FALSE(life.beginReopening(start + 10s));

    EXPECT_TRUE(life.lost());
    EXPECT_EQ(life.nextReopening(), start + 6s);
    EXPECT_TRUE(life.beginReopening(start + 6s));
    EXPECT_TRUE(life.opened());
    EXPECT_FALSE(life.opened());
    EXPECT_EQ(life.reopenCount(), 1U);
}

TEST(DeviceLifeTest, everyStateEndsWithClosed)
{
    for (int step = 0; step < 4; ++step) {
        DeviceLife life(1s, start);
        if (step > 0)
            life.opened();
        if (step > 1)
            life.lost();
        if (step > 2)
            life.beginReopening(start + 1s);
        EXPECT_TRUE(life.closed());
        EXPECT_FALSE(life.closed() || life.opened() || life.lost() || life.beginReopening(start + 9s));
        EXPECT_EQ(life.state(), DeviceState::Closed);
        EXPECT_EQ(life.nextReopening(), TimePoint::max());
    }
}

TEST(InUseRetryTest, onlyCamerasInUseAreTriedAgain)
{
    const InUseRetry retry(5s, 500ms, start);
    EXPECT_EQ(retry.nextAttempt(CvxErrorInUse, start, start + 100ms), start + 500ms);
    EXPECT_EQ(retry.nextAttempt(CvxErrorInUse, start, start + 700ms), start + 700ms) << "a slow attempt";
    EXPECT_EQ(retry.nextAttempt(CvxErrorInUse, start + 4500ms, start + 4600ms), start + 5s);
    EXPECT_EQ(retry.nextAttempt(CvxErrorInUse, start + 4501ms, start + 4600ms), std::nullopt);
    for (const CvxError error : {CvxErrorNotFound, CvxErrorDevice, CvxErrorTimeout})
        EXPECT_EQ(retry.nextAttempt(error, start, start + 100ms), std::nullopt);
}

TEST(RateMeterTest, ratesAreThoseOfTheLastSecond)
{
    RateMeter meter;
    EXPECT_EQ(meter.rates({start, 5, 500}).imagesPerSecond, 0) << "no sample";
    meter.add({start, 0, 0});
    EXPECT_EQ(meter.rates({start + 100ms, 1, 100}).imagesPerSecond, 0) << "one image";
    EXPECT_DOUBLE_EQ(meter.rates({start + 100ms, 2, 200}).imagesPerSecond, 20);
    EXPECT_DOUBLE_EQ(meter.rates({start + 100ms, 2, 200}).bytesPerSecond, 2000);
    EXPECT_EQ(meter.rates({start, 2, 200}).imagesPerSecond, 0) << "no time has passed";

    for (std::uint64_t i = 1; i <= 40; ++i) // 10 images/s for 2 s, then 20 images/s for 2 s.
        meter.add({start + 100ms * i, i <= 20 ? i : 20 + (i - 20) * 2, 0});
    EXPECT_DOUBLE_EQ(meter.rates({start + 4s, 60, 0}).imagesPerSecond, 20);
    EXPECT_DOUBLE_EQ(meter.rates({start + 8s, 60, 0}).imagesPerSecond, 0) << "since the newest sample";
}

TEST(RateMeterTest, frequentSamplesAreIgnored)
{
    RateMeter meter;
    meter.add({start, 0, 0});
    for (std::uint64_t i = 1; i < 100; ++i)
        meter.add({start + 1ms * i, 1000, 0});
    EXPECT_DOUBLE_EQ(meter.rates({start + 100ms, 1000, 0}).imagesPerSecond, 10'000);
}

TEST(CameraLabelTest, labelNamesTheCamera)
{
    EXPECT_EQ(cameraLabel({"D1", "Orvelle", "Kx200", "24030117", "Left", "GEV"}), "Orvelle Kx200 (24030117)");
    EXPECT_EQ(cameraLabel({"D1", "Orvelle", "Orvelle Kx200", "", "Left", "GEV"}), "Orvelle Kx200");
    EXPECT_EQ(cameraLabel({"D1", "", "Kx200", "", "", "GEV"}), "Kx200");
    EXPECT_EQ(cameraLabel({"D1", "Orvelle", "", "", "Left", "GEV"}), "Left");
    EXPECT_EQ(cameraLabel({"D1", "", "", "7", "", "GEV"}), "D1 (7)");
}
