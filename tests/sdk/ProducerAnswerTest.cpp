#include "sdk/cvxcpp/ProducerAnswer.h"

#include <gtest/gtest.h>
#include <string>

namespace {

ProducerAnswer parsed(const std::string &line)
{
    ProducerAnswer answer;
    EXPECT_TRUE(parseAnswer(line, answer)) << line;
    return answer;
}

} // namespace

TEST(ProducerAnswerTest, ReadsAList)
{
    const auto answer = parsed(R"({"interfaces":[{"number":3,"id":"if","name":"Net","type":"GEV","devices":[
        {"id":"d","vendor":"v","model":"m","serial":"s","name":"n","type":"U3V"}]}],
        "problems":[{"call":"IFUpdateDeviceList","code":-1011,"text":"t"},{"call":"TLClose","code":7,"text":""}]})");
    const ListedInterface expected{3, "if", "Net", "GEV", {{"d", "v", "m", "s", "n", "U3V"}}};
    EXPECT_EQ(answer.kind, ProducerAnswer::Kind::List);
    ASSERT_EQ(answer.interfaces.size(), 1U);
    EXPECT_TRUE(answer.interfaces.front() == expected);
    ASSERT_EQ(answer.problems.size(), 2U);
    EXPECT_EQ(answer.problems[0].call, "IFUpdateDeviceList");
    EXPECT_EQ(answer.problems[0].code, -1011);
    EXPECT_EQ(answer.problems[0].text, "t");
    EXPECT_EQ(answer.problems[1].code, 7);
}

TEST(ProducerAnswerTest, ReadsAnEmptyList)
{
    EXPECT_TRUE(parsed(R"({"interfaces":[]})").interfaces.empty());
}

TEST(ProducerAnswerTest, ReadsAnError)
{
    const auto answer = parsed(R"({"error":{"call":"TLOpen","code":-1004,"text":"in use"}})");
    EXPECT_EQ(answer.kind, ProducerAnswer::Kind::Error);
    ASSERT_EQ(answer.problems.size(), 1U);
    EXPECT_EQ(answer.problems.front().call, "TLOpen");
    EXPECT_EQ(answer.problems.front().code, -1004);
    EXPECT_EQ(answer.problems.front().text, "in use");
}

TEST(ProducerAnswerTest, ReadsTheEnd)
{
    EXPECT_EQ(parsed(R"({"ended":true,"problems":[]})").kind, ProducerAnswer::Kind::Ended);
}

TEST(ProducerAnswerTest, SortsDevicesOfOneIdByTheirTexts)
{
    const auto answer
        = parsed(R"({"interfaces":[{"id":"a","devices":[{"id":"y","model":"2"},{"id":"y","model":"1"}]}]})");
    EXPECT_EQ(answer.interfaces[0].devices[0].model, "1");
}

TEST(ProducerAnswerTest, SortsByIdWhateverTheOrder)
{
    const auto answer
        = parsed(R"({"interfaces":[{"id":"b","devices":[{"id":"z"},{"id":"y"}]},{"id":"a","devices":[]}]})");
    EXPECT_EQ(answer.interfaces[0].id, "a");
    EXPECT_EQ(answer.interfaces[1].devices[0].id, "y");
}

TEST(ProducerAnswerTest, SkipsWhatItDoesNotKnow)
{
    const auto answer = parsed(R"({"new":{"id":"x","devices":[{"id":1}]},"list":[[1,2.5,null,true]],
        "interfaces":[{"id":"a","speed":1e99,"tags":["t"],"devices":[{"id":"d","colour":"red","ports":[{"id":"p"}],"model":5}]}]})");
    ASSERT_EQ(answer.interfaces.size(), 1U);
    ASSERT_EQ(answer.interfaces[0].devices.size(), 1U);
    EXPECT_EQ(answer.interfaces[0].devices[0].id, "d");
    EXPECT_EQ(answer.interfaces[0].devices[0].model, "");
}

TEST(ProducerAnswerTest, TakesTheCodeOfAProblemFromNowhereElse)
{
    const auto answer
        = parsed(R"({"code":4,"interfaces":[{"id":"a","code":3,"devices":[{"id":"d","code":2}]}],
        "problems":[{"code":-1004,"line":5}]})");
    EXPECT_EQ(answer.problems.at(0).code, -1004);
}

TEST(ProducerAnswerTest, CutsTextsAtNul)
{
    EXPECT_EQ(parsed(R"({"interfaces":[{"id":"a\u0000b","devices":[]}]})").interfaces[0].id, "a");
}

TEST(ProducerAnswerTest, KeepsControlCharactersAndQuotes)
{
    EXPECT_EQ(
        parsed(R"({"interfaces":[{"id":"\"\\\n\t\u0001","devices":[]}]})").interfaces[0].id, "\"\\\n\t\x01");
}

class NoAnswerTest : public testing::TestWithParam<std::string>
{ };

TEST_P(NoAnswerTest, IsRefused)
{
    ProducerAnswer answer;
    EXPECT_FALSE(parseAnswer(GetParam(), answer));
}

INSTANTIATE_TEST_SUITE_P(Texts, NoAnswerTest,
    testing::Values("", "{", "[]", "null", "1", "\"text\"", "{}", R"({"problems":[]})", R"({"interfaces":[})",
        R"({"interfaces":[]} x)", R"({"interfaces":5})", R"({"error":"text"})", "\xFF\xFE",
        R"({"interfaces":[{"id":")"
        "\xFF"
        R"("}]})",
        std::string(100000, '['), std::string("{\"interfaces\":\0[]}", 18)));

TEST(ProducerAnswerTest, RefusesWhatIsTooLong)
{
    ProducerAnswer answer;
    std::string line = R"({"interfaces":[]})";
    line.resize(LongestAnswer + 1, ' ');
    EXPECT_FALSE(parseAnswer(line, answer));
}

TEST(ProducerAnswerTest, RefusesMoreRecordsThanAreCredible)
{
    const auto read = [](std::size_t interfaces) {
        std::string line = R"({"interfaces":[{})"; // The answer itself counts as well.
        for (std::size_t i = 1; i < interfaces; ++i)
            line += ",{}";
        ProducerAnswer answer;
        return parseAnswer(line + "]}", answer);
    };
    EXPECT_TRUE(read(MostRecords - 1));
    EXPECT_FALSE(read(MostRecords));
}

TEST(ProducerAnswerTest, IgnoresNumbersOutOfRange)
{
    const auto answer = parsed(R"({"interfaces":[{"id":"a","number":-1,"devices":[]}],
        "problems":[{"code":99999999999},{"code":-99999999999},{"code":1.5}]})");
    EXPECT_EQ(answer.interfaces[0].number, 0U);
    for (const CallProblem &problem : answer.problems)
        EXPECT_EQ(problem.code, 0);
}
