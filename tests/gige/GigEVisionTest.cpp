// These tests run GigE Vision discovery with the built producer. The GigEVision tests run in a network
// namespace that contains only lo, the CameraNetworks tests in a namespace that with-camera-networks sets up.

#include "sdk/gentl/ListChangeExtension.h"
#include "tests/gige/FakeCamera.h"
#include "tests/producer/ProducerSession.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <poll.h>
#include <unistd.h>

using namespace GenTL;

namespace {

/// The sorted pairs of interface ID and serial number. The camera STRAY answers on two network interfaces,
/// and the first answer decides which one lists it, so its interface is always `anyInterface`.
using Cameras = std::vector<std::pair<std::string, std::string>>;

const std::string anyInterface = "any";

/// A consumer that keeps the interfaces of the producer open.
class CameraLister
{
public:
    const ProducerSession &session() const { return m_session; }
    IF_HANDLE handle(const std::string &interfaceId) const { return m_handles.at(interfaceId); }

    /// Searches until the list is as expected, but not longer than a minute. Returns the last list.
    Cameras await(const Cameras &expected)
    {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::minutes(1);
        Cameras cameras = list(500);
        while (cameras != expected && std::chrono::steady_clock::now() < deadline)
            cameras = list(500);
        return cameras;
    }

    /// Collects the list whenever the producer reports a change, until the list is as expected or the
    /// producer has reported no change for a minute. Returns the last list.
    Cameras awaitReport(const Cameras &expected)
    {
        const auto function
            = reinterpret_cast<ListChangedFunction *>(m_session.producer().symbol(listChangedFunctionName));
        const int descriptor = function();
        pollfd change{descriptor, POLLIN, 0};
        Cameras cameras = list(0);
        while (cameras != expected && poll(&change, 1, 60000) == 1) {
            std::uint64_t count = 0;
            EXPECT_EQ(read(descriptor, &count, sizeof count), 8);
            cameras = list(0);
        }
        return cameras;
    }

    /// Returns the access status of a camera of the last list.
    std::int32_t accessStatus(const std::string &serial) const
    {
        const std::string deviceId = "Aravis-Fake-" + serial;
        return readNumber(infoCall(m_session.producer().IFGetDeviceInfo, handle(m_interfaces.at(serial)),
                              deviceId.c_str(), DEVICE_INFO_ACCESS_STATUS),
            INFO_DATATYPE_INT32);
    }

private:
    Cameras list(std::uint64_t timeout)
    {
        m_session.updateInterfaces();
        for (const std::string &id : m_session.interfaceIds()) {
            if (m_handles.count(id) == 0)
                m_handles[id] = m_session.open(id);
        }
        Cameras cameras;
        for (const auto &[interface, handle] : m_handles) {
            EXPECT_EQ(m_session.producer().IFUpdateDeviceList(handle, nullptr, timeout), GC_ERR_SUCCESS);
            for (const std::string &id : m_session.deviceIds(handle)) {
                const std::string serial = m_session.deviceString(handle, id, DEVICE_INFO_SERIAL_NUMBER);
                cameras.emplace_back(serial == "STRAY" ? anyInterface : interface, serial);
                m_interfaces[serial] = interface;
            }
        }
        std::sort(cameras.begin(), cameras.end());
        return cameras;
    }

    const ProducerSession m_session{UNIVERSAL_GEV_FILE};
    std::map<std::string, IF_HANDLE> m_handles;
    std::map<std::string, std::string> m_interfaces; // The interface ID of every serial number.
};

const Cameras loopbackCamera{{"127.0.0.1", "LOOP1"}};
const Cameras allCameras{{"10.77.1.1", "CARD1"}, {"10.77.2.1", "CARD2"}, {anyInterface, "STRAY"}};

} // namespace

TEST(GigEVision, reconnectedCameraHasTheSameId)
{
    CameraLister lister;
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(lister.await({}), Cameras{});
        const FakeCamera camera({"--serial", "LOOP1"});
        ASSERT_EQ(lister.await(loopbackCamera), loopbackCamera);
        // The hardware address of the fake camera is all zeros, so the ID consists of other fields.
        EXPECT_EQ(lister.session().deviceIds(lister.handle("127.0.0.1")).at(0), "Aravis-Fake-LOOP1");
    }
}

TEST(CameraNetworks, cameraOfAnotherSubnetIsListedWithoutAccess)
{
    CameraLister lister;
    ASSERT_EQ(lister.await(allCameras), allCameras);
    EXPECT_EQ(lister.accessStatus("CARD2"), DEVICE_ACCESS_STATUS_UNKNOWN);
    EXPECT_EQ(lister.accessStatus("STRAY"), DEVICE_ACCESS_STATUS_NOACCESS);
}

TEST(CameraNetworks, cameraDisappearsAndReturnsWithItsNetworkInterface)
{
    CameraLister lister;
    ASSERT_EQ(lister.await(allCameras), allCameras);
    ASSERT_EQ(std::system("ip link set card1 down"), 0);
    const Cameras left{{"10.77.2.1", "CARD2"}, {anyInterface, "STRAY"}};
    EXPECT_EQ(lister.awaitReport(left), left);
    EXPECT_EQ(
        lister.session().interfaceIds(), (std::vector<std::string>{"127.0.0.1", "10.77.2.1", "10.77.3.1"}));
    ASSERT_EQ(std::system("ip link set card1 up"), 0);
    EXPECT_EQ(lister.awaitReport(allCameras), allCameras);
}

TEST(CameraNetworks, cameraOnTwoNetworkInterfacesIsListedOnce)
{
    CameraLister lister;
    ASSERT_EQ(lister.await(allCameras), allCameras);
    ASSERT_EQ(std::system("ip address delete 10.77.2.1/24 dev card2"), 0);
    const Cameras onCard3{{"10.77.1.1", "CARD1"}, {"10.77.3.1", "CARD2"}, {anyInterface, "STRAY"}};
    EXPECT_EQ(lister.awaitReport(onCard3), onCard3);
    EXPECT_EQ(lister.accessStatus("CARD2"), DEVICE_ACCESS_STATUS_NOACCESS);
    ASSERT_EQ(std::system("ip address add 10.77.2.1/24 broadcast + dev card2"), 0);
    EXPECT_EQ(lister.awaitReport(allCameras), allCameras);
}
