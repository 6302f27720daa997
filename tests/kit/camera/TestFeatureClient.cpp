#include "sdk/testing/Gate.h"
#include "tests/kit/camera/OpenableCamera.h"
#include "tools/kit/camera/CameraConnection.h"
#include "tools/kit/camera/FeatureClient.h"

#include <QtTest>

#include <algorithm>

using namespace CvxCPP;

namespace {

QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

using Names = std::vector<std::string>;

/// A client whose camera has some features. The camera is not open yet.
struct Client
{
    Client()
    {
        TestDevice &device = camera->device();
        device.add("ExposureTime", 10000.0);
        device.add("Gain", 1.0);
        device.add("Width", std::int64_t(640));
        device.add("DeviceTemperature", 40.0).info.pollingTime = 1;
        device.add("ExposureTimeAbs", 0.0).state.access = NodeAccess::NotImplemented;
        device.addCommand("TriggerSoftware");
    }

    bool open()
    {
        QSignalSpy loaded(&features, &FeatureClient::nodesLoaded);
        connection.open(OpenableCamera::entry(camera), CvxAccessControl);
        return loaded.wait(10000);
    }

    TestDevice &device() { return camera->device(); }

    NodeValue value(const QString &name) const
    {
        const NodeState *const state = features.state(name);
        return state ? state->value : NodeValue();
    }

    std::shared_ptr<OpenableCamera> camera = std::make_shared<OpenableCamera>("CAM-1");
    CameraConnection connection;
    FeatureClient features{connection};
};

} // namespace

class TestFeatureClient : public QObject
{
    Q_OBJECT

private slots:
    void watchedFeaturesHaveStatesWhenTheNodesAreLoaded();
    void statesAreReadInBatches();
    void changedFeaturesAreReadAgain();
    void unwatchedFeaturesAreNotRead();
    void featuresArePolledWhileTheyAreWatched();
    void lastOfSeveralWritesWins();
    void valueUnderAnotherSelectorIsUnknown();
    void commandKeepsItsPlaceBetweenWrites();
    void refusedWriteIsReported();
    void runningCommandIsFollowed();
    void lostCameraHasNoStates();
    void anotherCameraHasItsOwnFeatures();
    void failedReadIsRepeated();
    void operationsWithoutCameraFail();
    void operationsKeepTheLastWriteBetweenCommands();
    void pollTimesAreDueOnce();
};

void TestFeatureClient::watchedFeaturesHaveStatesWhenTheNodesAreLoaded()
{
    Client client;
    client.features.watch({"Gain"_s, "ExposureTimeAbs"_s, "OnlyOtherCamerasHaveThis"_s});
    QVERIFY(client.features.nodes().isEmpty());
    QVERIFY(client.open());
    QCOMPARE(client.features.nodes().size(), 6);
    QCOMPARE(client.features.info("Width"_s)->type, NodeType::Integer);
    QVERIFY(!client.features.info("OnlyOtherCamerasHaveThis"_s));
    QCOMPARE(client.value("Gain"_s), NodeValue(1.0));
    QVERIFY(!client.features.state("Width"_s));
    QCOMPARE(
        client.features.firstKnown({"Missing"_s, "ExposureTimeAbs"_s, "ExposureTime"_s}), "ExposureTime"_s);
    QCOMPARE(client.features.firstKnown({"Missing"_s}), QString());
}

void TestFeatureClient::statesAreReadInBatches()
{
    Client client;
    client.features.watch({"Gain"_s, "Width"_s});
    QVERIFY(client.open());
    client.features.watch({"ExposureTime"_s});
    client.features.watch({"TriggerSoftware"_s, "Gain"_s});
    QTRY_VERIFY_WITH_TIMEOUT(client.features.state("TriggerSoftware"_s), 10000);
    auto reads = client.device().calls("ReadStates");
    for (Names &names : reads)
        std::sort(names.begin(), names.end());
    QCOMPARE(reads, (std::vector<Names>{{"Gain", "Width"}, {"ExposureTime", "TriggerSoftware"}}));
}

void TestFeatureClient::changedFeaturesAreReadAgain()
{
    Client client;
    client.features.watch({"Gain"_s, "Width"_s, "ExposureTime"_s});
    client.device().setDependents("Gain", {"ExposureTime", "DeviceTemperature"});
    QVERIFY(client.open());
    QSignalSpy changes(&client.features, &FeatureClient::stateChanged);
    client.device().change([](ScriptedDevice &device) { device.set("ExposureTime", 500.0); });
    client.features.write("Gain"_s, 2.0);
    QTRY_COMPARE_WITH_TIMEOUT(client.value("ExposureTime"_s), NodeValue(500.0), 10000);
    QCOMPARE(client.value("Gain"_s), NodeValue(2.0));
    client.device().setByCamera("Width", std::int64_t(320));
    QTRY_COMPARE_WITH_TIMEOUT(client.value("Width"_s), NodeValue(std::int64_t(320)), 10000);
    QStringList names;
    for (const auto &change : qAsConst(changes))
        names.append(change.first().toString());
    QCOMPARE(names, (QStringList{"Gain"_s, "ExposureTime"_s, "Width"_s})); // Each of them once.
    QVERIFY(!client.features.state("DeviceTemperature"_s));
}

void TestFeatureClient::unwatchedFeaturesAreNotRead()
{
    Client client;
    client.features.watch({"Gain"_s, "Width"_s});
    client.features.watch({"Gain"_s});
    QVERIFY(client.open());
    client.features.unwatch({"Gain"_s, "Width"_s});
    client.device().setByCamera("Width", std::int64_t(320));
    client.device().setByCamera("Gain", 3.0);
    QTRY_COMPARE_WITH_TIMEOUT(client.value("Gain"_s), NodeValue(3.0), 10000); // Still watched once.
    QCOMPARE(client.value("Width"_s), NodeValue(std::int64_t(640)));
}

void TestFeatureClient::featuresArePolledWhileTheyAreWatched()
{
    Client client;
    client.features.watch({"DeviceTemperature"_s, "Gain"_s});
    QVERIFY(client.open());
    client.device().change([](ScriptedDevice &device) { device.set("DeviceTemperature", 41.0); });
    QTRY_COMPARE_WITH_TIMEOUT(client.value("DeviceTemperature"_s), NodeValue(41.0), 10000);
    QCOMPARE(client.device().calls("ReadStates").back(), Names{"DeviceTemperature"});
    client.features.unwatch({"DeviceTemperature"_s});
    client.features.watch({"Width"_s}); // Its read is the last one, because nothing is polled any more.
    QTRY_VERIFY_WITH_TIMEOUT(client.features.state("Width"_s), 10000);
    QCOMPARE(client.device().calls("ReadStates").back(), Names{"Width"});
}

void TestFeatureClient::lastOfSeveralWritesWins()
{
    Client client;
    CvxScripted::Gate gate;
    client.device().beforeCall = [&gate](const std::string &call) {
        if (call == "Write")
            gate.pass();
    };
    client.features.watch({"Gain"_s});
    QVERIFY(client.open());
    QSignalSpy writes(&client.features, &FeatureClient::written);
    for (const double gain : {2.0, 3.0, 4.0, 5.0})
        client.features.write("Gain"_s, gain);
    QVERIFY(gate.waitForArrival());
    QVERIFY(client.features.isWriting("Gain"_s));
    QVERIFY(!client.features.isWriting("Width"_s));
    gate.open();
    QTRY_VERIFY_WITH_TIMEOUT(!client.features.isWriting("Gain"_s), 10000);
    QCOMPARE(client.device().writtenValues("Gain"), (std::vector<NodeValue>{2.0, 5.0}));
    QCOMPARE(writes.count(), 2);
    QCOMPARE(writes[0][1].value<NodeValue>(), NodeValue(1.0));
    QCOMPARE(writes[1][1].value<NodeValue>(), NodeValue(2.0));
    QCOMPARE(writes[1][2].value<NodeValue>(), NodeValue(5.0));
}

void TestFeatureClient::valueUnderAnotherSelectorIsUnknown()
{
    Client client;
    client.device().addEntries("LUTSelector", {"Red", "Green"});
    client.device().add("LUTIndex", std::int64_t(0));
    client.device().add("LUTValue", std::int64_t(7));
    client.device().select("LUTSelector", {"LUTIndex"});
    client.device().select("LUTIndex", {"LUTValue"});
    client.features.watch({"LUTSelector"_s, "LUTIndex"_s, "LUTValue"_s});
    QVERIFY(client.open());
    QSignalSpy written(&client.features, &FeatureClient::written);
    QVector<bool> outdated; // After each write.
    connect(&client.features, &FeatureClient::written, this,
        [&] { outdated.append(client.features.isOutdated("LUTIndex"_s)); });
    client.features.write("LUTSelector"_s, std::string("Green"));
    client.features.write("LUTValue"_s, std::int64_t(8));
    QTRY_COMPARE_WITH_TIMEOUT(written.size(), 2, 10000);
    QVERIFY(outdated[0]);
    QCOMPARE(written[0][1].value<NodeValue>(), NodeValue("Red"));
    QCOMPARE(written[1][1].value<NodeValue>(), NodeValue()); // 7 is the value for Red.
    QTRY_VERIFY_WITH_TIMEOUT(!client.features.isOutdated("LUTIndex"_s), 10000);
    client.features.write("LUTValue"_s, std::int64_t(9));
    QTRY_COMPARE_WITH_TIMEOUT(written.size(), 3, 10000);
    QCOMPARE(written[2][1].value<NodeValue>(), NodeValue(std::int64_t(8)));
}

void TestFeatureClient::commandKeepsItsPlaceBetweenWrites()
{
    Client client;
    QVERIFY(client.open());
    client.features.write("Gain"_s, 2.0);
    client.features.write("Width"_s, std::int64_t(320));
    client.features.execute("TriggerSoftware"_s);
    client.features.write("Width"_s, std::int64_t(160));
    QTRY_VERIFY_WITH_TIMEOUT(!client.features.isWriting("Width"_s), 10000);
    QCOMPARE(client.device().change([](ScriptedDevice &device) { return device.writes; }),
        (Names{"Gain", "Width", "TriggerSoftware", "Width"}));
}

void TestFeatureClient::refusedWriteIsReported()
{
    Client client;
    client.device().change([](ScriptedDevice &device) { device.feature("Gain").state.maximum = 10.0; });
    client.features.watch({"Gain"_s});
    QVERIFY(client.open());
    QSignalSpy failures(&client.features, &FeatureClient::failed);
    const std::size_t reads = client.device().calls("ReadStates").size();
    client.features.write("Gain"_s, 11.0);
    QTRY_COMPARE_WITH_TIMEOUT(failures.count(), 1, 10000);
    QCOMPARE(failures[0], (QVariantList{"Gain"_s, "\"Gain\" is out of range."_s}));
    QTRY_COMPARE_WITH_TIMEOUT(client.device().calls("ReadStates").size(), reads + 1, 10000);
    QCOMPARE(client.value("Gain"_s), NodeValue(1.0));
}

void TestFeatureClient::runningCommandIsFollowed()
{
    Client client;
    client.features.watch({"TriggerSoftware"_s});
    QVERIFY(client.open());
    client.device().change(
        [](ScriptedDevice &device) { device.feature("TriggerSoftware").state.isCommandDone = false; });
    client.features.execute("TriggerSoftware"_s);
    QTRY_VERIFY_WITH_TIMEOUT(!client.features.state("TriggerSoftware"_s)->isCommandDone, 10000);
    client.device().change(
        [](ScriptedDevice &device) { device.feature("TriggerSoftware").state.isCommandDone = true; });
    QTRY_VERIFY_WITH_TIMEOUT(client.features.state("TriggerSoftware"_s)->isCommandDone, 10000);
}

void TestFeatureClient::lostCameraHasNoStates()
{
    Client client;
    client.features.watch({"Gain"_s});
    QVERIFY(client.open());
    QSignalSpy gone(&client.features, &FeatureClient::nodesGone);
    QSignalSpy loaded(&client.features, &FeatureClient::nodesLoaded);
    client.device().lose("Unplugged.");
    QTRY_COMPARE_WITH_TIMEOUT(gone.count(), 1, 10000);
    QVERIFY(!client.features.state("Gain"_s));
    QVERIFY(client.features.nodes().isEmpty());
    client.device().reopen();
    QTRY_COMPARE_WITH_TIMEOUT(loaded.count(), 1, 10000);
    QCOMPARE(client.value("Gain"_s), NodeValue(1.0));
    QCOMPARE(gone.count(), 1);
}

void TestFeatureClient::anotherCameraHasItsOwnFeatures()
{
    Client client;
    CvxScripted::Gate gate;
    client.device().beforeCall = [&gate](const std::string &call) {
        if (call == "Write")
            gate.pass();
    };
    client.features.watch({"Gain"_s, "Gamma"_s});
    QVERIFY(client.open());
    client.features.write("Gain"_s, 2.0);
    client.features.write("Gain"_s, 3.0);
    QVERIFY(gate.waitForArrival());
    client.camera = std::make_shared<OpenableCamera>("CAM-2");
    client.device().add("Gamma", 0.5);
    QVERIFY(client.open()); // Although a write of the previous camera still blocks.
    QVERIFY(!client.features.isWriting("Gain"_s));
    QVERIFY(!client.features.info("Gain"_s));
    QCOMPARE(client.value("Gamma"_s), NodeValue(0.5));
    client.features.write("Gamma"_s, 0.7);
    QTRY_COMPARE_WITH_TIMEOUT(client.value("Gamma"_s), NodeValue(0.7), 10000);
}

void TestFeatureClient::failedReadIsRepeated()
{
    Client client;
    QVERIFY(client.open());
    client.device().change([](ScriptedDevice &device) { device.callsUntilLoss = 0; });
    client.features.watch({"Gain"_s});
    QTRY_VERIFY_WITH_TIMEOUT(!client.device().calls("ReadStates").empty(), 10000);
    client.device().change([](ScriptedDevice &device) { device.callsUntilLoss = 1000; });
    QTRY_COMPARE_WITH_TIMEOUT(client.value("Gain"_s), NodeValue(1.0), 10000);
}

void TestFeatureClient::operationsWithoutCameraFail()
{
    Client client;
    QSignalSpy failures(&client.features, &FeatureClient::failed);
    client.features.write("Gain"_s, 2.0);
    client.features.execute("TriggerSoftware"_s);
    QTRY_COMPARE_WITH_TIMEOUT(failures.count(), 2, 10000);
    QVERIFY(client.open());
}

void TestFeatureClient::operationsKeepTheLastWriteBetweenCommands()
{
    FeatureOperations operations;
    operations.addWrite("A"_s, 1.0);
    operations.addWrite("B"_s, 1.0);
    operations.addWrite("A"_s, 2.0);
    operations.addCommand("C"_s);
    operations.addCommand("C"_s);
    operations.addWrite("A"_s, 3.0);
    QStringList order;
    while (const auto operation = operations.takeNext())
        order.append(operation->value
                ? QStringLiteral("%1=%2").arg(operation->name).arg(std::get<double>(*operation->value))
                : operation->name);
    QCOMPARE(order, (QStringList{"A=2"_s, "B=1"_s, "C"_s, "C"_s, "A=3"_s}));
}

void TestFeatureClient::pollTimesAreDueOnce()
{
    using std::chrono::milliseconds;
    const PollTimes::Clock::time_point start;
    PollTimes times;
    QVERIFY(!times.untilNext(start));
    times.wasRead("fast"_s, milliseconds(1), start);
    times.wasRead("slow"_s, milliseconds(1000), start);
    times.wasRead("never"_s, milliseconds(0), start);
    QCOMPARE(*times.untilNext(start), PollTimes::minInterval);
    QCOMPARE(times.takeDue(start + milliseconds(199)), QStringList());
    QCOMPARE(times.takeDue(start + milliseconds(200)), QStringList{"fast"_s});
    QCOMPARE(times.takeDue(start + milliseconds(999)), QStringList()); // It was not read since.
    QCOMPARE(*times.untilNext(start + milliseconds(1500)), milliseconds(0));
    times.remove("slow"_s);
    QVERIFY(!times.untilNext(start));
}

QTEST_GUILESS_MAIN(TestFeatureClient)
#include "TestFeatureClient.moc"
