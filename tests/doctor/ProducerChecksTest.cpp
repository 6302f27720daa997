// These tests provoke the findings about producers, with scripted producers and the real host program.

#include "sdk/doctor/ProducerChecks.h"

#include "tests/doctor/MachineBuilder.h"
#include "tests/sdk/support/ProcessTable.h"
#include "tests/sdk/support/Waiting.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

const std::string oneCamera = "interface net0|Network|GEV\ndevice net0|A1|Orvelle|Kx200|1|Camera|GEV\n";

} // namespace

/// An installation with producers in its directory cti and in another directory.
class ProducerChecksTest : public testing::Test
{
protected:
    ProducerChecksTest()
    {
        for (const char *name : {"bin", "cti", "other"})
            std::filesystem::create_directory(path(name));
        std::filesystem::create_symlink(CVX_PRODUCER_HOST, path("bin/CvxProducerHost"));
    }

    std::filesystem::path path(const std::string &name) const { return directory.path() / name; }

    void add(const std::string &file, const char *producer, const std::string &script)
    {
        std::filesystem::copy_file(producer, path(file + ".cti"));
        writeFile(path(file + ".script"), script);
    }

    ProducerSurvey survey(const std::string &searchPath) const
    {
        return surveyProducers(path("bin").string(), searchPath.c_str());
    }

    TemporaryDirectory directory;
};

TEST_F(ProducerChecksTest, everyProducerHasAFinding)
{
    std::filesystem::copy_file(SIMULATOR, path("cti/a.cti"));
    add("cti/b", TEST_PRODUCER, oneCamera);
    add("cti/c", TEST_PRODUCER, "fault TLOpen error -1010\n");
    add("cti/d", TEST_PRODUCER, "fault TLUpdateInterfaceList crash\n");
    add("cti/e", TEST_PRODUCER, "fault IFUpdateDeviceList error -1010\n" + oneCamera);
    add("cti/f", INCOMPLETE_PRODUCER, "");
    writeFile(path("cti/g.cti"), "text");
    std::filesystem::create_directory(path("cti/h.cti"));
    add("cti/i", TEST_PRODUCER, oneCamera);
    add("other/b", TEST_PRODUCER, oneCamera);
    const Findings findings = checkProducers(survey(path("other").string() + ':' + path("missing").string()));
    EXPECT_TRUE(matchAll(findings,
        {{Severity::Warning, "GENICAM_GENTL64_PATH", "missing is in GENICAM_GENTL64_PATH", "printenv"},
            {Severity::Warning, "producers", "h.cti: is a directory", ""},
            {Severity::Ok, "a.cti", "a.cti works (Orvelle, version ", ""},
            {Severity::Warning, "b.cti", "lacks IFOpenDevice, DevGetPort, DevClose and 13 more functions.",
                ""},
            {Severity::Error, "c.cti", "cannot be used: TLOpen failed with -1010 (GC_ERR_IO)", ""},
            {Severity::Error, "d.cti", "ended by SIGSEGV", ""}, {Severity::Warning, "e.cti", "lacks", ""},
            {Severity::Warning, "e.cti", "IFUpdateDeviceList failed with -1010 (GC_ERR_IO)", ""},
            {Severity::Error, "f.cti", "lacks IFGetDeviceInfo", ""},
            {Severity::Error, "g.cti", "dlopen failed", "ldd "}, {Severity::Warning, "i.cti", "lacks", ""},
            {Severity::Warning, "b.cti", "lacks", ""},
            {Severity::Warning, "b.cti", "is present 2 times", "ls -l"},
            {Severity::Notice, "Kx200 1", "Several producers report the camera: b.cti, i.cti.", ""}}))
        << describe(findings);
}

TEST_F(ProducerChecksTest, installationWithoutAProducerIsAnError)
{
    const Findings findings = checkProducers(survey(""));
    EXPECT_TRUE(matchAll(findings, {{Severity::Error, "producers", "No producer (*.cti) was found", ""}}))
        << describe(findings);
}

TEST_F(ProducerChecksTest, hangingProducerIsEnded)
{
    add("cti/a", TEST_PRODUCER, "fault TLUpdateInterfaceList hang\n");
    const auto reports = tryProducers(CVX_PRODUCER_HOST, {path("cti/a.cti").string()}, 200ms);
    ASSERT_EQ(reports.size(), 1U);
    EXPECT_EQ(reports.front().failure, "the producer does not answer");
    EXPECT_TRUE(waitUntil([&] { return processesWith(directory.path().string()).empty(); }));
}

TEST(ProducerChecks, newerGenTlIsReported)
{
    ProducerReport report;
    report.path = "/cti/a\x1B.cti";
    report.info.emplace();
    report.info->genTlMajor = 2;
    ProducerSurvey survey;
    survey.reports = {report};
    EXPECT_TRUE(matchAll(checkProducers(survey), {{Severity::Warning, "a .cti", "follows GenTL 2", ""}}))
        << describe(checkProducers(survey));
}
