#include "sdk/features/FeatureFile.h"
#include "sdk/features/FeatureFileStorage.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

const std::string firstLine = "# {05D8C294-F295-4dfb-9D01-096BD04049F4}";

/// Returns the settings and problems in a form that a table can contain.
std::string describe(const std::string &text)
{
    const auto parsed = parseFeatureFile(text);
    if (const auto *const refusal = std::get_if<std::string>(&parsed))
        return "refused: " + *refusal;
    std::string description;
    const auto &file = std::get<FeatureFile>(parsed);
    for (const FeatureSetting &setting : file.settings) {
        description += std::to_string(setting.line) + ' ';
        for (const SelectorSetting &selector : setting.selectors)
            description += '[' + selector.name + '=' + selector.value + ']';
        description += setting.name + '=' + setting.value + ';';
    }
    for (const FeatureFileProblem &problem : file.problems)
        description += '!' + std::to_string(problem.line) + ' ' + problem.text;
    return description;
}

/// Writes a file that is larger than the system allows, as on a full disk.
std::string writeBeyondLimit(const std::string &path)
{
    rlimit previous{};
    getrlimit(RLIMIT_FSIZE, &previous);
    const rlimit small{100, previous.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    const std::string problem = writeFeatureFile(path, std::string(1000, 'x'));
    setrlimit(RLIMIT_FSIZE, &previous);
    std::signal(SIGXFSZ, handler);
    return problem;
}

struct ParserRow
{
    const char *name;
    std::string text; // After the first line.
    std::string expected;
};

class FeatureFileTest : public testing::TestWithParam<ParserRow>
{ };

const ParserRow parserRows[] = {
    {"Empty", "", ""},
    {"OneLine", "\nWidth\t640", "2 Width=640;"},
    {"Comments", "\n# Device = x\n  # y\n\nWidth\t640\n", "5 Width=640;"},
    {"CarriageReturns", "\r\nWidth\t640\r\nHeight\t480\r\n", "2 Width=640;3 Height=480;"},
    {"Blanks", "\n Width   640\nHeight \t480\n", "2 Width=640;3 Height=480;"},
    {"ValueWithBlanks", "\nDeviceUserID\t left camera", "2 DeviceUserID= left camera;"},
    {"OrderAndRepeats", "\nS\tB\nM\t1\nS\tA\nM\t2\nM\t2", "2 S=B;3 M=1;4 S=A;5 M=2;6 M=2;"},
    {"Braces", "\nGain\t{GainSelector=All}\t1.5", "2 [GainSelector=All]Gain=1.5;"},
    {"SeveralSelectors", "\nL\t{A=1\tB=Two}\t3\nL {A=1 B=2} 4", "2 [A=1][B=Two]L=3;3 [A=1][B=2]L=4;"},
    {"TextInBraces", "\nDeviceUserID\t{left}", "2 DeviceUserID={left};"},
    {"SelectorsWithoutValue", "\nGain\t{GainSelector=All}\nWidth\t1", "3 Width=1;!2 \"Gain\" has no value."},
    {"OpenBrace", "\nGain\t{A=1\t2",
        "!2 The selectors of \"Gain\" cannot be read: they have the form {Selector=Value}."},
    {"SelectorWithoutName", "\nGain\t{=All}\t1",
        "!2 The selectors of \"Gain\" cannot be read: they have the form {Selector=Value}."},
    {"NoValue", "\nWidth\nHeight\t \nOffsetX\t1",
        "4 OffsetX=1;!2 \"Width\" has no value.!3 \"Height\" has no value."},
    {"BadName", "\n<xml>\t1", "!2 \"<xml>\" is not the name of a feature."},
    {"ControlCharacter", "\nWidth\t1\x1B[2J",
        "!2 The value of \"Width\" contains control characters or bytes that are not UTF-8."},
    {"OtherEncoding", "\nDeviceUserID\tr\xFCstig",
        "!2 The value of \"DeviceUserID\" contains control characters or bytes that are not UTF-8."},
};

} // namespace

TEST_P(FeatureFileTest, everyLineIsASettingOrAProblem)
{
    EXPECT_EQ(describe(firstLine + GetParam().text), GetParam().expected);
    EXPECT_EQ(describe("\xEF\xBB\xBF" + firstLine + ' ' + GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Lines, FeatureFileTest, testing::ValuesIn(parserRows),
    [](const auto &information) { return information.param.name; });

TEST(FeatureFileRefusalTest, otherFilesAreRefusedWithOneSentence)
{
    EXPECT_EQ(describe(""), "refused: The file is empty.");
    EXPECT_EQ(describe("Width\t640"),
        "refused: The file is not a settings file: its first line is not \"" + firstLine + "\".");
    EXPECT_NE(
        describe("# {4709CB3C-7322-4460-84C3-DA11DDA09939}\nx").find("several devices"), std::string::npos);
    EXPECT_NE(
        describe(firstLine + std::string(100'000, '\n') + std::string(17U << 20U, 'x')).find("too large"),
        std::string::npos);
    std::string rubbish = firstLine;
    for (int line = 0; line < 1'000'000; ++line)
        rubbish += "\n<a/>";
    EXPECT_NE(describe(rubbish).find("more than 1000 lines"), std::string::npos);
}

TEST(FeatureFileFormatTest, selectorsBecomeLinesOfTheirOwn)
{
    const std::vector<FeatureSetting> settings{{{}, "Width", "640", 0},
        {{{"LUTSelector", "Red"}, {"LUTIndex", "0"}}, "LUTValue", "1", 0},
        {{{"LUTSelector", "Red"}, {"LUTIndex", "1"}}, "LUTValue", "2", 0},
        {{{"LUTSelector", "Green"}, {"LUTIndex", "1"}}, "LUTValue", "3", 0}};
    EXPECT_EQ(formatFeatureFile(settings, "A\nB"),
        firstLine
            + "\n# Device = A\\nB\nWidth\t640\nLUTSelector\tRed\nLUTIndex\t0\nLUTValue\t1\nLUTIndex\t1\n"
              "LUTValue\t2\nLUTSelector\tGreen\nLUTIndex\t1\nLUTValue\t3\n");
}

TEST(FeatureFileStorageTest, fileIsReplacedAsAWholeOrNotAtAll)
{
    char directory[] = "/tmp/features-XXXXXX";
    ASSERT_NE(mkdtemp(directory), nullptr);
    const std::string path = std::string(directory) + "/a.txt";
    ASSERT_EQ(writeFeatureFile(path, "old"), "");
    ASSERT_EQ(writeFeatureFile(path, firstLine + "\nWidth\t1\n"), "");
    const auto file = readFeatureFile(path);
    ASSERT_TRUE(std::holds_alternative<FeatureFile>(file));
    EXPECT_EQ(std::get<FeatureFile>(file).settings.size(), 1U);
    EXPECT_NE(writeFeatureFile(directory, "x"), "");
    EXPECT_NE(writeBeyondLimit(path), "");
    EXPECT_TRUE(std::holds_alternative<FeatureFile>(readFeatureFile(path)));
    EXPECT_NE(writeFeatureFile(path + "/b", "x").find("a.txt/b"), std::string::npos);
    EXPECT_NE(std::get<std::string>(readFeatureFile(path + "x")).find("a.txtx"), std::string::npos);
    EXPECT_NE(std::get<std::string>(readFeatureFile("/dev/zero")).find("not a file"), std::string::npos);
    EXPECT_EQ(unlink(path.c_str()), 0);
    EXPECT_EQ(rmdir(directory), 0); // No temporary file is left.
}
