#include "sdk/cvxcpp/ProducerSearch.h"
#include "tests/sdk/support/TemporaryDirectory.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace fs = std::filesystem;

using Texts = std::vector<std::string>;

class ProducerSearchTest : public testing::Test
{
protected:
    std::string path(const std::string &name = {}) const { return (root.path() / name).string(); }
    std::string addFile(const std::string &name)
    {
        fs::create_directories(fs::path(path(name)).parent_path());
        writeFile(path(name), "x");
        return path(name);
    }
    /// Returns the paths of the producers in these directories, and stores the reported problems.
    Texts find(const Texts &directories)
    {
        problems.clear();
        return findProducers(
            directories, [this](const std::string &problem) { problems.push_back(problem); });
    }

    TemporaryDirectory root;
    Texts problems;
};

TEST_F(ProducerSearchTest, sortsFilesByDirectoryThenByName)
{
    const auto strange = addFile("2/ a\"'\n\xFF.cti"), b = addFile("2/b.cti"), a = addFile("2/a.CTI");
    const auto first = addFile("1/z.cti");
    for (const char *name : {"1/d.cti.bak", "1/cti", "1/below/e.cti"})
        addFile(name);
    EXPECT_EQ(find({path("1"), path("missing"), path("2")}), (Texts{first, strange, a, b}));
    EXPECT_EQ(problems, Texts{});
}

TEST_F(ProducerSearchTest, fileWithSeveralPathsIsReturnedOnce)
{
    const auto real = addFile("real/producer.cti"), other = addFile("real/zother.cti");
    fs::create_directory(path("cti"));
    fs::create_symlink(real, path("cti/link.cti"));
    fs::create_hard_link(real, path("cti/other.cti"));
    fs::create_directory_symlink(path("real"), path("again"));
    EXPECT_EQ(find({path("missing"), path("cti"), path("real"), path("again"), path("real/")}),
        (Texts{real, other}));
}

TEST_F(ProducerSearchTest, unusableFileIsReportedOnce)
{
    fs::create_directories(path("real/a.cti"));
    fs::create_symlink("/nowhere/producer.cti", path("real/b.cti"));
    ASSERT_EQ(mkfifo(path("real/c.cti").c_str(), 0600), 0);
    fs::create_directory_symlink(path("real"), path("again"));
    EXPECT_EQ(find({path("real"), path("again")}), Texts{});
    EXPECT_EQ(problems,
        (Texts{path("real/a.cti") + ": is a directory",
            path("real/b.cti") + ": cannot be found: No such file or directory",
            path("real/c.cti") + ": is not a regular file"}));
}

TEST_F(ProducerSearchTest, reportsDirectoriesThatCannotBeSearched)
{
    fs::create_symlink("itself", path("itself"));
    find({path("itself"), path("missing"), addFile("file"), path("file/below"), ""});
    EXPECT_EQ(problems, Texts{path("itself") + ": cannot be searched: Too many levels of symbolic links"});
}
