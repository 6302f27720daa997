#include "tests/sdk/support/CatalogueTest.h"

#include <random>

using namespace std::chrono_literals;

namespace {

constexpr SearchKind background = SearchKind::Background;

DeviceRecord shared(const std::string &id, const std::string &serial = "42")
{
    return camera(id, "Vendor", "Model", serial);
}

InterfaceRecord usb(const std::string &id, const std::vector<DeviceRecord> &devices)
{
    return {1, id, "USB", "U3V", devices};
}

} // namespace

/// The rules by which a camera stays with its producer and at its interface.
class CameraOwnerTest : public CatalogueTest
{
protected:
    /// Makes producer 1 the owner of the camera that producer 0, which comes first, reports too.
    void giveTheCameraToProducer1()
    {
        search(1, {usb("net", {shared("B")})});
        ASSERT_EQ(takenCameras(), Ids{"b.cti/net/B"});
        search(0, {usb("net", {shared("A")})});
        ASSERT_EQ(change(), Ids{"+[net]"});
    }

    const std::size_t first = 0, owner = 1;
    const Ids none;
};

TEST_F(CameraOwnerTest, ownerKeepsTheCameraForTenSecondsAfterItsLastReport)
{
    giveTheCameraToProducer1();
    now += 1s;
    search(owner, {usb("net", {shared("B")})});
    for (const auto step : {1s, 8s}) {
        now += step;
        EXPECT_FALSE(search(owner, {usb("net", {})}));
        EXPECT_EQ(catalogue.findInterface(owner, "net")->devices.size(), 1U)
            << "the program reads its vendor";
    }
    now += 999ms;
    EXPECT_FALSE(search(first, {usb("net", {shared("A")})}));
    EXPECT_EQ(takenCameras(), Ids{"b.cti/net/B"});
    now += 1ms;
    EXPECT_TRUE(search(first, {usb("net", {shared("A")})})) << "the reply of any producer ends the hold";
    EXPECT_EQ(change(), (Ids{"-b.cti/net/B", "+a.cti/net/A"})) << "one change";
    EXPECT_EQ(catalogue.findInterface(owner, "net")->devices.size(), 0U);

    now += 1s;
    search(owner, {usb("net", {shared("B")})});
    EXPECT_EQ(change(), none) << "the camera stays with its new owner";
    EXPECT_EQ(takenCameras(), Ids{"a.cti/net/A"});
}

TEST_F(CameraOwnerTest, cameraThatItsOwnerReportsAgainNeverChanges)
{
    giveTheCameraToProducer1();
    for (int i = 0; i < 20; ++i) {
        const bool isReported = i % 4 == 0; // The owner misses the camera for eight seconds each time.
        EXPECT_FALSE(search(owner, {isReported ? usb("net", {shared("B")}) : usb("net", {})}));
        EXPECT_FALSE(search(first, {usb("net", {shared("A")})}));
        now += 2s;
    }
    EXPECT_EQ(change(), none);
}

TEST_F(CameraOwnerTest, cameraThatNoProducerReportsIsRemovedAtOnce)
{
    giveTheCameraToProducer1();
    EXPECT_FALSE(search(owner, {usb("net", {})})) << "the other producer still reports the camera";
    EXPECT_TRUE(search(first, {usb("net", {})}));
    EXPECT_EQ(change(), Ids{"-b.cti/net/B"});
    search(first, {usb("net", {shared("A")})});
    EXPECT_EQ(change(), Ids{"+a.cti/net/A"}) << "no producer owns it any more";
}

TEST_F(CameraOwnerTest, cameraOfOneProducerIsNotHeld)
{
    search(0, {usb("net", {shared("A"), shared("C", "43")})});
    takenCameras();
    search(0, {usb("net", {shared("C", "43")})});
    EXPECT_EQ(change(), Ids{"-a.cti/net/A"});
}

TEST_F(CameraOwnerTest, cameraChangesHandsAtOnceWhenItsHostHasGone)
{
    giveTheCameraToProducer1();
    EXPECT_TRUE(catalogue.removeInterfaces(owner, now));
    EXPECT_EQ(change(), (Ids{"-b.cti/net/B", "-[net]", "+a.cti/net/A"}));
    EXPECT_FALSE(catalogue.removeInterfaces(owner, now));
    search(owner, {usb("net", {shared("B")})});
    EXPECT_EQ(change(), Ids{"+[net]"}) << "the host has started again";
}

TEST_F(CameraOwnerTest, heldCameraChangesHandsWhenItsHostOrTheOtherHostHasGone)
{
    for (const bool isOwnerLost : {true, false}) {
        SCOPED_TRACE(isOwnerLost);
        search(first, {usb("net", {})});
        search(owner, {usb("net", {shared("B")})});
        takenCameras();
        search(first, {usb("net", {shared("A")})});
        EXPECT_FALSE(search(owner, {usb("net", {})})) << "held";
        change();
        EXPECT_TRUE(catalogue.removeInterfaces(isOwnerLost ? owner : first, now));
        EXPECT_EQ(takenCameras(), isOwnerLost ? Ids{"a.cti/net/A"} : none);
    }
}

TEST_F(CameraOwnerTest, cameraChangesHandsAtOnceWhenItsInterfaceHasGone)
{
    giveTheCameraToProducer1();
    search(owner, {usb("other", {})});
    EXPECT_EQ(change(), (Ids{"-b.cti/net/B", "-[net]", "+[other]", "+a.cti/net/A"}));
}

TEST_F(CameraOwnerTest, searchOrderDecidesUntilTheProgramKnowsTheCamera)
{
    search(1, {usb("net", {shared("B")})});
    EXPECT_TRUE(search(1, {usb("net", {shared("B"), shared("C", "43")})}));
    EXPECT_TRUE(search(0, {usb("net", {shared("A")})}));
    EXPECT_EQ(takenCameras(), (Ids{"a.cti/net/A", "b.cti/net/C"}));

    catalogue.removeInterfaces(0, now);
    catalogue.removeInterfaces(1, now);
    search(1, {usb("net", {shared("B")})});
    change();
    search(0, {usb("net", {shared("A")})});
    EXPECT_EQ(change(), Ids{"+[net]"}) << "the producer that lists it first owns it from now on";
}

TEST_F(CameraOwnerTest, changesOfOneProducerAreReportedBeforeTheOthers)
{
    catalogue.reportChangesFromNowOn(1);
    search(1, {usb("net", {shared("B")})});
    search(0, {usb("net", {shared("A")})});
    EXPECT_EQ(change(), (Ids{"+[net]", "+b.cti/net/B"}));
    EXPECT_EQ(takenCameras(), Ids{"b.cti/net/B"});
}

TEST_F(CameraOwnerTest, cloneOfTheOwnerBecomesASecondCamera)
{
    giveTheCameraToProducer1();
    search(owner, {usb("net", {shared("B"), shared("clone")})});
    EXPECT_EQ(change(), Ids{"+b.cti/net/clone"});
}

TEST_F(CameraOwnerTest, cameraWithoutSerialNumberStaysWithItsOwner)
{
    search(1, {network("net", {shared("DEV_00112233AABB", "")})});
    takenCameras();
    search(0, {network("net", {shared("00:11:22:33:AA:BB"), shared("00:11:22:33:AA:CC", "43")})});
    EXPECT_EQ(change(), (Ids{"+[net]", "+a.cti/net/00:11:22:33:AA:CC"}));
    now += 3s;
    EXPECT_FALSE(search(1, {network("net", {})}));
    now += 7s;
    EXPECT_TRUE(search(1, {network("net", {})}));
    EXPECT_EQ(change(), (Ids{"-b.cti/net/DEV_00112233AABB", "+a.cti/net/00:11:22:33:AA:BB"}));
}

TEST_F(CameraOwnerTest, deviceThatSeveralInterfacesReportStaysAtItsInterface)
{
    const DeviceRecord device = camera("1");
    const auto report = [&](const Interfaces &interfaces) {
        search(0, interfaces, background);
        return change();
    };
    search(0, {network("x", {device}, 1), network("y", {device}, 2)}, background);
    EXPECT_EQ(takenCameras(), Ids{"a.cti/x/1"}) << "the first interface";
    EXPECT_EQ(catalogue.findInterface(0, "y")->devices.size(), 1U) << "the interfaces keep all devices";
    EXPECT_EQ(catalogue.reportedCameras(0), 1U);

    const Interfaces onlyY{network("x", {}, 1), network("y", {device}, 2)};
    EXPECT_EQ(report(onlyY), none) << "the first miss";
    EXPECT_EQ(report(onlyY), (Ids{"-a.cti/x/1", "+a.cti/y/1"}));
    EXPECT_EQ(report({network("x", {device}, 1), network("y", {device}, 2)}), none);
    EXPECT_EQ(report({network("w", {device}, 3), network("x", {device}, 1), network("y", {device}, 2)}),
        Ids{"+[w]"});
    EXPECT_EQ(report({network("w", {device}, 3), network("x", {device}, 1)}),
        (Ids{"-a.cti/y/1", "-[y]", "+a.cti/w/1"}));
}

TEST_F(CameraOwnerTest, ownedDeviceMovesToAnotherInterfaceOfItsOwner)
{
    search(1, {usb("x", {shared("B")}), usb("y", {shared("B")})});
    takenCameras();
    search(0, {usb("net", {shared("A")})});
    change();
    search(1, {usb("x", {}), usb("y", {shared("B")})});
    EXPECT_EQ(change(), (Ids{"-b.cti/x/B", "+b.cti/y/B"}));
    EXPECT_EQ(catalogue.findInterface(1, "x")->devices.size(), 0U) << "not held";
    search(1, {usb("x", {shared("B")}), usb("y", {shared("B")})});
    search(1, {usb("x", {}), usb("y", {})});
    EXPECT_EQ(change(), none) << "held";
    EXPECT_EQ(catalogue.findInterface(1, "x")->devices.size(), 0U) << "held only where it is listed";
    EXPECT_EQ(catalogue.findInterface(1, "y")->devices.size(), 1U);
}

TEST_F(CameraOwnerTest, lostAnswersChangeNothing)
{
    std::minstd_rand random(7);
    // Reports each of 10 cameras with a probability of 90 %.
    const auto lossy = [&](const std::string &prefix) {
        InterfaceRecord record = network("net", {});
        for (int i = 0; i < 10; ++i) {
            if (random() % 10 != 0)
                record.devices.push_back(shared(prefix + std::to_string(i), std::to_string(i)));
        }
        return Interfaces{record};
    };
    for (int i = 0; i < 2; ++i) {
        search(0, lossy("A"), background);
        search(1, lossy("B"), background);
    }
    const Ids all = takenCameras();
    ASSERT_EQ(all.size(), 10U);
    for (int i = 0; i < 150; ++i) { // Five minutes.
        now += 2s;
        search(0, lossy("A"), i % 5 == 0 ? SearchKind::Short : background);
        search(1, lossy("B"), background);
        ASSERT_EQ(change(), none) << "search " << i;
    }
    EXPECT_EQ(takenCameras(), all);
}

TEST_F(CameraOwnerTest, thousandCamerasWithoutSerialNumbersAreComparedByTheirMacAddresses)
{
    InterfaceRecord ours = network("net", {}), other = network("net", {});
    for (int i = 100000; i < 101000; ++i) {
        const std::string digits = std::to_string(i);
        ours.devices.push_back(shared(
            "02:00:00:" + digits.substr(0, 2) + ':' + digits.substr(2, 2) + ':' + digits.substr(4), ""));
        other.devices.push_back(shared("DEV_020000" + digits, ""));
    }
    search(0, {ours});
    search(1, {other});
    EXPECT_EQ(catalogue.takeCameras().size(), 1000U);
    search(1, {network("net", {})});
    EXPECT_EQ(change(), none) << "the cameras were hidden";
    EXPECT_EQ(catalogue.findInterface(1, "net")->devices.size(), 0U) << "hidden cameras are not held";
}
