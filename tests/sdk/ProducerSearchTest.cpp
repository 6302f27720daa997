#include "sdk/cvxcpp/ProducerSearch.h"
#include "tests/sdk/support/TemporaryDirectory.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace fs = std::filesystem;

class ProducerSearchTest : public testing::Test
{
protected:
    std::string file(const std::string &name)
    {
        const fs::path path = root.path() / name;
        fs::create_directories(path.parent_path());
        writeFile(path, "x");
        return path.string();
    }
    /// What is told of all that is passed over.
    static std::vector<std::string> faultsIn(const std::vector<std::string> &directories)
    {
        std::vector<std::string> faults;
        findProducers(directories, [&](const std::string &fault) { faults.push_back(fault); });
        return faults;
    }
    /// The paths of what is found.
    static std::vector<std::string> find(const std::vector<std::string> &directories)
    {
        std::vector<std::string> paths;
        for (const ProducerFile &producer : findProducers(directories))
            paths.push_back(producer.path);
        return paths;
    }
    std::string dir(const std::string &name = {}) { return (root.path() / name).string(); }

    TemporaryDirectory root;
};

TEST_F(ProducerSearchTest, FindsFilesOfEveryLetterCaseInTheOrderOfTheirNames)
{
    const auto b = file("b.cti"), a = file("a.CTI"), c = file("c.Cti");
    file("d.cti.bak");
    file("cti");
    EXPECT_EQ(find({dir()}), (std::vector<std::string>{a, b, c}));
}

TEST_F(ProducerSearchTest, KeepsTheOrderOfTheDirectories)
{
    const auto later = file("2/a.cti"), sooner = file("1/z.cti");
    EXPECT_EQ(find({dir("1"), dir("missing"), dir("2")}), (std::vector<std::string>{sooner, later}));
}

TEST_F(ProducerSearchTest, DoesNotDescend)
{
    file("below/a.cti");
    EXPECT_TRUE(find({dir()}).empty());
}

TEST_F(ProducerSearchTest, ResolvesLinksAndNamesAFileOnce)
{
    const auto real = file("real/maker.cti");
    fs::create_directory(root.path() / "cti");
    fs::create_symlink(real, root.path() / "cti/link.cti");
    fs::create_hard_link(real, root.path() / "cti/other.cti");
    fs::create_directory_symlink(root.path() / "real", root.path() / "again");
    EXPECT_EQ(find({dir("cti"), dir("real"), dir("again"), dir("real/")}), std::vector<std::string>{real});
}

TEST_F(ProducerSearchTest, PassesOverWhatIsNoFile)
{
    fs::create_directory(root.path() / "directory.cti");
    fs::create_symlink(root.path() / "nowhere", root.path() / "dangling.cti");
    ASSERT_EQ(mkfifo(dir("pipe.cti").c_str(), 0600), 0);
    EXPECT_TRUE(find({dir()}).empty());
}

TEST_F(ProducerSearchTest, TakesStrangeNames)
{
    const auto strange = file("a b\"'\n\xFF.cti");
    EXPECT_EQ(find({dir()}), std::vector<std::string>{strange});
}

TEST_F(ProducerSearchTest, TellsWhatItPassesOver)
{
    fs::create_directory(root.path() / "a.cti");
    fs::create_symlink("/nowhere/maker.cti", root.path() / "b.cti");
    ASSERT_EQ(mkfifo(dir("c.cti").c_str(), 0600), 0);
    EXPECT_EQ(faultsIn({dir()}),
        (std::vector<std::string>{dir("a.cti") + ": is a directory",
            dir("b.cti") + ": cannot be found: No such file or directory",
            dir("c.cti") + ": is no regular file"}));
}

TEST_F(ProducerSearchTest, TellsWhatItPassesOverOnceByWhateverPath)
{
    fs::create_directories(root.path() / "real/a.cti");
    fs::create_directory_symlink(root.path() / "real", root.path() / "again");
    EXPECT_EQ(faultsIn({dir("real"), dir("real/"), dir("again")}),
        std::vector<std::string>{dir("real/a.cti") + ": is a directory"});
}

TEST_F(ProducerSearchTest, TellsWhichDirectoryItCannotRead)
{
    fs::create_symlink("itself", root.path() / "itself");
    EXPECT_EQ(faultsIn({dir("itself")}),
        std::vector<std::string>{dir("itself") + ": cannot be searched: Too many levels of symbolic links"});
}

TEST_F(ProducerSearchTest, TellsNothingOfADirectoryThatIsNotThere)
{
    EXPECT_TRUE(faultsIn({dir("missing"), file("file"), dir("file/below"), ""}).empty());
}

TEST_F(ProducerSearchTest, TellsInWhichDirectoryAProducerWasFoundFirst)
{
    const auto real = file("real/maker.cti"), other = file("real/other.cti");
    fs::create_directory(root.path() / "cti");
    fs::create_symlink(real, root.path() / "cti/link.cti");
    const auto found = findProducers({dir("missing"), dir("cti"), dir("real")});
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].path, real);
    EXPECT_EQ(found[0].directory, 1U);
    EXPECT_EQ(found[1].path, other);
    EXPECT_EQ(found[1].directory, 2U);
}
