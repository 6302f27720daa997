#include "tests/device/DeviceTest.h"

#include <atomic>
#include <thread>

using namespace CvxCPP;

namespace {

const std::string camera = "Orvelle Kx200 (24030117): ";

class NodesTest : public DeviceTest
{
protected:
    std::shared_ptr<Device> device = opened();
};

} // namespace

TEST_F(NodesTest, valuesOfEveryTypeAreReadAndWritten)
{
    EXPECT_TRUE(device->WriteInteger("Width", 100));
    EXPECT_TRUE(device->WriteFloat("Gain", 2.5));
    EXPECT_TRUE(device->WriteBoolean("ReverseX", true));
    EXPECT_TRUE(device->WriteString("UserName", "Ä"));
    EXPECT_TRUE(device->WriteString("GainSelector", "Red"));
    EXPECT_TRUE(device->WriteRegister("Table", {0, 255}));

    std::int64_t integer = 0;
    double number = 0;
    bool boolean = false;
    std::string text;
    std::vector<std::uint8_t> bytes;
    EXPECT_TRUE(device->ReadInteger("Width", integer));
    EXPECT_EQ(integer, 100);
    EXPECT_TRUE(device->ReadFloat("Gain", number));
    EXPECT_EQ(number, 1.0) << "the gain of the other selector value";
    EXPECT_TRUE(device->ReadBoolean("ReverseX", boolean));
    EXPECT_TRUE(boolean);
    EXPECT_TRUE(device->ReadString("UserName", text));
    EXPECT_EQ(text, "Ä");
    EXPECT_TRUE(device->ReadRegister("Table", bytes));
    EXPECT_EQ(bytes, (std::vector<std::uint8_t>{0, 255}));
    EXPECT_EQ(device->ReadInteger("Gain", integer).code, CvxErrorWrongType);
    EXPECT_EQ(integer, 100);
}

TEST_F(NodesTest, valuesAreReadAndWrittenAsTexts)
{
    std::string text;
    EXPECT_TRUE(device->WriteText("Width", "0x40"));
    EXPECT_TRUE(device->ReadText("Width", text));
    EXPECT_EQ(text, "64");
    EXPECT_TRUE(device->WriteText("GainSelector", "Red"));
    EXPECT_TRUE(device->ReadText("Table", text));
    EXPECT_EQ(text, "0102ff");
    const CvxResult result = device->WriteText("Width", "wide");
    EXPECT_EQ(result.code, CvxErrorInvalidParameter);
    EXPECT_EQ(result.text, camera + "\"Width\" cannot be written: \"wide\" is not a value of this feature.");
    EXPECT_EQ(device->WriteText("Do", "1").code, CvxErrorWrongType);
    EXPECT_EQ(device->WriteText("None", "1").code, CvxErrorNotFound);
}

TEST_F(NodesTest, statesAreRead)
{
    std::vector<NodeState> states;
    ASSERT_TRUE(device->ReadStates({"Gain", "Width"}, states));
    ASSERT_EQ(states.size(), 2U);
    EXPECT_EQ(states[0].name, "Gain");
    EXPECT_EQ(states[1].value, NodeValue(std::int64_t(200)));
    const CvxResult result = device->ReadStates({"Gain", "None"}, states);
    EXPECT_EQ(result.code, CvxErrorNotFound);
    EXPECT_EQ(result.text, camera + "\"None\" does not exist.");
    EXPECT_EQ(states.size(), 2U);
}

TEST_F(NodesTest, argumentsAreCheckedBeforeTheHostIsAsked)
{
    const auto before = log();
    NodeValue value;
    EXPECT_EQ(device->Read("None", value).code, CvxErrorNotFound);
    EXPECT_EQ(device->Read("Control", value).code, CvxErrorWrongType);
    EXPECT_EQ(device->Read("Do", value).code, CvxErrorWrongType);
    EXPECT_EQ(device->Write("None", std::int64_t(1)).code, CvxErrorNotFound);
    EXPECT_EQ(device->Write("Control", std::int64_t(1)).code, CvxErrorWrongType);
    EXPECT_EQ(device->Write("Do", std::int64_t(1)).code, CvxErrorWrongType);
    EXPECT_EQ(device->Write("Width", {}).code, CvxErrorWrongType) << "this would execute a command";
    EXPECT_EQ(device->Execute("None").code, CvxErrorNotFound);
    EXPECT_EQ(device->Execute("Width").code, CvxErrorWrongType);
    EXPECT_EQ(log(), before);
    EXPECT_TRUE(device->Execute("Do"));
    EXPECT_EQ(log().back(), "writeValue Do ");
}

TEST_F(NodesTest, failuresOfTheHostAreReturned)
{
    const CvxResult result = device->WriteInteger("Width", 201);
    EXPECT_EQ(result.code, CvxErrorOutOfRange);
    EXPECT_EQ(result.text, camera + "\"Width\" cannot be written: the value is too large.");
    setScript("readValue Gain fail 3 \"Gain\" is not available.\nreadStates fail 0 No.\n");
    double gain = 7;
    EXPECT_EQ(device->ReadFloat("Gain", gain).code, CvxErrorNotAvailable);
    EXPECT_EQ(gain, 7);
    std::vector<NodeState> states;
    EXPECT_EQ(device->ReadStates({"Gain"}, states).code, CvxErrorDevice);
    std::uint32_t reopenCount = 0;
    EXPECT_EQ(device->GetState(reopenCount), DeviceState::Open);
}

TEST_F(NodesTest, observersAreNotifiedOfDependentNodes)
{
    const auto observer = std::make_shared<DeviceRecorder>();
    ASSERT_TRUE(device->AddObserver(observer));
    EXPECT_EQ(device->AddObserver(nullptr).code, CvxErrorInvalidParameter);
    EXPECT_TRUE(device->WriteInteger("Width", 100));
    EXPECT_TRUE(observer->waitFor("nodes OffsetX"));
    EXPECT_TRUE(act(*device, "notify Temperature"));
    EXPECT_TRUE(observer->waitFor("Temperature"));
    ASSERT_TRUE(device->RemoveObserver(observer));
    EXPECT_TRUE(device->RemoveObserver(observer));
    EXPECT_TRUE(waitUntil([&] { return observer.use_count() == 1; }));
}

TEST_F(NodesTest, observerMayUseTheDevice)
{
    class Reader : public DeviceRecorder
    {
    public:
        explicit Reader(Device &device) : m_device(device) { }
        void NodesChanged(const std::vector<std::string> &names) override
        {
            std::string text;
            EXPECT_TRUE(m_device.ReadText("Width", text));
            EXPECT_EQ(m_device.Close().code, CvxErrorFailed);
            DeviceRecorder::NodesChanged({names.front() + text});
        }

    private:
        Device &m_device;
    };
    const auto observer = std::make_shared<Reader>(*device);
    ASSERT_TRUE(device->AddObserver(observer));
    EXPECT_TRUE(device->WriteInteger("Width", 100));
    EXPECT_TRUE(observer->waitFor("nodes OffsetX100"));
}

TEST_F(NodesTest, severalThreadsMayUseTheDevice)
{
    std::atomic<int> failures = 0;
    std::vector<std::thread> threads;
    for (std::int64_t thread = 0; thread < 4; ++thread) {
        threads.emplace_back([&, thread] {
            for (std::int64_t i = 0; i < 100; ++i) {
                std::int64_t value = 0;
                failures += device->WriteInteger("OffsetX", 0) ? 0 : 1;
                failures += device->WriteInteger("Width", thread + 1) ? 0 : 1;
                failures += device->ReadInteger("Width", value) && value >= 1 && value <= 4 ? 0 : 1;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(failures, 0);
}
