// Measures conversions of pictures of 2448 x 2048 pixels on one core. Prints one line per conversion and
// round, with fields separated by tabs: the name, gigabytes of output per second, those of memcpy() of as
// many bytes, those of libswscale for the same conversion or 0. For a conversion with corrections, the last
// one is that of the same conversion without.
//
// usage: bench_pixel_formats ROUNDS [NAME]   with NAME: only the conversions whose names contain it

#include "sdk/image/ImageConverter.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

extern "C" {
#include <libswscale/swscale.h>
}

namespace {

constexpr std::uint32_t width = 2448;
constexpr std::uint32_t height = 2048;
/// Pictures come and go as in a stream: inputs and outputs are buffers in turn, of so many bytes together
/// that neither is in a cache of the core when it is used again. That holds for memcpy() too.
constexpr std::size_t ringBytes = 64U << 20U;

constexpr std::size_t conversionsPerRound = 8;

enum class Output
{
    Screen,
    EdgeAwareScreen,
    Words
};

struct Conversion
{
    const char *name;
    const char *format;
    Output output = Output::Screen;
    std::uint32_t outputWidth = width;
    std::uint32_t outputHeight = height;
    AVPixelFormat theirFormat = AV_PIX_FMT_NONE; ///< The format for libswscale, if it knows it.
    int theirFlags = SWS_FAST_BILINEAR;
    bool isCorrected = false; ///< The pictures are corrected with a defect map and a flat field.
};

const std::vector<Conversion> conversions = {
    {"BayerRG12p to RGB, bilinear", "BayerRG12p"},
    {"BayerRG12p to RGB, edge-aware", "BayerRG12p", Output::EdgeAwareScreen},
    {"BayerRG8 to RGB, bilinear", "BayerRG8", Output::Screen, width, height, AV_PIX_FMT_BAYER_RGGB8},
    {"BayerRG8 to RGB, edge-aware", "BayerRG8", Output::EdgeAwareScreen},
    {"BayerRG8 to RGB, 1200 × 800", "BayerRG8", Output::Screen, 1200, 800},
    {"Mono12p to 16 bits", "Mono12p", Output::Words},
    {"Mono10p to 16 bits", "Mono10p", Output::Words},
    {"Mono12Packed to 16 bits", "Mono12Packed", Output::Words},
    {"Mono14p to 16 bits", "Mono14p", Output::Words},
    {"Mono8 to 1200 × 800", "Mono8", Output::Screen, 1200, 800, AV_PIX_FMT_GRAY8},
    {"Mono8 to 1200 × 800, their area filter", "Mono8", Output::Screen, 1200, 800, AV_PIX_FMT_GRAY8,
        SWS_AREA},
    {"Mono12 to 8 bits", "Mono12", Output::Screen, width, height, AV_PIX_FMT_GRAY12LE},
    {"Mono16 to 8 bits", "Mono16", Output::Screen, width, height, AV_PIX_FMT_GRAY16LE},
    {"Mono16 to 1200 × 800", "Mono16", Output::Screen, 1200, 800, AV_PIX_FMT_GRAY16LE},
    {"BGR8 to RGB", "BGR8", Output::Screen, width, height, AV_PIX_FMT_BGR24},
    {"RGBa8 to RGB", "RGBa8", Output::Screen, width, height, AV_PIX_FMT_RGBA},
    {"RGB8 to 1200 × 800", "RGB8", Output::Screen, 1200, 800, AV_PIX_FMT_RGB24},
    {"RGB16 to RGB", "RGB16", Output::Screen, width, height, AV_PIX_FMT_RGB48LE},
    {"YUV422_8 to RGB", "YUV422_8", Output::Screen, width, height, AV_PIX_FMT_YUYV422},
    {"YUV422_8_UYVY to RGB", "YUV422_8_UYVY", Output::Screen, width, height, AV_PIX_FMT_UYVY422},
    {"YCbCr420_8 semiplanar to RGB", "YCbCr420_8_YY_CbCr_Semiplanar", Output::Screen, width, height,
        AV_PIX_FMT_NV12},
    {"BayerRG8 to RGB, corrected", "BayerRG8", Output::Screen, width, height, AV_PIX_FMT_NONE, 0, true},
    {"Mono12p to 8 bits, corrected", "Mono12p", Output::Screen, width, height, AV_PIX_FMT_NONE, 0, true},
};

/// Returns a flat field with shading, and a defect map with one pixel of 1000 and two columns.
std::shared_ptr<const Correction> makeCorrection(unsigned depth)
{
    FlatField field{0, 0, width, height, depth, 0, {}, {}};
    DefectMap map{width, height, {}};
    const auto range = static_cast<float>(1U << depth);
    for (std::uint32_t y = 0; y < height; ++y) {
        for (std::uint32_t x = 0; x < width; ++x) {
            field.offset.push_back(range * 0.0001F * static_cast<float>(std::rand() % 100));
            const float distance = static_cast<float>(x) / static_cast<float>(width) - 0.5F;
            field.gain.push_back(1 + distance * distance);
            if (std::rand() % 1000 == 0 || x == 700 || x == 1500)
                map.pixels.push_back({x, y, DefectKind::Hot, 9});
        }
    }
    return std::make_shared<Correction>(std::move(map), std::move(field));
}

/// Returns the processor time of this thread in microseconds.
double threadTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_nsec) / 1e3;
}

/// The buffers of one conversion.
class Measurement
{
public:
    explicit Measurement(const Conversion &conversion);
    ~Measurement() { sws_freeContext(m_context); }
    Measurement(const Measurement &) = delete;
    Measurement &operator=(const Measurement &) = delete;

    void measureRound();

private:
    void convert(std::size_t index) { convert(m_converter, index); }
    void convert(ImageConverter &converter, std::size_t index);
    void convertTheirs(std::size_t index);
    double speed(const std::function<void(std::size_t)> &convert);

    const Conversion &m_conversion;
    std::uint32_t m_code;
    std::size_t m_lineBytes; ///< Bytes in a line of the output.
    std::size_t m_outputBytes;
    std::vector<std::vector<std::uint8_t>> m_inputs;
    std::vector<std::vector<std::uint8_t>> m_outputs;
    std::size_t m_index = 0; ///< Position of the next buffers.
    ImageConverter m_converter;
    ImageConverter m_uncorrected;
    SwsContext *m_context = nullptr;
};

Measurement::Measurement(const Conversion &conversion)
    : m_conversion(conversion), m_code(findPixelFormat(std::string_view(conversion.format))->code)
{
    const bool isWords = conversion.output == Output::Words;
    const unsigned channels
        = isWords ? 2 * ImageConverter::wordChannels(m_code) : ImageConverter::screenChannels(m_code);
    m_lineBytes = std::size_t(conversion.outputWidth) * channels;
    const std::size_t inputBytes = std::size_t(width) * height * bitsPerPixel(m_code) / 8;
    m_outputBytes = m_lineBytes * conversion.outputHeight;
    std::vector<std::uint8_t> input(inputBytes);
    for (std::uint8_t &byte : input)
        byte = static_cast<std::uint8_t>(std::rand() >> 8);
    m_inputs.assign(ringBytes / inputBytes + 1, input);
    m_outputs.assign(ringBytes / m_outputBytes + 1, std::vector<std::uint8_t>(m_outputBytes + 64, 1));
    if (conversion.isCorrected)
        m_converter.setCorrection({makeCorrection(findPixelFormat(m_code)->depth)});
    if (conversion.theirFormat == AV_PIX_FMT_NONE)
        return;
    m_context
        = sws_getContext(width, height, conversion.theirFormat, static_cast<int>(conversion.outputWidth),
            static_cast<int>(conversion.outputHeight), channels == 1 ? AV_PIX_FMT_GRAY8 : AV_PIX_FMT_RGB24,
            conversion.theirFlags, nullptr, nullptr, nullptr);
    // Luma and chroma have the full range.
    sws_setColorspaceDetails(m_context, sws_getCoefficients(SWS_CS_ITU601), 1,
        sws_getCoefficients(SWS_CS_DEFAULT), 1, 0, 1 << 16, 1 << 16);
}

void Measurement::convert(ImageConverter &converter, std::size_t index)
{
    const std::vector<std::uint8_t> &input = m_inputs[index % m_inputs.size()];
    std::uint8_t *const output = m_outputs[index % m_outputs.size()].data();
    const RawImage picture = {input.data(), input.size(), width, height, 0, m_code, false};
    const Region all = {0, 0, width, height};
    if (m_conversion.output == Output::Words) {
        converter.toWords(picture, all, reinterpret_cast<std::uint16_t *>(output), m_lineBytes / 2);
        return;
    }
    const Demosaicing demosaicing
        = m_conversion.output == Output::EdgeAwareScreen ? Demosaicing::EdgeAware : Demosaicing::Bilinear;
    converter.toScreen(picture, {all, m_conversion.outputWidth, m_conversion.outputHeight, demosaicing},
        output, m_lineBytes);
}

void Measurement::convertTheirs(std::size_t index)
{
    const std::vector<std::uint8_t> &input = m_inputs[index % m_inputs.size()];
    const bool isSemiplanar = m_conversion.theirFormat == AV_PIX_FMT_NV12;
    const auto lineBytes = static_cast<int>(isSemiplanar ? width : input.size() / height);
    const std::uint8_t *const planes[4] = {input.data(), input.data() + std::size_t(width) * height};
    const int strides[4] = {lineBytes, lineBytes};
    std::uint8_t *const outputs[4] = {m_outputs[index % m_outputs.size()].data()};
    const int outputStrides[4] = {static_cast<int>(m_lineBytes)};
    sws_scale(m_context, planes, strides, 0, height, outputs, outputStrides);
}

/// Returns gigabytes of output per second.
double Measurement::speed(const std::function<void(std::size_t)> &convert)
{
    const double start = threadTime();
    for (std::size_t i = 0; i < conversionsPerRound; ++i)
        convert(m_index++);
    const auto bytes = static_cast<double>(conversionsPerRound * m_outputBytes);
    return bytes / (threadTime() - start) / 1000;
}

void Measurement::measureRound()
{
    const double ours = speed([this](std::size_t index) { convert(index); });
    const double copy = speed([&](std::size_t index) {
        std::memcpy(m_outputs[index % m_outputs.size()].data(),
            m_outputs[(index + m_outputs.size() / 2) % m_outputs.size()].data(), m_outputBytes);
    });
    double theirs = 0;
    if (m_context)
        theirs = speed([this](std::size_t index) { convertTheirs(index); });
    if (m_conversion.isCorrected)
        theirs = speed([this](std::size_t index) { convert(m_uncorrected, index); });
    std::printf("%s\t%f\t%f\t%f\n", m_conversion.name, ours, copy, theirs);
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc < 2)
        return EXIT_FAILURE;
    av_log_set_level(AV_LOG_ERROR);
    const int rounds = std::atoi(argv[1]);
    for (const Conversion &conversion : conversions) {
        if (argc > 2 && !std::strstr(conversion.name, argv[2]))
            continue;
        Measurement measurement(conversion);
        for (int round = 0; round < rounds; ++round)
            measurement.measureRound();
    }
    return EXIT_SUCCESS;
}
