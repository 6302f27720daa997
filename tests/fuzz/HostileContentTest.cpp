// Documents in the place of CvxC.xml that are large, deep or grow, for both of its readers.

#include "tests/fuzz/HostileDocument.h"

#include <functional>

namespace fs = std::filesystem;

struct Document
{
    const char *name;
    std::function<std::string()> content; ///< Made when it is needed: some are large.
    Directories directories; ///< That both find; empty for the fallback.
};

std::ostream &operator<<(std::ostream &stream, const Document &document)
{
    return stream << document.name;
}

class HostileContent : public HostileDocument,
                       public testing::WithParamInterface<std::tuple<Reader, Document>>
{ };

TEST_P(HostileContent, IsReadUpToItsFaultWithinBounds)
{
    const auto &[reader, document] = GetParam();
    write(document.content());
    EXPECT_EQ(read(reader), document.directories.empty() ? fallback() : document.directories);
}

/// A file of a hundred megabytes. What follows the text is a hole: whoever reads it finds a fault, but late.
class HostileSize : public HostileContent
{ };

TEST_P(HostileSize, IsReadUpToItsLimit)
{
    const auto &[reader, document] = GetParam();
    write(document.content());
    fs::resize_file(file(), 100U << 20);
    EXPECT_EQ(read(reader), document.directories.empty() ? fallback() : document.directories);
}

namespace {

std::string repeated(const std::string &text, int count)
{
    std::string result;
    result.reserve(text.size() * static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

/// Each entity is ten of the one before.
std::string tenfold(const std::string &mark, const std::string &reference)
{
    std::string declarations;
    std::string value = "0123456789";
    for (int i = 0; i < 12; ++i) {
        const std::string number = std::to_string(i);
        for (const std::string &part :
            {std::string("<!ENTITY "), mark, "e" + number, " '" + value, std::string("'>")})
            declarations += part;
        value = repeated(reference + number + ";", 10);
    }
    return declarations;
}

/// Each entity is the one before.
std::string chain(int length)
{
    std::string declarations = "<!ENTITY e0 '/x'>";
    for (int i = 1; i < length; ++i)
        declarations += "<!ENTITY e" + std::to_string(i) + " '&e" + std::to_string(i - 1) + ";'>";
    return declarations;
}

const Document Bombs[] = {
    {"BillionLaughs", [] { return withPath(tenfold("", "&e"), "&e11;"); }, {"/a"}},
    {"BillionLaughsInAnAttribute",
        [] {
            return "<!DOCTYPE c [" + tenfold("", "&e")
                + "]><c><CtiPaths><Path>/a</Path><Path x='&e11;'>/b</Path></CtiPaths></c>";
        },
        {"/a"}},
    {"BillionLaughsInADefault",
        [] { return withPath(tenfold("", "&e") + "<!ATTLIST Path x CDATA '&e11;'>", "/x"); }, {}},
    {"BillionLaughsInTheDeclarations", [] { return withPath(tenfold("% ", "&#37;e") + "%e11;", "/x"); }, {}},
    {"OneLargeEntityManyTimes",
        [] { return withPath("<!ENTITY e '" + repeated("x", 4000) + "'>", repeated("&e;", 80000)); }, {"/a"}},
    {"ItselfInItself", [] { return withPath("<!ENTITY e '&f;'><!ENTITY f '&e;'>", "&e;"); }, {"/a"}},
    {"ChainOfEntities", [] { return withPath(chain(8000), "&e7999;"); }, {}},
};

/// Two MiB of something after a path, and a path after it.
std::string large(const std::string &before, const std::string &filler, const std::string &after)
{
    const int count = static_cast<int>((2U << 20) / filler.size());
    return "<c><CtiPaths><Path>/a</Path>" + before + repeated(filler, count) + after + "<Path>/late</Path>";
}

const Document Sizes[] = {
    {"Blanks", [] { return large("", " ", ""); }, {"/a"}},
    {"Paths", [] { return large("", "<Path>/b</Path>", ""); }, {"/a", "/b"}},
    {"OnePath", [] { return large("<Path>/", "b", "</Path>"); }, {"/a"}},
    {"OneAttribute", [] { return large("<Path x='", "b", "'>/b</Path>"); }, {"/a"}},
    {"Attributes", [] { return large("<Path ", "a='b' ", ">/b</Path>"); }, {"/a"}},
    {"OneComment", [] { return large("<!-- ", "b", " -->"); }, {"/a"}},
    {"Nothing", [] { return std::string(); }, {}},
};

const Document Depths[] = {
    {"MillionLevels", [] { return repeated("<a>", 1000000); }, {}},
    {"MillionLevelsAfterAPath", [] { return "<c><CtiPaths><Path>/a</Path>" + repeated("<a>", 1000000); },
        {"/a"}},
    {"MillionLists", [] { return repeated("<CtiPaths>", 1000000); }, {}},
    {"MillionPaths", [] { return "<CtiPaths><Path>/a</Path>" + repeated("<Path>", 1000000); }, {"/a"}},
    {"MillionGroups", [] { return "<!DOCTYPE c [<!ELEMENT c " + repeated("(", 1000000); }, {}},
    {"MillionNamespaces",
        [] { return "<n:c xmlns:n='u'><CtiPaths><Path>/a</Path>" + repeated("<n:a xmlns:b='u'>", 1000000); },
        {"/a"}},
    {"ManyAttributes",
        [] {
            std::string document = "<c><CtiPaths><Path>/a</Path><Path";
            for (int i = 0; i < 100000; ++i)
                document += " a" + std::to_string(i) + "=''";
            return document + "/>";
        },
        {"/a"}},
    {"ManyDefaults",
        [] {
            std::string document = "<!DOCTYPE c [";
            for (int i = 0; i < 4000; ++i)
                document += "<!ATTLIST a a" + std::to_string(i) + " CDATA ''>";
            return document + "]><c><CtiPaths><Path>/a</Path>" + repeated("<a/>", 30000);
        },
        {"/a"}},
};

std::string nameOf(const testing::TestParamInfo<std::tuple<Reader, Document>> &test)
{
    return std::string(std::get<0>(test.param).name) + std::get<1>(test.param).name;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Bombs, HostileContent, testing::Combine(testing::ValuesIn(readers()), testing::ValuesIn(Bombs)), nameOf);
INSTANTIATE_TEST_SUITE_P(Depths, HostileContent,
    testing::Combine(testing::ValuesIn(readers()), testing::ValuesIn(Depths)), nameOf);
INSTANTIATE_TEST_SUITE_P(
    Sizes, HostileSize, testing::Combine(testing::ValuesIn(readers()), testing::ValuesIn(Sizes)), nameOf);
