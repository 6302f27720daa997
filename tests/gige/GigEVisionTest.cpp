// These tests run GigE Vision discovery with the built producer. The GigEVision tests run in a network
// namespace that contains only lo, the CameraNetworks tests in a namespace that with-camera-networks sets up.

#include "tests/producer/ProducerSession.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <spawn.h>
#include <sys/wait.h>

using namespace GenTL;

namespace {

/// The sorted pairs of interface ID and serial number.
using Cameras = std::vector<std::pair<std::string, std::string>>;

/// A consumer that keeps the interfaces of the producer open.
class CameraLister
{
public:
    const ProducerSession &session() const { return m_session; }
    IF_HANDLE handle(const std::string &interfaceId) const { return m_handles.at(interfaceId); }

    /// Enumerates the cameras until the list is as expected, but not longer than a minute. Returns the last
    /// list.
    Cameras await(const Cameras &expected)
    {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::minutes(1);
        Cameras cameras = list();
        while (cameras != expected && std::chrono::steady_clock::now() < deadline)
            cameras = list();
        return cameras;
    }

private:
    Cameras list()
    {
        m_session.updateInterfaces();
        for (const std::string &id : m_session.interfaceIds()) {
            if (m_handles.count(id) == 0)
                m_handles[id] = m_session.open(id);
        }
        Cameras cameras;
        for (const auto &[interface, handle] : m_handles) {
            m_session.updateDevices(handle);
            for (const std::string &id : m_session.deviceIds(handle))
                cameras.emplace_back(
                    interface, m_session.deviceString(handle, id, DEVICE_INFO_SERIAL_NUMBER));
        }
        std::sort(cameras.begin(), cameras.end());
        return cameras;
    }

    const ProducerSession m_session{UNIVERSAL_GEV_FILE};
    std::map<std::string, IF_HANDLE> m_handles;
};

/// Runs Aravis's fake GigE Vision camera as a process with the address 127.0.0.1 and the serial number LOOP1.
class FakeCamera
{
public:
    FakeCamera()
    {
        const char *const arguments[] = {"setpriv", "--pdeathsig", "KILL", FAKE_CAMERA_PROGRAM, "--interface",
            "127.0.0.1", "--serial", "LOOP1", nullptr};
        EXPECT_EQ(posix_spawnp(&m_process, arguments[0], nullptr, nullptr,
                      const_cast<char *const *>(arguments), environ),
            0);
    }
    ~FakeCamera()
    {
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
    FakeCamera(const FakeCamera &) = delete;
    FakeCamera &operator=(const FakeCamera &) = delete;

private:
    pid_t m_process = 0;
};

const Cameras loopbackCamera{{"127.0.0.1", "LOOP1"}};

} // namespace

TEST(GigEVision, reconnectedCameraHasTheSameId)
{
    CameraLister lister;
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(lister.await({}), Cameras{});
        const FakeCamera camera;
        ASSERT_EQ(lister.await(loopbackCamera), loopbackCamera);
        // The hardware address of the fake camera is all zeros, so the ID consists of other fields.
        EXPECT_EQ(lister.session().deviceIds(lister.handle("127.0.0.1")).at(0), "Aravis-Fake-LOOP1");
    }
}

TEST(CameraNetworks, cameraDisappearsWithItsNetworkInterface)
{
    CameraLister lister;
    const Cameras all{{"10.77.1.1", "CARD1"}, {"10.77.2.1", "CARD2"}, {"10.77.2.1", "STRAY"}};
    ASSERT_EQ(lister.await(all), all);
    ASSERT_EQ(std::system("ip link set card1 down"), 0);
    const Cameras left{{"10.77.2.1", "CARD2"}, {"10.77.2.1", "STRAY"}};
    EXPECT_EQ(lister.await(left), left);
    EXPECT_EQ(lister.session().interfaceIds(), (std::vector<std::string>{"127.0.0.1", "10.77.2.1"}));
}
