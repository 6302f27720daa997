#include "sdk/cvxcpp/FailureReporter.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using Lines = std::vector<std::string>;

class FailureReporterTest : public testing::Test
{
protected:
    Lines lines;
    FailureReporter reporter{"/cti/a.cti", [this](const std::string &line) { lines.push_back(line); }};
};

TEST_F(FailureReporterTest, reportIsOneLineThatNamesTheProducer)
{
    reporter.reportFailure("was lost\nin\x1b[31m thought");
    reporter.reportUnusedCameras(1001, 1000);
    reporter.camerasListed();
    reporter.reportUnusedCameras(1002, 1000); // Reported only once per host.
    EXPECT_EQ(lines,
        (Lines{"/cti/a.cti: was lost\\nin\\x1b[31m thought",
            "/cti/a.cti: reports 1001 cameras, of which only the first 1000 are used"}));
}

TEST_F(FailureReporterTest, repeatedFailureIsReportedAgainOnlyAfterACameraList)
{
    for (int i = 0; i < 3; ++i) {
        reporter.hostStarted();
        reporter.reportFailure("crashed");
    }
    EXPECT_EQ(lines.size(), 1U);
    EXPECT_TRUE(reporter.hasReported());
    reporter.camerasListed();
    EXPECT_FALSE(reporter.hasReported());
    reporter.reportFailure("crashed");
    EXPECT_EQ(lines.size(), 2U);
    reporter.reportFailure("hung");
    EXPECT_EQ(lines.size(), 3U);
}

TEST_F(FailureReporterTest, problemIsReportedOncePerHost)
{
    const std::vector<Problem> problems{{"TLOpen", -1010, "no link"}, {"TLOpen", -1010, "again"},
        {"TLOpen", -1011, ""}, {"IFClose", -1011, ""}};
    const Lines expected{"/cti/a.cti: TLOpen failed with -1010 (GC_ERR_IO): no link",
        "/cti/a.cti: TLOpen failed with -1011 (GC_ERR_TIMEOUT)",
        "/cti/a.cti: IFClose failed with -1011 (GC_ERR_TIMEOUT)"};
    reporter.reportProblems(problems);
    reporter.camerasListed();
    reporter.reportProblems(problems);
    EXPECT_EQ(lines, expected);
    reporter.hostStarted();
    reporter.reportProblems(problems);
    EXPECT_EQ(lines.size(), 6U);
}

TEST_F(FailureReporterTest, lengthAndNumberOfReportsAreLimited)
{
    reporter.reportFailure(std::string(10'000, 'x'));
    EXPECT_EQ(lines.back().size(), std::string("/cti/a.cti: ").size() + 500);
    const std::string call(64, 'y'); // Only the first 64 bytes of two names are compared.
    reporter.reportProblems({{call + "a", 0, ""}, {call + "b", 0, ""}});
    EXPECT_EQ(lines.size(), 2U);
    for (int code = 1; code < 100; ++code)
        reporter.reportProblems({{"TLOpen", code, ""}});
    EXPECT_EQ(lines.size(), 1U + 64U);
}
