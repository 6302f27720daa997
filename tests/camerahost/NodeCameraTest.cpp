#include <arv.h>

#include "CvxCPP/CvxCPP.h"
#include "sdk/camerahost/NodeMap.h"
#include "sdk/camerahost/OpenedDevice.h"
#include "sdk/camerahost/ProducerPort.h"
#include "sdk/camerahost/RegisterDescription.h"
#include "tests/sdk/support/TemporaryDirectory.h"

#include <cstdlib>
#include <gtest/gtest.h>

using namespace CvxCPP;

namespace {

/// Checks that every feature that is available can be read, and its limits too.
void expectReadable(NodeMap &map, std::size_t minNodes)
{
    EXPECT_GE(map.nodes().size(), minNodes);
    for (const NodeInfo &node : map.nodes()) {
        const auto result = map.state(node.name);
        const auto &state = std::get<NodeState>(result);
        if (state.access == NodeAccess::ReadOnly || state.access == NodeAccess::ReadWrite) {
            EXPECT_EQ(state.problem, "") << node.name;
            const bool hasValue = !std::holds_alternative<std::monostate>(state.value);
            EXPECT_EQ(hasValue, node.type != NodeType::Category && node.type != NodeType::Command)
                << node.name;
        }
        EXPECT_EQ(state.problem.find("description is wrong"), std::string::npos)
            << node.name << state.problem;
    }
}

/// The fake camera of libaravis, which is part of the library.
class EngineFakeCamera : public RegisterPort
{
public:
    EngineFakeCamera()
    {
        arv_enable_interface("Fake");
        m_device = arv_open_device("Fake_1", nullptr);
    }
    ~EngineFakeCamera() override { g_clear_object(&m_device); }

    std::string description() const
    {
        std::size_t size = 0;
        const char *const text = arv_device_get_genicam_xml(m_device, &size);
        return {text, size};
    }

    std::optional<Problem> read(std::uint64_t address, void *data, std::size_t size) override
    {
        return toProblem(
            arv_device_read_memory(m_device, address, static_cast<guint32>(size), data, nullptr));
    }

    std::optional<Problem> write(std::uint64_t address, const void *data, std::size_t size) override
    {
        return toProblem(arv_device_write_memory(
            m_device, address, static_cast<guint32>(size), const_cast<void *>(data), nullptr));
    }

private:
    static std::optional<Problem> toProblem(gboolean isDone)
    {
        return isDone ? std::nullopt : std::optional(Problem{"memory", -1, ""});
    }

    ArvDevice *m_device = nullptr;
};

} // namespace

TEST(NodeCameraTest, fakeCameraOfAnotherProjectIsUnderstood)
{
    EngineFakeCamera camera;
    const auto created = NodeMap::create(camera, camera.description());
    ASSERT_TRUE(std::holds_alternative<std::unique_ptr<NodeMap>>(created));
    NodeMap &map = *std::get<std::unique_ptr<NodeMap>>(created);
    expectReadable(map, 30);
    EXPECT_FALSE(map.write("Width", std::int64_t(256)));
    EXPECT_EQ(map.readInteger("Width"), 256);
    EXPECT_EQ(map.readInteger("PayloadSize"), 256 * map.readInteger("Height").value_or(0));
    EXPECT_FALSE(map.write("ExposureTimeAbs", 5000.0));
    EXPECT_EQ(std::get<NodeValue>(map.read("ExposureTimeAbs")), NodeValue(5000.0));
}

TEST(NodeCameraTest, simulatedCamerasAreUnderstood)
{
    const TemporaryDirectory directory;
    setenv("XDG_RUNTIME_DIR", directory.path().c_str(), 1);
    const std::pair<const char *, const char *> cameras[]
        = {{"Sim0-GigE", "SIM-GEV-24030117"}, {"Sim1-CL", "SIM-CL-K1902207"}};
    for (const auto &[interface, id] : cameras) {
        OpenedDevice device;
        const auto failure = device.open(SIMULATOR, {interface, id, CvxAccessControl});
        ASSERT_FALSE(failure) << failure->text;
        const auto description = fetchRegisterDescription(device.library(), device.port(), SIMULATOR);
        ASSERT_TRUE(std::holds_alternative<std::string>(description));
        ProducerPort port(device.library(), device.port());
        const auto created = NodeMap::create(port, std::get<std::string>(description));
        ASSERT_TRUE(std::holds_alternative<std::unique_ptr<NodeMap>>(created));
        NodeMap &map = *std::get<std::unique_ptr<NodeMap>>(created);
        expectReadable(map, 60);

        EXPECT_TRUE(map.writeInteger("TLParamsLocked", 1));
        map.setStreaming(true);
        EXPECT_EQ(std::get<NodeState>(map.state("Width")).lockReason, LockReason::StreamRunning);
        EXPECT_TRUE(map.writeInteger("TLParamsLocked", 0));
        EXPECT_FALSE(map.write("Width", std::int64_t(640)));
        EXPECT_EQ(map.readInteger("Width"), 640);
        EXPECT_FALSE(map.write("ExposureAuto", std::string("Continuous")));
        EXPECT_EQ(std::get<NodeState>(map.state("ExposureTime")).lockingNode, "ExposureAuto");
        EXPECT_FALSE(map.chunkFeatures().empty());
        device.close();
    }
    unsetenv("XDG_RUNTIME_DIR");
}
