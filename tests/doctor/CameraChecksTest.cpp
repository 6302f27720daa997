// These tests provoke the findings about GigE cameras, and about trial streams.

#include "sdk/doctor/CameraChecks.h"

#include "sdk/doctor/StreamCheck.h"
#include "tests/doctor/MachineBuilder.h"

#include <gtest/gtest.h>

TEST(CameraChecks, everyCameraHasAFinding)
{
    MachineBuilder builder;
    EXPECT_TRUE(
        matchAll(checkCameras(builder.machine), {{Severity::Ok, "GigE cameras", "No GigE camera", ""}}));
    builder.address("card1", "10.77.1.1", 24);
    builder.camera("10.77.1.5", 1).camera("10.77.1.6", 2, ControlState::Controlled);
    builder.camera("10.77.1.7", 3, ControlState::Unknown).camera("192.168.99.5", 4, ControlState::Unknown);
    builder.camera("10.77.1.9", 5).camera("192.168.99.6", 6).camera("192.168.99.7", 0);
    builder.machine.cameras[4].seen.camera.mask = maskOfPrefix(29);
    builder.machine.cameras[5].seen.offeredMethods = linkLocalMethod;
    builder.machine.cameras[6].seen.camera.mac = {};
    builder.machine.neighbours = {{parseIpv4("10.77.1.2").value(), {2, 0, 0, 0, 0, 9}, "card1"}};
    const Findings findings = checkCameras(builder.machine);
    EXPECT_TRUE(matchAll(findings,
        {{Severity::Ok, "02:00:00:00:00:01", "can be opened", ""},
            {Severity::Notice, "02:00:00:00:00:02", "Another program", "cvxctl address"},
            {Severity::Warning, "02:00:00:00:00:03", "no other command", "cvxctl address"},
            {Severity::Error, "02:00:00:00:00:04",
                "192.168.99.5/24 is not in the subnet of card1 (10.77.1.1/24)",
                "cvxctl address 02:00:00:00:00:04 --lasting 10.77.1.3/24"},
            {Severity::Error, "02:00:00:00:00:05", "10.77.1.9/29 does not contain card1",
                "--lasting 10.77.1.4/24"},
            {Severity::Error, "02:00:00:00:00:06", "not in the subnet", "--temporary 10.77.1.8/24"},
            {Severity::Error, "-Kx200-", "not in the subnet", ""}}))
        << describe(findings);
}

TEST(CameraChecks, addressOfTwoDevicesIsAConflict)
{
    MachineBuilder builder;
    builder.address("card1", "10.77.1.1", 24)
        .camera("10.77.1.5", 1)
        .camera("10.77.1.5", 2)
        .camera("10.77.1.6", 3);
    builder.camera("10.77.1.1", 4);
    builder.machine.neighbours = {{parseIpv4("10.77.1.6").value(), {2, 0, 0, 0, 0, 9}, "card1"},
        {parseIpv4("10.77.1.5").value(), {2, 0, 0, 0, 0, 1}, "card9"}};
    const Findings findings = checkConflicts(builder.machine);
    EXPECT_TRUE(matchAll(findings,
        {{Severity::Error, "02:00:00:00:00:01",
             "10.77.1.5 is the address of the camera and of the camera 02:00:00:00:00:02", "--propose"},
            {Severity::Error, "02:00:00:00:00:03", "another device (02:00:00:00:00:09)", "--propose"},
            {Severity::Error, "02:00:00:00:00:04", "this machine (card1)", "--propose"}}))
        << describe(findings);
}

TEST(Finding, textFromOutsideIsOneWordOfACommand)
{
    EXPECT_EQ(shellWord("/opt/cti/a.cti"), "/opt/cti/a.cti");
    EXPECT_EQ(shellWord("SIM 1;reboot"), "'SIM 1;reboot'");
    EXPECT_EQ(shellWord("it's"), "'it'\\''s'");
    EXPECT_EQ(shellWord(""), "''");
}

TEST(StreamCheck, countersDecideTheFinding)
{
    const auto report
        = [](std::uint64_t delivered, std::uint64_t lost, std::uint64_t incomplete, std::uint64_t underruns) {
              StreamReport result;
              result.seconds = 2;
              result.counters.delivered = delivered;
              result.counters.lost = lost;
              result.counters.incomplete = incomplete;
              result.counters.underruns = underruns;
              return result;
          };
    StreamReport resent = report(100, 0, 0, 0), failed;
    resent.packetSize = 1500;
    resent.resends = 3;
    failed.failure = "The camera is gone.";
    const std::pair<StreamReport, ExpectedFinding> cases[]
        = {{report(100, 0, 0, 0), {Severity::Ok, "SIM-1", "100 images (50.0 images/s), 0 lost", ""}},
            {report(100, 2, 0, 0), {Severity::Warning, "SIM-1", "2 lost", "TransportLayerControl"}},
            {report(100, 0, 4, 0), {Severity::Warning, "SIM-1", "4 incomplete", "TransportLayerControl"}},
            {report(100, 0, 0, 5), {Severity::Warning, "SIM-1", "5 without a free buffer", "top"}},
            {resent,
                {Severity::Notice, "SIM-1", "packets of 1500 bytes, 3 packets sent again",
                    "TransportLayerControl"}},
            {report(0, 0, 0, 0), {Severity::Error, "SIM-1", "No image", "TriggerMode"}},
            {failed, {Severity::Error, "SIM-1", "The camera is gone.", ""}}};
    for (const auto &[stream, expected] : cases)
        EXPECT_TRUE(matchAll(checkStream("SIM-1", stream), {expected}))
            << describe(checkStream("SIM-1", stream));
}
