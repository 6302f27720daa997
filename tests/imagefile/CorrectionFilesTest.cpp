#include "sdk/imagefile/CorrectionFiles.h"

#include "ImageFileTest.h"
#include "sdk/imagefile/DefectMapFile.h"
#include "sdk/imagefile/FlatFieldFile.h"
#include "sdk/imagefile/ImageFileWriter.h"
#include "sdk/imagefile/Recorder.h"

#include <cmath>
#include <fstream>
#include <sys/stat.h>

namespace {

class CorrectionFilesTest : public ImageFileTest
{
protected:
    /// Returns the path of a file with this content.
    std::string file(const std::string &name, const std::string &content) const
    {
        std::ofstream(path(name), std::ios::binary) << content;
        return path(name);
    }
};

DefectMap someDefects()
{
    return {640, 480,
        {{7, 0, DefectKind::Hot, 12.5}, {639, 0, DefectKind::Dead, -30}, {0, 1, DefectKind::Stuck, 8},
            {5, 2, DefectKind::Blinking, 1e-3}, {9, 479, DefectKind::Deviating, 0}}};
}

FlatField someField()
{
    return {16, 8, 3, 2, 12, 64.5, {60, 61.25F, 62, 63, -1, 65}, {1, 1.25F, 0.75F, 2, 1, 0.5F}};
}

std::string textOf(const DefectMap &map)
{
    std::string text = std::to_string(map.width) + " x " + std::to_string(map.height);
    for (const DefectPixelEntry &pixel : map.pixels)
        text += "; " + std::to_string(pixel.x) + "," + std::to_string(pixel.y) + ","
            + defectKindText(pixel.kind) + "," + std::to_string(pixel.deviation);
    return text;
}

std::string textOf(const FlatField &field)
{
    std::string text = std::to_string(field.width) + " x " + std::to_string(field.height) + " at "
        + std::to_string(field.offsetX) + ", " + std::to_string(field.offsetY) + ", depth "
        + std::to_string(field.depth) + ", black " + std::to_string(field.blackLevel);
    for (const std::vector<float> *const values : {&field.offset, &field.gain})
        for (const float value : *values)
            text += " " + std::to_string(value);
    return text;
}

std::string stringOf(const ByteList &bytes)
{
    return {bytes.begin(), bytes.end()};
}

/// Returns a correction of pictures of 4 x 2 pixels: the pixel 1, 0 is defective, and 10 is subtracted.
CorrectionSource someCorrection()
{
    const DefectMap map{4, 2, {{1, 0, DefectKind::Hot, 9}}};
    const FlatField field{0, 0, 4, 2, 8, 0, std::vector<float>(8, 10), std::vector<float>(8, 1)};
    CorrectionSource source;
    source.correction = std::make_shared<Correction>(map, field);
    source.files = {{{"file", "map.json"}}};
    return source;
}

const ByteList rawPixels = {20, 255, 22, 23, 24, 25, 26, 27};
const ByteList correctedPixels = {10, 14, 12, 13, 14, 15, 16, 17}; // 20, 22, 24, 25 and 26 replace 255.

} // namespace

TEST_F(CorrectionFilesTest, defectMapIsReadAsItWasWritten)
{
    ASSERT_EQ(writeDefectMapJson(path("a.json"), someDefects(), someCamera(), {{"darkImages", 20}}), "");
    const DefectMapReading json = readDefectMap(path("a.json"));
    ASSERT_EQ(json.problem, "");
    EXPECT_EQ(textOf(*json.map), textOf(someDefects()));
    EXPECT_EQ(json.origin.camera["camera"]["serialNumber"], someCamera().serialNumber);
    EXPECT_EQ(json.origin.camera["settings"], someCamera().settings);
    const nlohmann::json document = jsonOf(path("a.json"));
    EXPECT_EQ(document["created"], json.origin.created);
    EXPECT_EQ(document["darkImages"], 20);
    EXPECT_EQ(document["pixels"][1], nlohmann::json({639, 0, "dead", -30}));

    ASSERT_EQ(writeDefectMapCsv(path("a.csv"), someDefects()), "");
    EXPECT_EQ(stringOf(contentOf(path("a.csv"))),
        "x,y,kind,deviation\n7,0,hot,12.5\n639,0,dead,-30\n0,1,stuck,8\n5,2,blinking,0.001\n"
        "9,479,deviating,0\n");
    DefectMap sizeless = someDefects();
    sizeless.width = sizeless.height = 0;
    EXPECT_EQ(textOf(*readDefectMap(path("a.csv")).map), textOf(sizeless));

    ASSERT_EQ(writeDefectMapJson(path("empty.json"), {64, 1, {}}, {}), "");
    EXPECT_EQ(textOf(*readDefectMap(path("empty.json")).map), "64 x 1");
    ASSERT_EQ(writeDefectMapCsv(path("line.csv"), {64, 1, {{3, 0, DefectKind::Dead, 1}}}), "");
    EXPECT_EQ(stringOf(contentOf(path("line.csv"))), "x,y,kind,deviation\n3,,dead,1\n");
    EXPECT_EQ(textOf(*readDefectMap(path("line.csv")).map), "0 x 1; 3,0,dead,1.000000");
}

TEST_F(CorrectionFilesTest, handWrittenMapsAreSorted)
{
    const std::string csv
        = file("a.csv", "x,y,kind,deviation\r\n9,5\r\n\r\n2,5,dead,3\r\n7,1,,\r\n2,5,hot,4");
    EXPECT_EQ(
        textOf(*readDefectMap(csv).map), "0 x 0; 7,1,hot,0.000000; 2,5,dead,3.000000; 9,5,hot,0.000000");
    const std::string json = file("a.json",
        R"({"format": "corvix-x-defect-map", "version": 1, "width": 9, "height": 9, "pixels": [[2, 5], [1, 5]]})");
    EXPECT_EQ(textOf(*readDefectMap(json).map), "9 x 9; 1,5,hot,0.000000; 2,5,hot,0.000000");
    EXPECT_EQ(textOf(*readDefectMap(file("b.csv", "x,y\n3,4\n")).map), "0 x 0; 3,4,hot,0.000000");
}

TEST_F(CorrectionFilesTest, damagedDefectMapsGiveASentence)
{
    const std::string begin = R"({"format": "corvix-x-defect-map", "version": 1, "width": 9, "height": 9)";
    const auto withPixels
        = [&begin](const std::string &pixels) { return begin + ", \"pixels\": " + pixels + "}"; };
    std::string many = "x,y,kind,deviation\n";
    for (int i = 0; i < 500001; ++i)
        many += "1,1\n";
    const std::pair<std::string, const char *> rows[] = {
        {"", "contains no defect map"},
        {"{", "contains no defect map"},
        {"[1, 2]", "contains no defect map"},
        {std::string(1000000, '['), "contains no defect map"},
        {R"({"format": 7, "version": 1})", "contains no defect map"},
        {R"({"format": "corvix-x-flat-field", "version": 1})", "contains no defect map"},
        {R"({"format": "corvix-x-defect-map", "version": 2, "pixels": []})", "contains no defect map"},
        {begin + "}", "list of pixels is missing"},
        {R"({"format": "corvix-x-defect-map", "version": 1, "width": -1, "height": 1e9, "pixels": []})",
            "width, height"},
        {withPixels("{}"), "list of pixels is missing"},
        {withPixels("[[1, 1], [2]]"), "pixel 2 of its list is not valid"},
        {withPixels("[[1, 4294967297]]"), "pixel 1 of its list is not valid"},
        {withPixels("[[-1, 1]]"), "pixel 1 of its list is not valid"},
        {withPixels(R"([[1, 1, "cold"]])"), "pixel 1 of its list is not valid"},
        {withPixels(R"([[1, 1, ["hot"]]])"), "pixel 1 of its list is not valid"},
        {withPixels("[[1, 9]]"), "pixel 1 of its list is outside"},
        {"x,y,kind,deviation\n1,2,hot,5\n1,two\n", "line 3 is not valid"},
        {"x,y,kind,deviation\n1,2,hot,nan\n", "line 2 is not valid"},
        {"x,y,kind,deviation\n1,2,hot,1e999\n", "line 2 is not valid"},
        {"x,y,kind,deviation\n99999999999,2\n", "line 2 is not valid"},
        {"x,y,kind,deviation\n1,2\n1,\n", "y is missing in some lines"},
        {many, "more than 500000"},
    };
    for (const auto &[content, expected] : rows) {
        const DefectMapReading reading = readDefectMap(file("map", content));
        EXPECT_FALSE(reading.map);
        EXPECT_NE(reading.problem.find(expected), std::string::npos) << reading.problem << "\n"
                                                                     << content.substr(0, 200);
    }
}

TEST_F(CorrectionFilesTest, flatFieldIsReadAsItWasWritten)
{
    ASSERT_EQ(writeFlatField(path("a.tif"), someField(), someCamera(), {{"brightImages", 32}}), "");
    const FlatFieldReading reading = readFlatField(path("a.tif"));
    ASSERT_EQ(reading.problem, "");
    EXPECT_EQ(textOf(*reading.field), textOf(someField()));
    EXPECT_EQ(reading.origin.camera["camera"]["model"], someCamera().model);
    EXPECT_FALSE(reading.origin.created.empty());

    const std::string info = outputOf("tiffinfo -D " + path("a.tif"));
    for (const char *const expected : {"Image Width: 3 Image Length: 2", "Bits/Sample: 32",
             "Sample Format: IEEE floating point", "\"brightImages\":32", "gain of each pixel"})
        EXPECT_NE(info.find(expected), std::string::npos) << info;
    EXPECT_EQ(info.find("Warning"), std::string::npos) << info;
    EXPECT_NE(outputOf("identify " + path("a.tif") + "[1]").find("3x2"), std::string::npos);
}

TEST_F(CorrectionFilesTest, damagedFlatFieldsGiveASentence)
{
    ASSERT_EQ(writeFlatField(path("good.tif"), someField(), {}), "");
    const std::string good = stringOf(contentOf(path("good.tif")));
    constexpr std::size_t secondText
        = 60; // The file ends with the text of the second page, which is not read.
    for (std::size_t length = 0; length + secondText < good.size(); ++length) {
        const FlatFieldReading reading = readFlatField(file("cut.tif", good.substr(0, length)));
        ASSERT_FALSE(reading.field) << length;
        ASSERT_FALSE(reading.problem.empty()) << length;
    }
    for (std::size_t i = 0; i < good.size(); ++i) {
        for (const int change : {1, 0x80, 0xFF}) {
            std::string bytes = good;
            bytes[i] = static_cast<char>(bytes[i] ^ change);
            const FlatFieldReading reading = readFlatField(file("flipped.tif", bytes));
            ASSERT_NE(reading.field.has_value(), !reading.problem.empty()) << i;
            if (reading.field) {
                ASSERT_EQ(
                    reading.field->gain.size(), std::size_t(reading.field->width) * reading.field->height);
            }
        }
    }
}

TEST_F(CorrectionFilesTest, unusableFlatFieldsGiveASentence)
{
    const auto replaced = [](std::string text, const std::string &part, const std::string &by) {
        const std::size_t position = text.find(part);
        EXPECT_NE(position, std::string::npos) << part;
        return text.replace(std::min(position, text.size()), part.size(), by);
    };
    ASSERT_EQ(writeFlatField(path("good.tif"), someField(), {}), "");
    const std::string good = stringOf(contentOf(path("good.tif")));
    FlatField infinite = someField();
    infinite.gain[3] = std::numeric_limits<float>::infinity();
    ASSERT_EQ(writeFlatField(path("infinite.tif"), infinite, {}), "");
    ImageFileWriter writer;
    ASSERT_EQ(
        writer.write(MemoryImage(mono8, 3, 2, ByteList(6)), path("other.tif"), ImageFileFormat::Tiff, {}),
        "");
    const std::pair<std::string, const char *> rows[] = {
        {good, ""},
        {stringOf(contentOf(path("other.tif"))), "contains no flat field"},
        {stringOf(contentOf(path("infinite.tif"))), "32-bit floating-point numbers"},
        {replaced(good, "\"width\":3", "\"width\":4"), "32-bit floating-point numbers"},
        {replaced(good, R"("width":3,"height":2,"depth":12)", R"("width":99,"height":9,"depth":8)"),
            "incomplete or compressed"},
        {replaced(good, "\"depth\":12", "\"depth\":17"), "description"},
        {replaced(good, "\"blackLevel\":64", "\"blackLevel\":-4"), "description"},
        {replaced(good, "corvix-x-flat", "corvix-y-flat"), "contains no flat field"},
    };
    for (const auto &[content, expected] : rows) {
        const FlatFieldReading reading = readFlatField(file("field.tif", content));
        EXPECT_EQ(reading.problem.empty(), *expected == '\0') << reading.problem;
        EXPECT_NE(reading.problem.find(expected), std::string::npos) << reading.problem << expected;
    }
}

TEST_F(CorrectionFilesTest, contentsDecideWhatAFileIs)
{
    ASSERT_EQ(writeFlatField(path("a"), someField(), someCamera()), "");
    ASSERT_EQ(writeDefectMapJson(path("b.tif"), someDefects(), someCamera()), "");
    ASSERT_EQ(writeDefectMapCsv(path("c"), someDefects()), "");
    const CorrectionSource both = readCorrection({path("a"), path("b.tif")});
    ASSERT_EQ(both.problem, "");
    EXPECT_EQ(textOf(*both.correction->flatField()), textOf(someField()));
    EXPECT_EQ(textOf(*both.correction->defects()), textOf(someDefects()));
    EXPECT_EQ(both.files[0]["file"], path("a"));
    EXPECT_EQ(both.files[0]["format"], "corvix-x-flat-field");
    EXPECT_EQ(both.files[1]["camera"]["serialNumber"], someCamera().serialNumber);
    EXPECT_EQ(readCorrection({}).correction, nullptr);

    ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
    const std::pair<std::vector<std::string>, const char *> rows[] = {
        {{path("b.tif"), path("c")}, "same kind"},
        {{path("a"), path("missing")}, "No such file"},
        {{path("")}, "it is no file"},
        {{path("pipe")}, "it is no file"},
        {{file("picture.png", "\x89PNG\r\n\x1a\n")}, "contains no defect map"},
    };
    for (const auto &[paths, expected] : rows) {
        const CorrectionSource source = readCorrection(paths);
        EXPECT_EQ(source.correction, nullptr);
        EXPECT_NE(source.problem.find(expected), std::string::npos) << source.problem;
    }
}

TEST_F(CorrectionFilesTest, filesOfAnotherCameraOrOrientationAreRefused)
{
    CameraRecord camera = someCamera();
    camera.settings = {{"ReverseX", false}, {"BinningHorizontal", 1}, {"Gain", 3}};
    ASSERT_EQ(writeDefectMapJson(path("a.json"), someDefects(), camera), "");
    const CorrectionSource source = readCorrection({path("a.json")});
    struct Row
    {
        nlohmann::ordered_json settings;
        const char *serialNumber;
        const char *expected;
    };
    const Row rows[] = {
        {camera.settings, camera.serialNumber.c_str(), ""},
        {{{"Gain", 4}}, "", ""},
        {camera.settings, "other", "this camera is other"},
        {{{"ReverseX", true}}, "", "ReverseX = false, but the camera has ReverseX = true"},
        {{{"BinningHorizontal", 2}}, "", "set BinningHorizontal to 1"},
    };
    for (const Row &row : rows) {
        CameraRecord present;
        present.settings = row.settings;
        present.serialNumber = row.serialNumber;
        const std::string problem = cameraProblem(source, present);
        EXPECT_EQ(problem.empty(), *row.expected == '\0') << problem;
        EXPECT_NE(problem.find(row.expected), std::string::npos) << problem;
    }
    // A file of another program can contain anything.
    const CorrectionSource odd = readCorrection({file("odd.json",
        R"({"format": "corvix-x-defect-map", "version": 1, "width": 9, "height": 9, "pixels": [], "camera": 3,
            "settings": [[[]]]})")});
    ASSERT_EQ(odd.problem, "");
    EXPECT_EQ(cameraProblem(odd, camera), "");
}

TEST_F(CorrectionFilesTest, imageFilesAreCorrectedAndNameTheFiles)
{
    const MemoryImage image(mono8, 4, 2, rawPixels);
    ImageFileWriter writer;
    writer.setCorrection(someCorrection());
    ASSERT_EQ(writer.write(image, path("a.tif"), ImageFileFormat::Tiff, someCamera()), "");
    ASSERT_EQ(writer.write(image, path("a.png"), ImageFileFormat::Png8, someCamera()), "");
    ASSERT_EQ(writer.write(image, path("a.raw"), ImageFileFormat::Raw, someCamera()), "");
    std::vector<std::uint16_t> expected;
    for (const std::uint8_t value : correctedPixels)
        expected.push_back(static_cast<std::uint16_t>(value * 257));
    EXPECT_EQ(readSamples(path("a.tif"), "gray"), expected);
    EXPECT_EQ(readSamples(path("a.png"), "gray"), expected);
    EXPECT_EQ(contentOf(path("a.raw")), rawPixels);
    EXPECT_EQ(jsonOf(path("a.png.json"))["corrections"][0]["file"], "map.json");
    EXPECT_FALSE(jsonOf(path("a.raw.json")).contains("corrections"));

    MemoryImage moved = image;
    moved.m_info.offsetX = 1;
    const std::string problem = writer.write(moved, path("b.png"), ImageFileFormat::Png16, {});
    EXPECT_NE(problem.find("covers 4 x 2 pixels"), std::string::npos) << problem;
    EXPECT_FALSE(std::filesystem::exists(path("b.png")));
    writer.setCorrection({});
    EXPECT_EQ(writer.write(moved, path("b.png"), ImageFileFormat::Png16, {}), "");
}

TEST_F(CorrectionFilesTest, recordingsAreCorrectedAndNameTheFiles)
{
    for (const char *const name : {"a.tif", "a.raw"}) {
        Recorder recorder;
        recorder.setCorrection(someCorrection());
        ASSERT_EQ(recorder.open(path(name), {}), "");
        recorder.add(std::make_shared<MemoryImage>(mono8, 4, 2, rawPixels));
        ASSERT_EQ(recorder.finish({}), "");
    }
    EXPECT_EQ(readSamples(path("a.tif"), "gray")[1], 14 * 257);
    EXPECT_EQ(jsonOf(path("a.tif.json"))["corrections"][0]["file"], "map.json");
    EXPECT_EQ(contentOf(path("a.raw")), rawPixels);
    EXPECT_FALSE(jsonOf(path("a.raw.json")).contains("corrections"));

    Recorder refused;
    refused.setCorrection(someCorrection());
    ASSERT_EQ(refused.open(path("b.tif"), {}), "");
    refused.add(std::make_shared<MemoryImage>(rgb8, 1, 1, ByteList(3)));
    const std::string problem = refused.finish({});
    EXPECT_NE(problem.find("RGB8 does not have"), std::string::npos) << problem;
}
