#include "sdk/image/Correction.h"

#include "sdk/image/ImageConverter.h"
#include "sdk/image/PixelLayout.h"
#include "tests/image/GuardedBytes.h"
#include "tests/image/KernelChoice.h"
#include "tests/image/ReferenceCorrection.h"
#include "tests/image/ReferencePicture.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <random>
#include <set>

namespace {

constexpr std::uint32_t mono8Code = 0x01080001;
constexpr std::uint32_t rgb8Code = 0x02180014;

/// What a sensor is and which part of it the picture shows.
struct CorrectionCase
{
    const char *name;
    Region place; ///< The picture on the sensor.
    bool isLineScan;
    bool hasDefects;
    bool hasField;
};

const std::vector<CorrectionCase> correctionCases = {
    {"both", {0, 0, 70, 23}, false, true, true},
    {"both, region", {5, 3, 41, 14}, false, true, true},
    {"defects only", {2, 0, 33, 17}, false, true, false},
    {"field only", {0, 1, 67, 9}, false, false, true},
    {"line scan", {3, 0, 50, 12}, true, true, true},
};

using Random = std::minstd_rand;

double share(Random &random)
{
    return static_cast<double>(random() - Random::min()) / static_cast<double>(Random::max());
}

/// Returns single pixels, a wide column, a cluster and pixels in the corners, in any order.
DefectMap randomDefects(const CorrectionCase &tested, Random &random)
{
    const std::uint32_t width = tested.place.x + tested.place.width + 4;
    const std::uint32_t height = tested.isLineScan ? 1 : tested.place.y + tested.place.height + 3;
    std::set<std::pair<std::uint32_t, std::uint32_t>> places{{0, 0}, {height - 1, width - 1}};
    for (unsigned i = 0; i < width * height / 30; ++i)
        places.insert({random() % height, random() % width});
    for (std::uint32_t y = 0; y < height; ++y)
        for (std::uint32_t x = 12; x < 16; ++x)
            places.insert({y, x});
    for (std::uint32_t y = height / 2; y < height / 2 + height / 4; ++y)
        for (std::uint32_t x = 20; x < 26; ++x)
            places.insert({y, x});
    DefectMap map{width, height, {}};
    for (const auto &[y, x] : places)
        map.pixels.push_back({x, y, DefectKind::Hot, 9});
    return map;
}

FlatField randomField(const CorrectionCase &tested, Random &random)
{
    FlatField field;
    field.offsetX = tested.place.x - std::min(tested.place.x, 2U);
    field.offsetY = tested.place.y - std::min(tested.place.y, 1U);
    field.width = tested.place.x + tested.place.width + 3 - field.offsetX;
    field.height = tested.isLineScan ? 1 : tested.place.y + tested.place.height + 1 - field.offsetY;
    field.depth = 8 + static_cast<unsigned>(random() % 9);
    const double range = std::ldexp(1, static_cast<int>(field.depth));
    field.blackLevel = range * 0.02;
    for (std::size_t i = 0; i < std::size_t(field.width) * field.height; ++i) {
        field.offset.push_back(static_cast<float>(range * 0.1 * (share(random) - 0.2)));
        field.gain.push_back(static_cast<float>(0.6 + 1.3 * share(random)));
    }
    return field;
}

std::shared_ptr<const Correction> randomCorrection(const CorrectionCase &tested, Random &random)
{
    std::optional<DefectMap> defects;
    std::optional<FlatField> field;
    if (tested.hasDefects)
        defects = randomDefects(tested, random);
    if (tested.hasField)
        field = randomField(tested, random);
    return std::make_shared<Correction>(defects, field);
}

bool isCorrected(const ReferenceFormat &format)
{
    return (format.kind == PixelKind::Mono || format.kind == PixelKind::Bayer) && format.depth >= 8
        && format.depth <= 16 && format.storage.front() != 's';
}

/// Returns the format with the same colours and depth whose values are whole bytes or words.
const ReferenceFormat &unpackedFormat(const ReferenceFormat &format)
{
    for (const ReferenceFormat &other : referenceFormats())
        if (other.kind == format.kind && other.depth == format.depth && other.layout == format.layout
            && findPixelLayout(other.code).redX == findPixelLayout(format.code).redX
            && findPixelLayout(other.code).redY == findPixelLayout(format.code).redY
            && other.storage == (format.depth == 8 ? "b" : "w"))
            return other;
    return format;
}

/// A picture of random bytes behind which no memory can be read.
class CorrectedPicture
{
public:
    CorrectedPicture() : m_bytes(20000) { }

    void make(const ReferenceFormat &format, const Region &place, Random &random)
    {
        view = {nullptr, 0, place.width, place.height, static_cast<std::uint32_t>(random() % 3), format.code,
            random() % 2 != 0};
        view.size = random() % 2 != 0 ? ReferencePicture::paddedSize(view, format)
                                      : ReferencePicture::tightSize(view);
        view.size -= random() % 3 == 0 ? random() % view.size : 0; // Incomplete.
        std::uint8_t *const data = m_bytes.last(view.size);
        for (std::size_t i = 0; i < view.size; ++i)
            data[i] = static_cast<std::uint8_t>(random() >> 8U);
        view.data = data;
    }

    RawImage view;

private:
    GuardedBytes m_bytes;
};

std::vector<std::uint16_t> wordsOf(ImageConverter &converter, const RawImage &picture, const Region &region)
{
    std::vector<std::uint16_t> words(std::size_t(region.width) * region.height);
    converter.toWords(picture, region, words.data(), region.width);
    return words;
}

std::vector<std::uint16_t> colorsOf(
    ImageConverter &converter, const RawImage &picture, const Region &region, Demosaicing demosaicing)
{
    std::vector<std::uint16_t> words(3 * std::size_t(region.width) * region.height);
    converter.toColorWords(picture, region, demosaicing, words.data(), 3 * std::size_t(region.width));
    return words;
}

std::vector<std::uint8_t> screenOf(ImageConverter &converter, const RawImage &picture, const Region &region,
    std::uint32_t width, std::uint32_t height)
{
    const std::size_t stride = std::size_t(width) * ImageConverter::screenChannels(picture.pixelFormat);
    std::vector<std::uint8_t> bytes(stride * height);
    converter.toScreen(picture, {region, width, height, Demosaicing::Bilinear}, bytes.data(), stride);
    return bytes;
}

std::vector<std::uint16_t> cut(
    const std::vector<std::uint16_t> &words, std::uint32_t width, const Region &region)
{
    std::vector<std::uint16_t> result;
    for (std::uint32_t y = region.y; y < region.y + region.height; ++y) {
        const auto begin = words.begin() + static_cast<std::ptrdiff_t>(std::size_t(y) * width + region.x);
        result.insert(result.end(), begin, begin + region.width);
    }
    return result;
}

/// Returns how far the words are from the reference at most, in units of their highest value's 2^-13, but at
/// least one.
double largestError(const std::vector<std::uint16_t> &words, const ReferenceCorrection &reference,
    std::uint32_t width, int depth)
{
    double error = 0;
    for (std::size_t i = 0; i < words.size(); ++i)
        error = std::max(error,
            std::abs(words[i] - reference.value(static_cast<int>(i % width), static_cast<int>(i / width))));
    return error - std::ldexp(1, depth - 13);
}

/// Calls `check` for random pictures of all formats that can be corrected.
template <typename Check>
void forCorrectedPictures(const Check &check)
{
    Random random(7); // The same pictures in every run.
    CorrectedPicture picture;
    for (const CorrectionCase &tested : correctionCases) {
        for (const ReferenceFormat &format : referenceFormats()) {
            if (!isCorrected(format))
                continue;
            const std::shared_ptr<const Correction> correction = randomCorrection(tested, random);
            picture.make(format, tested.place, random);
            SCOPED_TRACE(std::string(tested.name) + ", " + format.name);
            check(format, tested.place, correction, picture.view);
            if (testing::Test::HasFatalFailure())
                return;
        }
    }
}

} // namespace

TEST(CorrectionTest, valuesAreThoseOfTheReference)
{
    forCorrectedPictures([](const ReferenceFormat &format, const Region &place,
                             const std::shared_ptr<const Correction> &correction, const RawImage &picture) {
        const ReferencePicture raw(picture, format);
        const ReferenceCorrection reference(*correction, place, format.depth,
            format.kind == PixelKind::Bayer ? 2 : 1, [&raw](int x, int y) { return raw.word(x, y, 0); });
        ImageConverter converter;
        converter.setCorrection({correction, place.x, place.y});
        const auto words = wordsOf(converter, picture, {0, 0, place.width, place.height});
        ASSERT_LE(largestError(words, reference, place.width, format.depth), 0.51);
    });
}

TEST(CorrectionTest, allKernelsAndRegionsGiveTheSamePixels)
{
    forCorrectedPictures([](const ReferenceFormat &, const Region &place,
                             const std::shared_ptr<const Correction> &correction, const RawImage &picture) {
        const Region whole{0, 0, place.width, place.height};
        const Region part{place.width / 3, place.height / 4, place.width / 2, place.height / 2};
        ImageConverter plain(plainKernels());
        plain.setCorrection({correction, place.x, place.y});
        const auto words = wordsOf(plain, picture, whole);
        const auto screen = screenOf(plain, picture, part, 15, 4);
        for (const PixelKernels *kernels : runnableKernels()) {
            ImageConverter converter(*kernels);
            converter.setCorrection({correction, place.x, place.y});
            ASSERT_EQ(wordsOf(converter, picture, whole), words) << kernels->name;
            ASSERT_EQ(wordsOf(converter, picture, part), cut(words, place.width, part)) << kernels->name;
            ASSERT_EQ(screenOf(converter, picture, part, 15, 4), screen) << kernels->name;
        }
    });
}

TEST(CorrectionTest, coloursAreComputedFromCorrectedValues)
{
    forCorrectedPictures([](const ReferenceFormat &format, const Region &place,
                             const std::shared_ptr<const Correction> &correction, const RawImage &picture) {
        ImageConverter converter;
        converter.setCorrection({correction, place.x, place.y});
        const auto words = wordsOf(converter, picture, {0, 0, place.width, place.height});
        const ReferenceFormat &unpacked = unpackedFormat(format);
        const std::vector<std::uint8_t> bytes(words.begin(), words.end());
        RawImage corrected{bytes.data(), bytes.size(), place.width, place.height, 0, unpacked.code, false};
        if (format.depth > 8) {
            corrected.data = reinterpret_cast<const std::uint8_t *>(words.data());
            corrected.size = words.size() * sizeof(std::uint16_t);
        }
        const Region part{1, 2, place.width - 4, place.height - 3};
        ImageConverter plain;
        for (const Demosaicing demosaicing : {Demosaicing::Bilinear, Demosaicing::EdgeAware})
            ASSERT_EQ(colorsOf(converter, picture, part, demosaicing),
                colorsOf(plain, corrected, part, demosaicing));
        ASSERT_EQ(screenOf(converter, picture, part, part.width, part.height),
            screenOf(plain, corrected, part, part.width, part.height));
        ASSERT_EQ(screenOf(converter, picture, part, 20, 3), screenOf(plain, corrected, part, 20, 3));
    });
}

TEST(CorrectionTest, neutralFieldChangesNothing)
{
    constexpr std::uint32_t mono16Code = 0x01100007;
    std::vector<std::uint16_t> values(65536);
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = static_cast<std::uint16_t>(i);
    const RawImage picture{
        reinterpret_cast<const std::uint8_t *>(values.data()), 131072, 256, 256, 0, mono16Code, false};
    FlatField field{0, 0, 256, 256, 16, 0, std::vector<float>(65536, 0), std::vector<float>(65536, 1)};
    ImageConverter converter;
    converter.setCorrection({std::make_shared<Correction>(std::nullopt, field)});
    EXPECT_EQ(wordsOf(converter, picture, {0, 0, 256, 256}), values);
    converter.setCorrection({});
    EXPECT_EQ(wordsOf(converter, picture, {0, 0, 256, 256}), values);
}

TEST(CorrectionTest, extremeFieldsStayInTheRange)
{
    const float infinite = std::numeric_limits<float>::infinity();
    const std::vector<float> numbers = {-infinite, infinite, std::nanf(""), -70000, 70000, 0, 1, 1000};
    FlatField field{0, 0, 64, 1, 16, 65535, {}, {}};
    for (const float offset : numbers) {
        for (const float gain : numbers) {
            field.offset.push_back(offset);
            field.gain.push_back(gain);
        }
    }
    const std::vector<std::uint8_t> bytes(128, 0xFF);
    const auto correction = std::make_shared<Correction>(std::nullopt, field);
    for (const std::uint32_t code : {0x01100007U, 0x01100005U, mono8Code}) { // Mono16, Mono12, Mono8
        const RawImage picture{bytes.data(), bytes.size(), 64, 1, 0, code, false};
        const unsigned highest = (1U << findPixelFormat(code)->depth) - 1;
        for (const PixelKernels *kernels : runnableKernels()) {
            ImageConverter converter(*kernels);
            converter.setCorrection({correction});
            const auto words = wordsOf(converter, picture, {0, 0, 64, 1});
            EXPECT_LE(*std::max_element(words.begin(), words.end()), highest) << kernels->name;
            // Offset 0 and gain 1 with the highest black level.
            EXPECT_EQ(words[5 * 8 + 6], highest) << kernels->name;
            // The highest offset is one more than the value; with the largest gain that is allowed, 16.
            EXPECT_NEAR(words[4 * 8 + 7], highest - 15.5, 0.6 + highest / 4096.0) << kernels->name;
        }
    }
}

TEST(CorrectionTest, saysWhyAPictureCannotBeCorrected)
{
    const DefectMap map{640, 480, {}};
    const FlatField field{16, 8, 64, 32, 8, 0, std::vector<float>(2048), std::vector<float>(2048, 1)};
    const Correction both(map, field);
    const Correction lines(DefectMap{64, 1, {}}, std::nullopt);
    const Correction sizeless(DefectMap{0, 0, {}}, std::nullopt);
    struct Row
    {
        const Correction &correction;
        std::uint32_t format;
        Region place;
        const char *expected; ///< Part of the text; empty: the picture can be corrected.
    };
    const Row rows[] = {
        {both, mono8Code, {16, 8, 64, 32}, ""},
        {both, mono8Code, {20, 8, 60, 32}, ""},
        {both, mono8Code, {15, 8, 64, 32}, "flat field covers 64 x 32 pixels at 16, 8"},
        {both, mono8Code, {16, 9, 64, 32}, "flat field covers"},
        {both, mono8Code, {600, 8, 64, 32}, "covers 640 x 480 pixels"},
        {both, rgb8Code, {16, 8, 64, 32}, "RGB8 does not have"},
        {both, 0x01080002, {16, 8, 64, 32}, "Mono8s does not have"},
        {both, 0x12345678, {16, 8, 64, 32}, "this pixel format does not have"},
        {lines, mono8Code, {0, 0, 64, 5000}, ""},
        {lines, mono8Code, {1, 0, 64, 1}, "covers 64 x 1"},
        {sizeless, mono8Code, {9, 9, 9000, 9000}, ""},
    };
    for (const Row &row : rows) {
        const std::string problem
            = row.correction.problem(row.format, row.place.x, row.place.y, row.place.width, row.place.height);
        EXPECT_NE(problem.find(row.expected), std::string::npos) << problem;
        EXPECT_EQ(problem.empty(), *row.expected == '\0') << problem;
    }
}

TEST(CorrectionTest, pictureThatDoesNotFitIsConvertedWithoutCorrection)
{
    const std::vector<std::uint8_t> bytes = {1, 200, 3, 4, 5, 6};
    const DefectMap map{3, 2, {{1, 0, DefectKind::Hot, 9}}};
    ImageConverter converter;
    converter.setCorrection({std::make_shared<Correction>(map, std::nullopt), 1, 0});
    const RawImage picture{bytes.data(), bytes.size(), 3, 2, 0, mono8Code, false};
    EXPECT_EQ(wordsOf(converter, picture, {0, 0, 3, 2})[1], 200);
    converter.setCorrection({std::make_shared<Correction>(map, std::nullopt), 0, 0});
    EXPECT_EQ(wordsOf(converter, picture, {0, 0, 3, 2})[1], 4); // Median of 1, 3, 4, 5, 6.
}
