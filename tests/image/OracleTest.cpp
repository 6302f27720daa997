#include "sdk/image/ImageConverter.h"

#include <cmath>
#include <gtest/gtest.h>
#include <memory>
#include <random>

extern "C" {
#include <libswscale/swscale.h>
}

// libswscale reads many of the formats, and has been written by others.

namespace {

constexpr int oracleWidth = 64;
constexpr int oracleHeight = 32;

struct ScreenOracle
{
    const char *name;
    AVPixelFormat format;
    int tolerance; ///< libswscale rounds in another way.
    bool
        isSmooth; ///< True if the pictures have to be smooth, because libswscale interpolates in another way.
};

const std::vector<ScreenOracle> screenOracles = {
    {"Mono8", AV_PIX_FMT_GRAY8, 0, false},
    {"Mono10", AV_PIX_FMT_GRAY10LE, 1, false},
    {"Mono12", AV_PIX_FMT_GRAY12LE, 1, false},
    {"Mono14", AV_PIX_FMT_GRAY14LE, 1, false},
    {"Mono16", AV_PIX_FMT_GRAY16LE, 1, false},
    {"RGB8", AV_PIX_FMT_RGB24, 0, false},
    {"BGR8", AV_PIX_FMT_BGR24, 0, false},
    {"RGBa8", AV_PIX_FMT_RGBA, 0, false},
    {"BGRa8", AV_PIX_FMT_BGRA, 0, false},
    {"RGB16", AV_PIX_FMT_RGB48LE, 1, false},
    {"BGR16", AV_PIX_FMT_BGR48LE, 1, false},
    {"RGBa16", AV_PIX_FMT_RGBA64LE, 1, false},
    {"RGB565p", AV_PIX_FMT_BGR565LE, 8, false}, // libswscale names the highest bits first.
    {"BGR565p", AV_PIX_FMT_RGB565LE, 8, false},
    {"BayerRG8", AV_PIX_FMT_BAYER_RGGB8, 2, true},
    {"BayerGR8", AV_PIX_FMT_BAYER_GRBG8, 2, true},
    {"BayerGB8", AV_PIX_FMT_BAYER_GBRG8, 2, true},
    {"BayerBG8", AV_PIX_FMT_BAYER_BGGR8, 2, true},
    {"BayerRG16", AV_PIX_FMT_BAYER_RGGB16LE, 2, true},
    {"YUV422_8", AV_PIX_FMT_YUYV422, 3, true},
    {"YUV422_8_UYVY", AV_PIX_FMT_UYVY422, 3, true},
    {"YCbCr601_422_8", AV_PIX_FMT_YUYV422, 3, true},
    {"YCbCr709_422_8_CbYCrY", AV_PIX_FMT_UYVY422, 3, true},
    {"YCbCr2020_422_8", AV_PIX_FMT_YUYV422, 3, true},
    {"YCbCr420_8_YY_CbCr_Semiplanar", AV_PIX_FMT_NV12, 3, true},
    {"YCbCr420_8_YY_CrCb_Semiplanar", AV_PIX_FMT_NV21, 3, true},
};

struct ContextDeleter
{
    void operator()(SwsContext *context) const { sws_freeContext(context); }
};
using Context = std::unique_ptr<SwsContext, ContextDeleter>;

/// Sets the weights of the format's name; luma and chroma have the full range unless the name says otherwise.
void setWeights(SwsContext *context, std::string_view name)
{
    const bool isFull = name.find("601") == std::string_view::npos
        && name.find("709") == std::string_view::npos && name.find("2020") == std::string_view::npos;
    const int standard = name.find("709") != std::string_view::npos ? SWS_CS_ITU709
        : name.find("2020") != std::string_view::npos               ? SWS_CS_BT2020
                                                                    : SWS_CS_ITU601;
    sws_setColorspaceDetails(context, sws_getCoefficients(standard), isFull ? 1 : 0,
        sws_getCoefficients(SWS_CS_DEFAULT), 1, 0, 1 << 16, 1 << 16);
}

/// Returns random bytes, or those of a smooth picture, in which neighbours hardly differ.
std::vector<std::uint8_t> pictureBytes(const PixelFormat &format, bool isSmooth)
{
    std::minstd_rand random(3);
    std::vector<std::uint8_t> bytes(std::size_t(oracleWidth) * oracleHeight * bitsPerPixel(format.code) / 8);
    const bool isWide = bitsPerPixel(format.code) / format.components >= 10 && format.depth > 8;
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = isSmooth ? static_cast<std::uint8_t>(90 + i / (bytes.size() / 64))
                            : static_cast<std::uint8_t>(random() >> 8U);
    if (isWide && format.depth < 16 && !isSmooth) // libswscale expects that the unused bits are 0.
        for (std::size_t i = 1; i < bytes.size(); i += 2)
            bytes[i] = static_cast<std::uint8_t>(bytes[i] & ((1 << (format.depth - 8)) - 1));
    return bytes;
}

std::vector<std::uint8_t> convertedByOracle(
    const ScreenOracle &oracle, const std::vector<std::uint8_t> &bytes, int channels)
{
    const AVPixelFormat target = channels == 1 ? AV_PIX_FMT_GRAY8 : AV_PIX_FMT_RGB24;
    const Context context(sws_getContext(oracleWidth, oracleHeight, oracle.format, oracleWidth, oracleHeight,
        target, SWS_POINT | SWS_ACCURATE_RND | SWS_FULL_CHR_H_INT | SWS_FULL_CHR_H_INP, nullptr, nullptr,
        nullptr));
    if (!context)
        return {};
    setWeights(context.get(), oracle.name);
    const auto size = static_cast<int>(bytes.size());
    const bool isSemiplanar = std::string_view(oracle.name).find("Semiplanar") != std::string_view::npos;
    const int lineBytes = isSemiplanar ? oracleWidth : size / oracleHeight;
    const std::uint8_t *const planes[4]
        = {bytes.data(), isSemiplanar ? bytes.data() + oracleWidth * oracleHeight : nullptr};
    const int strides[4] = {lineBytes, lineBytes};
    std::vector<std::uint8_t> output(static_cast<std::size_t>(oracleWidth * oracleHeight * channels + 64));
    std::uint8_t *const outputs[4] = {output.data()};
    const int outputStrides[4] = {oracleWidth * channels};
    sws_scale(context.get(), planes, strides, 0, oracleHeight, outputs, outputStrides);
    return output;
}

/// Returns the largest difference inside of the picture; libswscale treats its border in other ways.
int largestDifference(
    const std::vector<std::uint8_t> &ours, const std::vector<std::uint8_t> &theirs, int channels)
{
    int largest = 0;
    for (int y = 4; y < oracleHeight - 4; ++y)
        for (int i = 4 * channels; i < (oracleWidth - 4) * channels; ++i) {
            const auto index = static_cast<std::size_t>(y * oracleWidth * channels + i);
            largest = std::max(largest, std::abs(ours[index] - theirs[index]));
        }
    return largest;
}

} // namespace

TEST(Oracle, libswscaleShowsTheSamePictures)
{
    av_log_set_level(AV_LOG_ERROR); // It reports each conversion for which it has no fast code.
    for (const ScreenOracle &oracle : screenOracles) {
        const PixelFormat *const format = findPixelFormat(std::string_view(oracle.name));
        ASSERT_NE(format, nullptr) << oracle.name;
        const std::vector<std::uint8_t> bytes = pictureBytes(*format, oracle.isSmooth);
        const auto channels = static_cast<int>(ImageConverter::screenChannels(format->code));
        std::vector<std::uint8_t> ours(static_cast<std::size_t>(oracleWidth * oracleHeight * channels));
        ImageConverter().toScreen(
            {bytes.data(), bytes.size(), oracleWidth, oracleHeight, 0, format->code, false},
            {{0, 0, oracleWidth, oracleHeight}, oracleWidth, oracleHeight}, ours.data(),
            static_cast<std::size_t>(oracleWidth * channels));
        const std::vector<std::uint8_t> theirs = convertedByOracle(oracle, bytes, channels);
        ASSERT_FALSE(theirs.empty()) << oracle.name;
        EXPECT_LE(largestDifference(ours, theirs, channels), oracle.tolerance) << oracle.name;
    }
}
