#include "sdk/camerahost/AcquisitionControl.h"

#include <gtest/gtest.h>
#include <map>
#include <set>
#include <utility>

using namespace CvxCPP;

namespace {

using Strings = std::vector<std::string>;

/// A camera with these features, which logs what is written and executed.
class FakeNodes : public NodeMap
{
public:
    const std::vector<NodeInfo> &nodes() const override { return m_nodes; }
    std::variant<NodeState, Failure> state(const std::string &) override { return Failure(); }
    std::variant<NodeValue, Failure> read(const std::string &name) override
    {
        const auto value = values.find(name);
        if (value == values.end())
            return Failure{DeviceFailure::NotFound, name};
        return value->second;
    }
    std::optional<Failure> write(const std::string &, const NodeValue &) override { return Failure(); }
    Strings dependents(const std::string &) const override { return {}; }
    std::optional<std::int64_t> readInteger(const std::string &name) override
    {
        reads.push_back(name);
        const auto value = values.find(name);
        const auto *const number
            = value == values.end() ? nullptr : std::get_if<std::int64_t>(&value->second);
        return number ? std::optional(*number) : std::nullopt;
    }
    bool writeInteger(const std::string &name, std::int64_t value) override
    {
        log.push_back(name + '=' + std::to_string(value));
        return false;
    }
    bool execute(const std::string &name) override
    {
        log.push_back(name);
        return refused.count(name) == 0;
    }
    std::vector<ChunkFeature> chunkFeatures() override { return std::vector<ChunkFeature>(2); }
    void setWatching(bool) override { }
    void setStreaming(bool isStreaming) override { log.push_back(isStreaming ? "streaming" : "idle"); }

    void addNode(const std::string &name, const Strings &selectors = {})
    {
        m_nodes.emplace_back();
        m_nodes.back().name = name;
        m_nodes.back().selectors = selectors;
    }

    std::map<std::string, NodeValue> values;
    std::set<std::string> refused;
    Strings log;
    Strings reads; // The features that readInteger() was called for.

private:
    std::vector<NodeInfo> m_nodes;
};

class StreamControl : public testing::Test
{
protected:
    void controlTransfer(const std::string &mode)
    {
        nodes.addNode("TransferControlMode");
        nodes.values["TransferControlMode"] = mode;
    }

    FakeNodes nodes;
    AcquisitionControl control{nodes, StreamRole::Controller};
};

} // namespace

TEST_F(StreamControl, featuresAreLockedDuringTheStream)
{
    control.lock();
    control.unlock();
    EXPECT_EQ(nodes.log, (Strings{"TLParamsLocked=1", "streaming", "TLParamsLocked=0", "idle"}));
}

TEST_F(StreamControl, cameraIsStartedAndStopped)
{
    controlTransfer("Basic");
    EXPECT_FALSE(control.start());
    control.stop();
    EXPECT_EQ(nodes.log, (Strings{"AcquisitionStart", "AcquisitionStop"}));
}

TEST_F(StreamControl, watcherWritesNothing)
{
    controlTransfer("UserControlled");
    AcquisitionControl watcher(nodes, StreamRole::Watcher);
    watcher.lock();
    EXPECT_FALSE(watcher.start());
    watcher.stop();
    watcher.unlock();
    EXPECT_EQ(nodes.log, Strings());
}

TEST_F(StreamControl, transferIsStartedLastAndStoppedFirst)
{
    controlTransfer("UserControlled");
    EXPECT_FALSE(control.start());
    control.stop();
    EXPECT_EQ(nodes.log, (Strings{"AcquisitionStart", "TransferStart", "TransferStop", "AcquisitionStop"}));
}

TEST_F(StreamControl, refusedCommandIsAFailureOnlyIfTheCameraHasIt)
{
    nodes.refused = {"AcquisitionStart"};
    EXPECT_FALSE(control.start());
    nodes.addNode("AcquisitionStart");
    EXPECT_NE(control.start().value_or("").find("AcquisitionStart"), std::string::npos);
    nodes.refused = {"TransferStart"};
    EXPECT_FALSE(control.start());
    controlTransfer("UserControlled");
    EXPECT_NE(control.start().value_or("").find("TransferStart"), std::string::npos);
}

TEST_F(StreamControl, configuredPictureIgnoresAbsurdValues)
{
    nodes.values
        = {{"Width", std::int64_t(640)}, {"Height", std::int64_t(1) << 40U}, {"OffsetX", std::int64_t(-4)},
            {"OffsetY", std::int64_t(8)}, {"PixelFormat", std::int64_t(0x01080001)}};
    const PictureLayout layout = control.configuredPicture();
    EXPECT_EQ(layout.picture.width, 640U);
    EXPECT_EQ(layout.picture.height, 0U);
    EXPECT_EQ(layout.picture.pixelFormat, 0x01080001U);
    EXPECT_EQ(layout.offsetX, 0U);
    EXPECT_EQ(layout.offsetY, 8U);
}

TEST_F(StreamControl, formatChangesWithAFeatureThatHasNoSelector)
{
    nodes.addNode("Width", {"RegionSelector"});
    nodes.addNode("PixelFormat");
    nodes.values = {{"PayloadSize", std::int64_t(3072)}, {"Width", std::int64_t(64)},
        {"PixelFormat", std::int64_t(0x01080001)}};
    const auto before = control.imageFormat();
    EXPECT_FALSE(control.hasFormatChanged(before));
    nodes.values["Width"] = std::int64_t(32); // Another region is selected.
    nodes.values["Height"] = std::int64_t(48); // Could not be read before.
    EXPECT_FALSE(control.hasFormatChanged(before));
    for (const char *feature : {"PayloadSize", "PixelFormat"}) {
        const NodeValue value = std::exchange(nodes.values[feature], NodeValue(std::int64_t(1)));
        EXPECT_TRUE(control.hasFormatChanged(before)) << feature;
        nodes.values[feature] = value;
    }
}

TEST_F(StreamControl, nothingIsReadAfterTheFirstFailure)
{
    nodes.values = {{"PayloadSize", std::int64_t(3072)}, {"Width", std::int64_t(64)},
        {"PixelFormat", std::int64_t(0x01080001)}};
    const auto before = control.imageFormat();
    nodes.values.clear();
    nodes.reads.clear();
    EXPECT_FALSE(control.hasFormatChanged(before));
    EXPECT_EQ(nodes.reads, Strings{"PayloadSize"});
}

TEST_F(StreamControl, thereAreNoChunksWhileTheCameraDoesNotSendThem)
{
    EXPECT_EQ(control.chunkFeatures().size(), 2U) << "the camera has no switch";
    nodes.values["ChunkModeActive"] = true;
    EXPECT_EQ(control.chunkFeatures().size(), 2U);
    nodes.values["ChunkModeActive"] = false;
    EXPECT_TRUE(control.chunkFeatures().empty());
}
