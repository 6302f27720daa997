#include "tests/sdk/support/SystemTest.h"

#include <algorithm>
#include <atomic>
#include <stdexcept>

using namespace CvxCPP;
using namespace std::chrono_literals;

using Calls = std::vector<std::string>;

class PluggingTest : public SystemTest
{
protected:
    /// The system has looked at least twice since now.
    void awaitTwoLooks(const std::string &producer)
    {
        const std::size_t before = countCalls(producer, "IFUpdateDeviceList");
        EXPECT_TRUE(waitUntil([&] { return countCalls(producer, "IFUpdateDeviceList") >= before + 3; }));
    }
};

TEST_F(PluggingTest, ACameraThatComesOrGoesIsAnnouncedOnce)
{
    addProducer("a", cameras(1));
    start();
    const auto recorder = recordCameras();
    list();
    setScript("a", cameras(2));
    ASSERT_TRUE(waitUntil([&] { return !recorder->calls().empty(); }));
    setScript("a", "interface net0|N|GEV\ndevice net0|A2|Orvelle|Model 2|SN2|Camera 2|GEV\n");
    ASSERT_TRUE(waitUntil([&] { return recorder->calls().size() >= 2; }));
    awaitTwoLooks("a");
    EXPECT_EQ(recorder->calls(), (Calls{"+a.cti/net0/A2", "-a.cti/net0/A1"}));
}

TEST_F(PluggingTest, WithoutAChangeThereIsNoCall)
{
    addProducer("a", cameras(3));
    start();
    const auto recorder = recordCameras();
    list();
    awaitTwoLooks("a");
    std::string script = "interface net0|Another name|GEV\n";
    for (const char *number : {"3", "1", "2"}) // Another order: the same cameras.
        script += std::string("device net0|A") + number + "|Orvelle|Model " + number + "|SN" + number
            + "|Camera " + number + "|GEV\n";
    setScript("a", script);
    awaitTwoLooks("a");
    EXPECT_EQ(recorder->calls(), Calls{});
}

TEST_F(PluggingTest, ACameraWhoseTextsChangeGoesAndComes)
{
    const std::string other = "device n|E|V|M|S|N|GEV\n"; // Stays as it is.
    addProducer("a", "interface n|N|GEV\ndevice n|D|||||\n" + other);
    start();
    const auto recorder = recordCameras();
    ASSERT_EQ(list().size(), 2U);
    Calls expected;
    for (const char *texts : {"V||||", "V|M|||", "V|M|S||", "V|M|S|N|", "V|M|S|N|U3V"}) {
        setScript("a", std::string("interface n|N|GEV\ndevice n|D|") + texts + '\n' + other);
        expected.insert(expected.end(), {"-a.cti/n/D", "+a.cti/n/D"});
        ASSERT_TRUE(waitUntil([&] { return recorder->calls().size() >= expected.size(); })) << texts;
    }
    awaitTwoLooks("a");
    EXPECT_EQ(recorder->calls(), expected);
}

TEST_F(PluggingTest, ChangedTextsAreListed)
{
    addProducer("a", "interface n|N|GEV\ndevice n|D|V|M|S|Old|GEV\n");
    start();
    ASSERT_EQ(nameOf(*list().at(0)), "Old");
    setScript("a", "interface n|N|GEV\ndevice n|D|V|M|S|New|GEV\n");
    EXPECT_TRUE(waitUntil([&] { return nameOf(*list().at(0)) == "New"; }));
}

TEST_F(PluggingTest, WhatIsThereAtTheStartIsAnnouncedToAProgramThatDoesNotList)
{
    addProducer("a", cameras(2));
    start();
    const auto recorder = recordCameras();
    ASSERT_TRUE(waitUntil([&] { return recorder->calls().size() >= 2; }));
    EXPECT_EQ(recorder->calls(), (Calls{"+a.cti/net0/A1", "+a.cti/net0/A2"}));
}

TEST_F(PluggingTest, ACameraThatAListShowsFirstIsAnnouncedAllTheSame)
{
    options.pollInterval = 1h;
    addProducer("a", cameras(1));
    start();
    const auto recorder = recordCameras();
    list();
    setScript("a", cameras(2));
    EXPECT_EQ(list().size(), 2U);
    EXPECT_TRUE(waitUntil([&] { return recorder->calls() == Calls{"+a.cti/net0/A2"}; }));
}

TEST_F(PluggingTest, CamerasWithOneIdOnTwoInterfacesAreTwo)
{
    const std::string both = "interface x|X|GEV\ninterface y|Y|GEV\ndevice x|1\n";
    addProducer("a", both + "device y|1\n");
    start();
    const auto recorder = recordCameras();
    ASSERT_EQ(list().size(), 2U);
    setScript("a", both);
    ASSERT_TRUE(waitUntil([&] { return !recorder->calls().empty(); }));
    awaitTwoLooks("a");
    EXPECT_EQ(recorder->calls(), Calls{"-a.cti/y/1"});
}

TEST_F(PluggingTest, InterfacesComeAndGoToo)
{
    addProducer("a", "interface x|X|GEV\n");
    start();
    const auto recorder = std::make_shared<InterfaceRecorder>();
    ASSERT_EQ(system->RegisterInterfaceListObserver(recorder), CvxErrorSuccess);
    list();
    setScript("a", "interface x|X|GEV\ninterface y|Y|GEV\n");
    ASSERT_TRUE(waitUntil([&] { return recorder->calls() == "+"; }));
    setScript("a", "interface y|Y|GEV\n");
    ASSERT_TRUE(waitUntil([&] { return recorder->calls() == "+-"; }));
    awaitTwoLooks("a");
    EXPECT_EQ(recorder->calls(), "+-");
    EXPECT_EQ(countCalls("a", "IFClose"), 1U) << "an interface that is gone is closed";
    EXPECT_TRUE(reports().empty());
}

TEST_F(PluggingTest, EveryObserverIsCalled)
{
    addProducer("a", cameras(1));
    start();
    list();
    const auto one = recordCameras(), other = recordCameras();
    setScript("a", cameras(0));
    EXPECT_TRUE(waitUntil([&] { return one->calls().size() == 1 && other->calls().size() == 1; }));
}

TEST_F(PluggingTest, AnObserverMayUseTheSystem)
{
    addProducer("a", cameras(1));
    start();
    list();
    std::atomic<std::size_t> listed{0};
    std::atomic<CvxError> error{CvxErrorFailed};
    const auto recorder = std::make_shared<CameraRecorder>();
    recorder->onCall = [&] {
        const Cameras found = list();
        error = feature(*interfaceOf(found, 0), "DeviceUpdateList")->RunCommand();
        listed = found.size();
    };
    ASSERT_EQ(system->RegisterCameraListObserver(recorder), CvxErrorSuccess);
    setScript("a", cameras(2));
    EXPECT_TRUE(waitUntil([&] { return listed == 2; }));
    EXPECT_EQ(error, CvxErrorSuccess);
    stop();
}

TEST_F(PluggingTest, AnObserverThatThrowsHarmsNobody)
{
    addProducer("a", cameras(1));
    start();
    list();
    const auto thrower = std::make_shared<CameraRecorder>();
    thrower->onCall = [] { throw std::runtime_error("observer"); };
    ASSERT_EQ(system->RegisterCameraListObserver(thrower), CvxErrorSuccess);
    const auto recorder = recordCameras();
    setScript("a", cameras(2));
    EXPECT_TRUE(waitUntil([&] { return recorder->calls().size() == 1; }));
    setScript("a", cameras(1));
    EXPECT_TRUE(waitUntil([&] { return recorder->calls().size() == 2 && thrower->calls().size() == 2; }));
}

TEST_F(PluggingTest, ASlowObserverHoldsUpNoList)
{
    addProducer("a", cameras(1));
    start();
    list();
    std::atomic<bool> isReleased{false};
    const auto slow = std::make_shared<CameraRecorder>();
    slow->onCall = [&] { waitUntil([&] { return isReleased.load(); }); };
    ASSERT_EQ(system->RegisterCameraListObserver(slow), CvxErrorSuccess);
    setScript("a", cameras(2));
    ASSERT_TRUE(waitUntil([&] { return slow->calls().size() == 1; }));
    setScript("a", cameras(3));
    EXPECT_TRUE(waitUntil([&] { return list().size() == 3; }, 5s));
    isReleased = true;
    EXPECT_TRUE(waitUntil([&] { return slow->calls().size() == 2; }));
}

TEST_F(PluggingTest, NothingIsAnnouncedRightAfterAListWasHandedOut)
{
    options.notificationHold = 400ms;
    addProducer("a", cameras(1));
    start();
    const auto recorder = recordCameras();
    setScript("a", cameras(2));
    list();
    const auto listedAt = std::chrono::steady_clock::now();
    setScript("a", cameras(3));
    ASSERT_TRUE(waitUntil([&] { return !recorder->calls().empty(); }));
    EXPECT_GE(std::chrono::steady_clock::now() - listedAt, 390ms);
}

TEST_F(PluggingTest, AProgramThatListsAllTheTimeIsToldAllTheSame)
{
    options.notificationHold = 250ms; // As in a program.
    addProducer("a", cameras(1));
    start();
    const auto recorder = recordCameras();
    list();
    setScript("a", cameras(2));
    EXPECT_TRUE(waitUntil([&] {
        list();
        return !recorder->calls().empty();
    }));
}

TEST_F(PluggingTest, AfterTheEndObserversAreDropped)
{
    addProducer("a", cameras(1));
    start();
    std::weak_ptr<CameraRecorder> recorder = recordCameras();
    auto interfaceRecorder = std::make_shared<InterfaceRecorder>();
    const std::weak_ptr<InterfaceRecorder> weakInterfaceRecorder = interfaceRecorder;
    ASSERT_EQ(system->RegisterInterfaceListObserver(interfaceRecorder), CvxErrorSuccess);
    interfaceRecorder.reset();
    EXPECT_FALSE(recorder.expired());
    stop();
    EXPECT_TRUE(recorder.expired());
    EXPECT_TRUE(weakInterfaceRecorder.expired());
}
