#include "sdk/cvxcpp/CtiSearchPath.h"
#include "sdk/cvxcpp/CtiPathsDocument.h"
#include "tests/sdk/support/TemporaryDirectory.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace fs = std::filesystem;

using Paths = std::vector<std::string>;

namespace {

struct Document
{
    const char *name;
    std::string xml;
    Paths paths;
};

Document inList(const char *name, const std::string &content, const Paths &paths)
{
    return {name, "<CvxC><CtiPaths>" + content + "</CtiPaths></CvxC>", paths};
}

const Document documents[] = {
    inList("allPathsInOrder", "<Path>/b</Path><Path>/a</Path>", {"/b", "/a"}),
    inList("whiteSpaceAroundAPath", "<Path>\r\n\t /a b \n</Path>", {"/a b"}),
    inList("emptyPaths", "<Path/><Path> </Path><Path>/a</Path>", {"/a"}),
    inList("noPath", "", {}),
    inList("sectionsAndComments", "<Path>/<![CDATA[<a>]]><!-- no --> b</Path>", {"/<a> b"}),
    inList("otherElements", "text<Other><Path>/a</Path></Other><Note>/n</Note>", {"/a"}),
    inList("elementInAPath", "<Path>/a<x/>b</Path><Path>/c</Path>", {"/ab", "/c"}),
    {"letterCase", "<c><CTIPATHS><pAtH>/a</pAtH></CTIPATHS></c>", {"/a"}},
    {"prefixes", "<n:c xmlns:n='u'><n:CtiPaths><n:Path>/a</n:Path></n:CtiPaths></n:c>", {"/a"}},
    {"similarNames", "<CtiPaths2><Path>/a</Path></CtiPaths2><CtiPaths><Paths>/b</Paths></CtiPaths>", {}},
    {"pathOutsideTheList", "<c><Path>/a</Path><CtiPaths><Path>/b</Path></CtiPaths><Path>/c</Path></c>",
        {"/b"}},
    {"severalLists", "<c><CtiPaths><Path>/a</Path></CtiPaths><CtiPaths><Path>/b</Path></CtiPaths></c>",
        {"/a", "/b"}},
    {"emptyDocument", "", {}},
    {"endInAPath", "<c><CtiPaths><Path>/a</Path><Path>/b", {"/a"}},
    {"wrongEndTag", "<c><CtiPaths><Path>/a</Path><Path>/b</Pfad><Path>/c</Path></CtiPaths></c>", {"/a"}},
    {"undeclaredEntity", "<CtiPaths><Path>/a</Path><Path>&e;</Path><Path>/b</Path></CtiPaths>", {"/a"}},
    {"declaredEntity", "<!DOCTYPE c [<!ENTITY e 'in'>]><CtiPaths><Path>/&e;</Path></CtiPaths>", {"/in"}},
    {"externalEntity",
        "<!DOCTYPE c [<!ENTITY e SYSTEM 'file:///etc/hostname'>]><CtiPaths><Path>/a&e;</Path></CtiPaths>",
        {"/a"}},
    {"unknownEncoding", "<?xml version='1.0' encoding='none'?><CtiPaths><Path>/a</Path></CtiPaths>", {}},
    {"malformedUtf8", "<CtiPaths><Path>/a</Path><Path>/\xE4</Path></CtiPaths>", {"/a"}},
};

} // namespace

TEST(CtiPathsDocumentTest, returnsThePathsOfTheDocument)
{
    for (const Document &document : documents)
        EXPECT_EQ(readCtiPaths(document.xml), document.paths) << document.name;
}

TEST(CtiSearchPathTest, relativePathsAreResolvedInTheInstallRootFirst)
{
    const TemporaryDirectory root;
    for (const char *directory : {"bin/near", "bin/both", "far", "both", "cti"})
        fs::create_directories(root.path() / directory);
    const auto directories = [&](const char *paths) {
        const fs::path file = root.path() / "bin/CvxC.xml";
        if (paths)
            writeFile(file, std::string("<CtiPaths>") + paths + "</CtiPaths>");
        return configuredCtiDirectories(root.path(), file);
    };
    const auto below = [&](const char *path) { return (root.path() / path).string(); };
    EXPECT_EQ(directories(nullptr), Paths{below("cti")}) << "without a file";
    EXPECT_EQ(directories(""), Paths{below("cti")}) << "without a path";
    EXPECT_EQ(directories("<Path>nowhere</Path>"), Paths{below("cti")});
    EXPECT_EQ(directories("<Path>/nowhere</Path>"), Paths{"/nowhere"});
    EXPECT_EQ(
        directories("<Path>both</Path><Path>far</Path><Path>nowhere</Path><Path>near</Path><Path>far</Path>"),
        (Paths{below("both"), below("far"), below("bin/near")}));
}

TEST(CtiSearchPathTest, searchPathIsSplitAtColons)
{
    EXPECT_EQ(searchPathDirectories(nullptr), Paths{});
    EXPECT_EQ(searchPathDirectories(""), Paths{});
    EXPECT_EQ(searchPathDirectories("/a"), Paths{"/a"});
    EXPECT_EQ(searchPathDirectories(":/a b::c:"), (Paths{"/a b", "c"}));
}
