#include "sdk/cvxcpp/CtiSearchPath.h"
#include "tests/sdk/support/TemporaryDirectory.h"
#include "tests/sdk/support/Waiting.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace fs = std::filesystem;

class CtiSearchPathTest : public testing::Test
{
protected:
    CtiSearchPathTest()
    {
        fs::create_directories(root.path() / "bin/near");
        fs::create_directories(root.path() / "cti");
        fs::create_directories(root.path() / "far");
        fs::create_directories(root.path() / "both");
        fs::create_directories(root.path() / "bin/both");
    }

    /// The directories, with the install root written as "@".
    std::vector<std::string> directories(const std::string &xml)
    {
        writeFile(file(), xml);
        return directories();
    }
    std::vector<std::string> directories()
    {
        auto found = configuredCtiDirectories(root.path().string(), file());
        for (std::string &directory : found) {
            if (directory.rfind(root.path().string(), 0) == 0)
                directory.replace(0, root.path().string().size(), "@");
        }
        return found;
    }
    std::string file() const { return (root.path() / "bin/CvxC.xml").string(); }

    TemporaryDirectory root;
};

using Paths = std::vector<std::string>;

TEST_F(CtiSearchPathTest, WithoutAFileItIsCti)
{
    EXPECT_EQ(directories(), Paths{"@/cti"});
}

TEST_F(CtiSearchPathTest, DoesNotWaitForAPipe)
{
    ASSERT_EQ(mkfifo(file().c_str(), 0600), 0);
    EXPECT_LT(timeOf([&] { EXPECT_EQ(directories(), Paths{"@/cti"}); }), std::chrono::seconds(5));
}

struct Document
{
    const char *name;
    std::string xml;
    Paths directories;
};

class CtiDocumentTest : public CtiSearchPathTest, public testing::WithParamInterface<Document>
{ };

TEST_P(CtiDocumentTest, GivesItsDirectories)
{
    EXPECT_EQ(directories(GetParam().xml), GetParam().directories);
}

namespace {

Document within(const char *name, const std::string &paths, const Paths &directories)
{
    return {name, "<CvxC><CtiPaths>" + paths + "</CtiPaths></CvxC>", directories};
}

const Paths Fallback{"@/cti"};

/// Little-endian, with its mark.
std::string utf16(const std::string &ascii)
{
    std::string text = "\xFF\xFE";
    for (const char character : ascii)
        text += {character, '\0'};
    return text;
}

/// A list of "/a", with this after the end of the document.
std::string followedBy(const std::string &bytes)
{
    return "<CtiPaths><Path>/a</Path></CtiPaths>" + bytes;
}

/// A short document whose second path is two million characters long.
std::string entityBomb()
{
    std::string entities = "<!ENTITY e0 '0123456789abcdef'>";
    for (int level = 1; level <= 4; ++level) {
        entities += "<!ENTITY e" + std::to_string(level) + " '";
        for (int i = 0; i < (level < 4 ? 16 : 32); ++i)
            entities += "&e" + std::to_string(level - 1) + ";";
        entities += "'>";
    }
    return "<!DOCTYPE c [" + entities + "]><CtiPaths><Path>/a</Path><Path>/&e4;</Path></CtiPaths>";
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Paths, CtiDocumentTest,
    testing::Values(within("InOrder", "<Path>/b</Path><Path>/a</Path>", {"/b", "/a"}),
        within("EachOnce", "<Path>/b</Path><Path>/a</Path><Path>/b</Path>", {"/b", "/a"}),
        within("BelowTheInstallRoot", "<Path>far</Path>", {"@/far"}),
        within("BelowTheFile", "<Path>near</Path>", {"@/bin/near"}),
        within("TheInstallRootFirst", "<Path>both</Path>", {"@/both"}),
        within("RelativeOnesMustExist", "<Path>nowhere</Path><Path>/x</Path>", {"/x"}),
        within("AbsoluteOnesNeedNot", "<Path>/nowhere</Path>", {"/nowhere"}),
        within("Trimmed", "<Path>\n\t /a b \xC2\xA0\n</Path>", {"/a b"}),
        within("EmptyOnesAreSkipped", "<Path/><Path> </Path><Path></Path><Path>/a</Path>", {"/a"}),
        within("Nothing", "", Fallback), within("Entities", "<Path>/a&amp;b&#65;</Path>", {"/a&bA"}),
        within("Sections", "<Path>/<![CDATA[<a>]]><!-- no -->/b</Path>", {"/<a>/b"}),
        within("SpaceBetweenSections", "<Path>/a<!-- --> <!-- -->b</Path>", {"/a b"}),
        within("OtherElementsInBetween", "<Other><Path>/in</Path></Other><Note>/n</Note>", {"/in"}),
        within("EndAtAChildElement", "<Path>/a</Path><Path>/b<x/></Path><Path>/c</Path>", {"/a"})),
    [](const auto &test) { return test.param.name; });

INSTANTIATE_TEST_SUITE_P(Documents, CtiDocumentTest,
    testing::Values(Document{"AnyLetterCase", "<c><CTIPATHS><pAtH>/a</pAtH></CTIPATHS></c>", {"/a"}},
        Document{"Prefixes", "<n:c xmlns:n='u'><n:CtiPaths><n:Path>/a</n:Path></n:CtiPaths></n:c>", {"/a"}},
        Document{"DefaultNamespace", "<c xmlns='u'><CtiPaths><Path>/a</Path></CtiPaths></c>", {"/a"}},
        Document{"UndeclaredPrefix",
            "<c><CtiPaths><Path>/a</Path><n:Path>/b</n:Path><Path>/c</Path></CtiPaths></c>", {"/a"}},
        Document{"UndeclaredAttributePrefix",
            "<c><CtiPaths><Path>/a</Path><Path n:x='1'>/b</Path></CtiPaths></c>", {"/a"}},
        Document{"OnlyInside", "<c><Path>/a</Path><CtiPaths><Path>/b</Path></CtiPaths><Path>/c</Path></c>",
            {"/b"}},
        Document{"SeveralLists",
            "<c><CtiPaths><Path>/a</Path></CtiPaths><CtiPaths><Path>/b</Path></CtiPaths></c>", {"/a", "/b"}},
        Document{"AListInAListEndsBoth",
            "<c><CtiPaths><CtiPaths><Path>/a</Path></CtiPaths><Path>/b</Path></CtiPaths></c>", {"/a"}},
        Document{"RootIsTheList", "<CtiPaths><Path>/a</Path></CtiPaths>", {"/a"}},
        Document{"Deep", "<c><d><e><CtiPaths><f><Path>/a</Path></f></CtiPaths></e></d></c>", {"/a"}},
        Document{"SecondRoot",
            "<c><CtiPaths><Path>/a</Path></CtiPaths></c><CtiPaths><Path>/b</Path></CtiPaths>", {"/a"}},
        Document{"Empty", "", Fallback}, Document{"NoXml", "hello", Fallback},
        Document{"BrokenInAPath", "<c><CtiPaths><Path>/a</Path><Path>/b", {"/a"}},
        Document{"BrokenAfterAPath", "<c><CtiPaths><Path>/a</Path><", {"/a"}},
        Document{"BrokenByAWrongEnd",
            "<c><CtiPaths><Path>/a</Path><Path>/b</Pfad><Path>/c</Path></CtiPaths></c>", {"/a"}},
        Document{"BrokenAfterTheList", "<c><CtiPaths><Path>/a</Path></CtiPaths><d", {"/a"}},
        Document{"Utf16", utf16("<CtiPaths><Path>/a</Path></CtiPaths>"), {"/a"}},
        Document{"OtherEncoding",
            "<?xml version='1.0' encoding='KOI8-R'?><CtiPaths><Path>/\xC1</Path></CtiPaths>", {"/\xD0\xB0"}},
        Document{"WrongEncoding",
            "<?xml version='1.0' encoding='EUC-JP'?><CtiPaths><Path>/a</Path><Path>/\xFF</Path></CtiPaths>",
            Fallback},
        Document{"UnknownEncoding",
            "<?xml version='1.0' encoding='none'?><CtiPaths><Path>/a</Path></CtiPaths>", Fallback},
        Document{"CharacterCutAtTheEnd", followedBy("\xE2\x82"), {"/a"}},
        Document{"LongCharacterCutAtTheEnd", followedBy("\xF0\x9F\x80"), {"/a"}},
        Document{"LastCharacterCutAtTheEnd", followedBy("\xF4\x8F"), {"/a"}}, // U+10FFFF.
        Document{"NoCharacterAtTheEnd", followedBy("\x80\x80\x80\x80"), Fallback},
        Document{"WrongCharacterAtTheEnd", followedBy("\xED\xA0\x80"), Fallback},
        Document{"EntitiesOfItsOwn", "<!DOCTYPE c [<!ENTITY e 'in'>]><CtiPaths><Path>/&e;</Path></CtiPaths>",
            {"/in"}},
        Document{"EntityBomb", entityBomb(), {"/a"}},
        Document{"Utf16WithCarriageReturns", utf16("<CtiPaths>\r\n<Path>/a</Path>\r\n</CtiPaths>"), {"/a"}},
        Document{"Latin1",
            "<?xml version='1.0' encoding='ISO-8859-1'?><CtiPaths><Path>/\xE4</Path></CtiPaths>",
            {"/\u00E4"}},
        Document{"Windows1252",
            "<?xml version='1.0' encoding='windows-1252'?><CtiPaths><Path>/\x80</Path></CtiPaths>",
            {"/\u20AC"}},
        Document{"Gb18030",
            "<?xml version='1.0' encoding='GB18030'?><CtiPaths><Path>/\xCF\xE0\xBB\xFA</Path></CtiPaths>",
            {"/\u76F8\u673A"}},
        Document{"NotInItsEncoding", "<CtiPaths><Path>/a</Path></CtiPaths><!-- \xE4 -->", Fallback},
        Document{"OtherVersion", "<?xml version='1.1'?><CtiPaths><Path>/a</Path></CtiPaths>", Fallback},
        Document{"TextBeforeTheRoot", "x<CtiPaths><Path>/a</Path></CtiPaths>", Fallback},
        Document{"AttributeTwice", "<CtiPaths><Path>/a</Path><Path x='1' x='2'>/b</Path></CtiPaths>", {"/a"}},
        Document{"UndeclaredEntity", "<CtiPaths><Path>/a</Path><Path>&e;</Path><Path>/b</Path></CtiPaths>",
            {"/a"}},
        Document{"DeclaredEntities",
            "<!DOCTYPE c [<!ENTITY % p '<!ENTITY e \"/e\">'>%p;<!ENTITY f '<Path>&e;</Path>'>]>"
            "<CtiPaths>&f;<Path>&e;/f</Path></CtiPaths>",
            {"/e", "/e/f"}},
        Document{"ControlCharacter", "<CtiPaths><Path>/a</Path>\x01<Path>/b</Path></CtiPaths>", {"/a"}},
        Document{"ThousandsDeep",
            [] {
                std::string xml;
                for (int i = 0; i < 200000; ++i)
                    xml += "<a>";
                return xml;
            }(),
            Fallback}),
    [](const auto &test) { return test.param.name; });

TEST_F(CtiSearchPathTest, SplitsASearchPath)
{
    EXPECT_EQ(searchPathDirectories(nullptr), Paths{});
    EXPECT_EQ(searchPathDirectories(""), Paths{});
    EXPECT_EQ(searchPathDirectories("/a"), Paths{"/a"});
    EXPECT_EQ(searchPathDirectories(":/a b::c:"), (Paths{"/a b", "c"}));
}
