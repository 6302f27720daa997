#include "sdk/device/WriteJournal.h"

#include <gtest/gtest.h>
#include <set>

using namespace CvxCPP;
using Lines = std::vector<std::string>;

namespace {

/// Records the accesses, for example "Gain=5" for a write and "Gain?" for a read.
class RecordingTarget final : public JournalTarget
{
public:
    std::optional<NodeValue> read(const std::string &name) override
    {
        accesses.push_back(name + '?');
        const auto found = values.find(name);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }

    bool write(const std::string &name, const NodeValue &value) override
    {
        if (accesses.size() >= maxAccesses)
            return false;
        accesses.push_back(name + '=' + std::to_string(std::get<std::int64_t>(value)));
        const auto needed = needs.find(name);
        if (refused.count(name) > 0 || (needed != needs.end() && values.count(needed->second) == 0))
            return false;
        values[name] = value;
        return true;
    }

    bool isLost() const override { return accesses.size() >= maxAccesses; }

    Lines accesses;
    std::map<std::string, NodeValue> values;
    std::set<std::string> refused;
    std::map<std::string, std::string> needs; ///< A node that is refused until the other one was written.
    std::size_t maxAccesses = 1000; ///< The camera is lost afterwards.
};

class WriteJournalTest : public testing::Test
{
protected:
    void write(const std::string &name, std::int64_t value, const Lines &selectors = {})
    {
        journal.written(name, value, selectors, false);
    }
    void select(const std::string &name, std::int64_t value) { journal.written(name, value, {}, true); }

    WriteJournal journal;
    RecordingTarget target;
};

} // namespace

TEST_F(WriteJournalTest, valuesAreWrittenInTheOrderOfTheirLastWrites)
{
    write("A", 1);
    write("B", 2);
    write("C", 3);
    write("A", 4);
    EXPECT_EQ(journal.replay(target), Lines());
    EXPECT_EQ(target.accesses, (Lines{"B=2", "C=3", "A=4"}));
}

TEST_F(WriteJournalTest, refusedValuesAreTriedAgainUntilNothingMoreSucceeds)
{
    write("A", 1);
    write("B", 2);
    write("C", 3);
    write("D", 4);
    target.needs = {{"A", "B"}, {"B", "C"}};
    target.refused = {"D"};
    EXPECT_EQ(journal.replay(target), (Lines{"D"}));
    EXPECT_EQ(target.accesses, (Lines{"A=1", "B=2", "C=3", "D=4", "A=1", "B=2", "D=4", "A=1", "D=4", "D=4"}));
}

TEST_F(WriteJournalTest, valuesAreWrittenWithTheirSelectors)
{
    select("Selector", 1);
    write("Gain", 10, {"Selector"});
    write("Offset", 11, {"Selector"});
    select("Selector", 2);
    write("Gain", 20, {"Selector"});
    select("Selector", 1);
    write("Gain", 12, {"Selector"}); // Replaces the first value.
    select("Selector", 3);
    EXPECT_EQ(journal.replay(target), Lines());
    EXPECT_EQ(target.accesses,
        (Lines{"Selector?", "Selector=1", "Offset=11", "Selector=2", "Gain=20", "Selector=1", "Gain=12",
            "Selector=3"}));
}

TEST_F(WriteJournalTest, selectorThatHasItsValueIsNotWritten)
{
    EXPECT_FALSE(journal.knowsSelector("Selector"));
    journal.selectorRead("Selector", std::int64_t(7));
    EXPECT_TRUE(journal.knowsSelector("Selector"));
    write("Gain", 10, {"Selector"});
    target.values["Selector"] = std::int64_t(7);
    EXPECT_EQ(journal.replay(target), Lines());
    EXPECT_EQ(target.accesses, (Lines{"Selector?", "Gain=10"}));
}

TEST_F(WriteJournalTest, selectorThatTheCameraMayHaveChangedIsReadAgain)
{
    journal.selectorRead("Selector", std::int64_t(7));
    journal.doubtSelectors();
    EXPECT_FALSE(journal.knowsSelector("Selector"));
    journal.selectorRead("Selector", std::int64_t(8));
    EXPECT_TRUE(journal.knowsSelector("Selector"));
    select("Other", 1);
    EXPECT_FALSE(journal.knowsSelector("Selector")) << "the other one may select this one";
    EXPECT_TRUE(journal.knowsSelector("Other"));
}

TEST_F(WriteJournalTest, valueIsNotWrittenIfItsSelectorIsRefused)
{
    select("Selector", 1);
    write("Gain", 10, {"Selector"});
    target.refused = {"Selector"};
    EXPECT_EQ(journal.replay(target), (Lines{"Gain", "Selector"}));
    EXPECT_EQ(target.accesses, (Lines{"Selector?", "Selector=1", "Selector?", "Selector=1"}));
}

TEST_F(WriteJournalTest, selectorWithoutKnownValueIsIgnored)
{
    write("Gain", 10, {"Selector"});
    EXPECT_EQ(journal.replay(target), Lines());
    EXPECT_EQ(target.accesses, (Lines{"Gain=10"}));
}

TEST_F(WriteJournalTest, lostCameraEndsTheReplay)
{
    select("Selector", 1);
    for (const char *name : {"A", "B", "C"})
        write(name, 1);
    target.maxAccesses = 2;
    journal.replay(target);
    EXPECT_EQ(target.accesses, (Lines{"A=1", "B=1"}));
}

TEST_F(WriteJournalTest, emptyJournalAccessesNothing)
{
    EXPECT_EQ(journal.replay(target), Lines());
    EXPECT_EQ(target.accesses, Lines());
}
