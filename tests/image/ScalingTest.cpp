#include "sdk/image/ImageConverter.h"
#include "tests/image/KernelChoice.h"

#include <atomic>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <new>
#include <random>

namespace {

std::atomic<std::size_t> allocations{0};

constexpr std::uint32_t mono8 = 0x01080001;
constexpr std::uint32_t rgb8 = 0x02180014;
constexpr std::uint32_t bayerRG12p = 0x010C0059;
constexpr std::uint32_t uyvy = 0x0210001F;

/// One channel of a picture.
struct Plane
{
    std::size_t width;
    std::size_t height;
    std::vector<int> pixels;

    int at(std::size_t x, std::size_t y) const { return pixels[y * width + x]; }
};

Plane transposed(const Plane &plane)
{
    Plane result = {plane.height, plane.width, {}};
    for (std::size_t x = 0; x < plane.width; ++x)
        for (std::size_t y = 0; y < plane.height; ++y)
            result.pixels.push_back(plane.at(x, y));
    return result;
}

/// Returns how often the width is halved before two pixels are interpolated.
int halvings(std::size_t from, std::size_t to)
{
    int result = 0;
    while (from >= to << static_cast<unsigned>(result + 1))
        ++result;
    return result;
}

/// Halves the width. Means of two pixels are rounded by `rounding`.
Plane halved(Plane plane, int times, int rounding)
{
    for (; times > 0; --times) {
        Plane half = {(plane.width + 1) / 2, plane.height, {}};
        for (std::size_t y = 0; y < plane.height; ++y)
            for (std::size_t x = 0; x < plane.width; x += 2)
                half.pixels.push_back(x + 1 == plane.width
                        ? plane.at(x, y)
                        : (plane.at(x, y) + plane.at(x + 1, y) + rounding) / 2);
        plane = half;
    }
    return plane;
}

/// Returns the plane with a new width, where one of its pixels takes `factor` pixels of the plane.
Plane interpolated(const Plane &plane, std::size_t width, double factor)
{
    Plane result = {width, plane.height, {}};
    for (std::size_t y = 0; y < plane.height; ++y) {
        for (std::size_t x = 0; x < width; ++x) {
            const double center = (static_cast<double>(x) + 0.5) * factor;
            if (factor <= 1) {
                result.pixels.push_back(plane.at(static_cast<std::size_t>(center + 1e-9), y));
                continue;
            }
            // Positions have a precision of 1/64 of a pixel.
            const auto last = static_cast<double>(plane.width - 1);
            const double position = std::min(std::max(std::floor(center * 64 + 1e-6) / 64 - 0.5, 0.0), last);
            const auto first = static_cast<std::size_t>(position);
            const std::size_t second = std::min(first + 1, plane.width - 1);
            const double share = position - static_cast<double>(first);
            result.pixels.push_back(static_cast<int>(
                std::floor(plane.at(first, y) * (1 - share) + plane.at(second, y) * share + 0.5)));
        }
    }
    return result;
}

/// Scales as ScreenScaler promises: both axes are halved before both are interpolated.
Plane scaled(const Plane &plane, std::size_t width, std::size_t height)
{
    const int timesX = halvings(plane.width, width);
    const int timesY = halvings(plane.height, height);
    const double factorX
        = static_cast<double>(plane.width) / static_cast<double>(width << static_cast<unsigned>(timesX));
    const double factorY
        = static_cast<double>(plane.height) / static_cast<double>(height << static_cast<unsigned>(timesY));
    const Plane half = halved(transposed(halved(transposed(plane), timesY, 1)), timesX, 0);
    return interpolated(transposed(interpolated(transposed(half), height, factorY)), width, factorX);
}

std::vector<std::uint8_t> randomBytes(std::size_t count)
{
    std::minstd_rand random(static_cast<unsigned>(count));
    std::vector<std::uint8_t> bytes(count);
    for (std::uint8_t &byte : bytes)
        byte = static_cast<std::uint8_t>(random() >> 8U);
    return bytes;
}

/// Returns one channel of an output of toScreen().
Plane channelOf(const std::vector<std::uint8_t> &output, std::size_t width, std::size_t height,
    std::size_t channels, std::size_t channel)
{
    Plane plane = {width, height, {}};
    for (std::size_t i = 0; i < width * height; ++i)
        plane.pixels.push_back(output[i * channels + channel]);
    return plane;
}

std::vector<std::uint8_t> toScreen(const PixelKernels &kernels, const RawImage &picture, const Region &region,
    std::uint32_t width, std::uint32_t height)
{
    const std::size_t lineSize = std::size_t(width) * ImageConverter::screenChannels(picture.pixelFormat);
    std::vector<std::uint8_t> output(lineSize * height);
    ImageConverter(kernels).toScreen(picture, {region, width, height}, output.data(), lineSize);
    return output;
}

} // namespace

void *operator new(std::size_t size)
{
    ++allocations;
    if (void *const memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

TEST(Scaling, matchesTheReference)
{
    const std::vector<std::pair<std::uint32_t, std::uint32_t>> sizes
        = {{1, 1}, {2, 3}, {9, 31}, {20, 14}, {33, 27}, {49, 55}, {98, 54}, {99, 55}, {100, 110}, {250, 7}};
    const Region region = {3, 2, 99, 55};
    for (const PixelKernels *kernels : runnableKernels()) {
        for (const std::uint32_t format : {mono8, rgb8, bayerRG12p, uyvy}) {
            const std::vector<std::uint8_t> bytes
                = randomBytes(std::size_t(104) * 60 * bitsPerPixel(format) / 8);
            const RawImage picture = {bytes.data(), bytes.size(), 104, 60, 0, format, false};
            const auto original = toScreen(*kernels, picture, region, region.width, region.height);
            const unsigned channels = ImageConverter::screenChannels(format);
            for (const auto &[width, height] : sizes) {
                const auto output = toScreen(*kernels, picture, region, width, height);
                for (unsigned channel = 0; channel < channels; ++channel) {
                    const Plane plane = channelOf(original, region.width, region.height, channels, channel);
                    ASSERT_EQ(channelOf(output, width, height, channels, channel).pixels,
                        scaled(plane, width, height).pixels)
                        << kernels->name << ", format " << format << ", " << width << " x " << height
                        << ", channel " << channel;
                }
            }
        }
    }
}

TEST(Scaling, reducingAnEightKPictureIsTheSameForEverySetOfKernels)
{
    const std::vector<std::uint8_t> bytes = randomBytes(std::size_t(7681) * 4321);
    const RawImage picture = {bytes.data(), bytes.size(), 7681, 4321, 0, mono8, false};
    const Region all = {0, 0, 7681, 4321};
    const auto expected = toScreen(plainKernels(), picture, all, 601, 399);
    for (const PixelKernels *kernels : runnableKernels())
        EXPECT_EQ(toScreen(*kernels, picture, all, 601, 399), expected) << kernels->name;
}

TEST(Scaling, keepsTheBrightnessOfNoise)
{
    const std::vector<std::uint8_t> bytes = randomBytes(1024 * 1024);
    const RawImage picture = {bytes.data(), bytes.size(), 1024, 1024, 0, mono8, false};
    const auto output = toScreen(bestKernels(), picture, {0, 0, 1024, 1024}, 100, 100);
    double sum = 0;
    for (const std::uint8_t pixel : output)
        sum += pixel;
    EXPECT_NEAR(sum / static_cast<double>(output.size()), 127.5, 1);
}

TEST(ImageConverterMemory, isAllocatedForTheFirstPictureOnly)
{
    const std::vector<std::uint8_t> bytes = randomBytes(std::size_t(104) * 61 * 4);
    std::vector<std::uint8_t> screen(3 * 104 * 61);
    std::vector<std::uint16_t> words(4 * 104 * 61);
    ImageConverter converter;
    const auto convertAll = [&](std::size_t size) {
        for (const std::uint32_t format : {mono8, rgb8, bayerRG12p, uyvy, 0x020C0112U, 0x0120011CU}) {
            const RawImage picture = {bytes.data(), size, 104, 60, 0, format, false};
            const Region all = {0, 0, 104, 60};
            converter.toScreen(picture, {all, 104, 60, Demosaicing::EdgeAware}, screen.data(), 3 * 104);
            converter.toScreen(picture, {all, 25, 13}, screen.data(), 3 * 104);
            converter.toWords(picture, all, words.data(), 4 * 104);
            converter.toColorWords(picture, all, Demosaicing::Bilinear, words.data(), 4 * 104);
        }
    };
    convertAll(2000);
    const std::size_t before = allocations;
    convertAll(bytes.size());
    convertAll(3000);
    EXPECT_EQ(allocations, before);
}
