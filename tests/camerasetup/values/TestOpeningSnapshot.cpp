#include "sdk/features/SettingLabel.h"
#include "tests/camerasetup/values/SetupBench.h"

#include <QtTest>

#include <atomic>
#include <thread>

using namespace CvxCPP;
using State = OpeningSnapshot::State;

namespace {

const std::vector<SelectorSetting> all{{"GainSelector", "All"}};
const std::vector<SelectorSetting> red{{"GainSelector", "Red"}};

QStringList settingsOf(const SettingsSnapshot &snapshot)
{
    QStringList settings;
    for (const FeatureSetting &setting : snapshot.side.settings)
        settings.append(
            QString::fromStdString(settingLabel(setting.name, setting.selectors) + ": " + setting.value));
    return settings;
}

/// Reads all settings at once.
QStringList settingsOf(TestDevice &device)
{
    SettingsSnapshot snapshot;
    const CvxResult result = readSnapshot(device, {}, snapshot, {});
    return result ? settingsOf(snapshot) : QStringList();
}

void setGain(ScriptedDevice &device, const char *selector, double value)
{
    device.set("GainSelector", std::string(selector));
    device.set("Gain", value);
    device.set("GainSelector", std::string("All"));
}

} // namespace

class TestOpeningSnapshot : public QObject
{
    Q_OBJECT

private slots:
    void readsAllSettingsUnderTheirSelectors();
    void earlyChangeCountsWithValueBefore();
    void changeOfUnreadFeatureLeavesOpeningUnknown();
    void personWritesWhileSlowCameraIsRead();
    void followsFeaturesThatNobodyWatches();
    void changeForAnotherSelectorIsFound();
    void ignoresWhatDoesNotCount_data();
    void ignoresWhatDoesNotCount();
    void followsWritableFeatureOutsideOfFiles();
    void takesEditsOfFile();
    void comparesEverythingAfterLoss();
    void anotherCameraStartsAnew();
    void watchedCameraKeepsItsSelectors();
    void saysThatCommandCameFirst();
};

void TestOpeningSnapshot::readsAllSettingsUnderTheirSelectors()
{
    SetupBench bench;
    QCOMPARE(bench.opening.state(), State::Reading);
    bench.waitUntilComplete();
    QCOMPARE(settingsOf(bench.opening.snapshot()), settingsOf(bench.device()));
    QCOMPARE(bench.opening.snapshot().side.settings.size(), std::size_t(11));
    QCOMPARE(bench.opening.value("Gain", red), std::optional<std::string>("1"));
    QCOMPARE(bench.bench.value("GainSelector"), NodeValue("All"));
    QCOMPARE(bench.bench.value("LUTIndex"), NodeValue(std::int64_t(1)));
}

void TestOpeningSnapshot::earlyChangeCountsWithValueBefore()
{
    EditorBench bench(scriptSetupCamera);
    PresentSelectors selectors(bench.client);
    bench.client.watch({QStringLiteral("Width"), QStringLiteral("Gain")});
    QTRY_VERIFY(bench.client.state(QStringLiteral("Gain")) && bench.client.state(QStringLiteral("Width"))
        && selectors.of("Gain"));
    bench.client.write(QStringLiteral("Width"), std::int64_t(800));
    bench.client.write(QStringLiteral("Gain"), 6.0);
    OpeningSnapshot opening(bench.client, selectors);
    QTRY_COMPARE_WITH_TIMEOUT(opening.state(), State::Complete, hangTimeout);
    QCOMPARE(bench.value("Gain"), NodeValue(6.0));
    QCOMPARE(opening.value("Width", {}), std::optional<std::string>("640"));
    QCOMPARE(opening.value("Gain", all), std::optional<std::string>("1"));
    QVERIFY(opening.isChanged(QStringLiteral("Width")) && opening.isChanged(QStringLiteral("Gain")));
    QVERIFY(!opening.isChanged(QStringLiteral("OffsetX")));
    const QStringList settings = settingsOf(opening.snapshot());
    QVERIFY(settings.contains(QStringLiteral("Width: 640")));
    QVERIFY(settings.contains(QStringLiteral("Gain [GainSelector=All]: 1")));
}

void TestOpeningSnapshot::changeOfUnreadFeatureLeavesOpeningUnknown()
{
    SetupBench bench;
    bench.bench.client.write(QStringLiteral("OffsetX"), std::int64_t(4)); // Nobody has read it.
    bench.waitUntilComplete();
    QCOMPARE(bench.opening.value("OffsetX", {}), std::nullopt);
    QVERIFY(!bench.opening.isChanged(QStringLiteral("OffsetX")));
    QCOMPARE(bench.opening.snapshot().side.settings.size(), std::size_t(10));
}

void TestOpeningSnapshot::personWritesWhileSlowCameraIsRead()
{
    std::atomic<bool> isSlow{false};
    SetupBench bench([&isSlow](TestDevice &device) {
        addChoice(device, "GainSelector", {"All", "Red", "Green"});
        addNumber(device, "Gain", 1.0, 0.0, 24.0);
        device.select("GainSelector", {"Gain"});
        device.beforeCall = [&isSlow](const std::string &call) {
            if (isSlow && call == "ReadStates")
                std::this_thread::sleep_for(std::chrono::milliseconds(210));
        };
    });
    isSlow = true;
    bench.write(QStringLiteral("GainSelector"), std::string("Red"));
    QVERIFY(bench.opening.snapshot().side.settings.size() < 3);
    bench.write(QStringLiteral("Gain"), 5.0);
    bench.waitUntilComplete();
    QCOMPARE(bench.opening.snapshot().side.settings.size(), std::size_t(3));
    for (const char *const selector : {"All", "Red", "Green"})
        QCOMPARE(bench.opening.value("Gain", {{"GainSelector", selector}}), std::optional<std::string>("1"));
    QVERIFY(bench.opening.isChanged(QStringLiteral("Gain")));
    const auto changed = bench.device().change([](ScriptedDevice &device) { return device.changedValues(); });
    QCOMPARE(
        changed, (std::map<std::string, NodeValue>{{"GainSelector", "Red"}, {"Gain/GainSelector=Red", 5.0}}));
}

void TestOpeningSnapshot::followsFeaturesThatNobodyWatches()
{
    SetupBench bench;
    bench.waitUntilComplete();
    QSignalSpy changes(&bench.opening, &OpeningSnapshot::changedFeatures);
    bench.device().setByCamera("Width", std::int64_t(320));
    QTRY_VERIFY_WITH_TIMEOUT(bench.opening.isChanged(QStringLiteral("Width")), hangTimeout);
    bench.device().setByCamera("Width", std::int64_t(640));
    QTRY_VERIFY_WITH_TIMEOUT(!bench.opening.isChanged(QStringLiteral("Width")), hangTimeout);
    QCOMPARE(changes,
        (QList<QVariantList>{
            {QStringList{QStringLiteral("Width")}}, {QStringList{QStringLiteral("Width")}}}));
}

void TestOpeningSnapshot::changeForAnotherSelectorIsFound()
{
    SetupBench bench;
    bench.waitUntilComplete();
    const QString gain = QStringLiteral("Gain");
    bench.device().change([](ScriptedDevice &device) {
        setGain(device, "Red", 9.0);
        setGain(device, "All", 8.0);
    });
    bench.device().notifyNodes({"Gain"});
    QTRY_VERIFY_WITH_TIMEOUT(bench.opening.isChanged(gain), hangTimeout);
    bench.device().setByCamera("Gain", 1.0); // All
    bench.device().setByCamera("Width", std::int64_t(320));
    QTRY_VERIFY_WITH_TIMEOUT(bench.opening.isChanged(QStringLiteral("Width")), hangTimeout);
    QVERIFY(bench.opening.isChanged(gain));
    QCOMPARE(bench.bench.value("GainSelector"), NodeValue("All"));
}

void TestOpeningSnapshot::ignoresWhatDoesNotCount_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("value");
    QTest::newRow("temperature") << QStringLiteral("DeviceTemperature") << 55.0;
    QTest::newRow("rounding to 32 bits") << QStringLiteral("ExposureTime") << 10000.0004;
}

void TestOpeningSnapshot::ignoresWhatDoesNotCount()
{
    QFETCH(QString, name);
    QFETCH(double, value);
    SetupBench bench;
    bench.waitUntilComplete();
    bench.device().setByCamera(name.toStdString(), value);
    bench.device().setByCamera("Width", std::int64_t(320)); // Is read after it.
    QTRY_VERIFY_WITH_TIMEOUT(bench.opening.isChanged(QStringLiteral("Width")), hangTimeout);
    QVERIFY(!bench.opening.isChanged(name));
}

void TestOpeningSnapshot::followsWritableFeatureOutsideOfFiles()
{
    SetupBench bench([](TestDevice &device) {
        scriptSetupCamera(device);
        device.add("TestText", std::string()).info.isStreamable = false;
    });
    const QString name = QStringLiteral("TestText");
    bench.write(name, std::string("Left"));
    QCOMPARE(bench.opening.value("TestText", {}), std::optional<std::string>(""));
    QVERIFY(bench.opening.isChanged(name));
    bench.write(name, std::string());
    QVERIFY(!bench.opening.isChanged(name));
}

void TestOpeningSnapshot::takesEditsOfFile()
{
    SetupBench bench;
    bench.waitUntilComplete();
    bench.opening.noteEdits({{red, "Gain", "1.0", "3.50"}, {{}, "Width", "640", "640"}});
    QVERIFY(bench.opening.isChanged(QStringLiteral("Gain")));
    QVERIFY(!bench.opening.isChanged(QStringLiteral("Width")));
    bench.opening.noteEdits({{red, "Gain", "3.5", "1.0"}});
    QVERIFY(!bench.opening.isChanged(QStringLiteral("Gain")));
}

void TestOpeningSnapshot::comparesEverythingAfterLoss()
{
    SetupBench bench;
    bench.waitUntilComplete();
    bench.device().lose("The cable is out.");
    bench.device().change([](ScriptedDevice &device) { setGain(device, "Red", 4.0); });
    QTRY_COMPARE_WITH_TIMEOUT(bench.bench.connection.state(), CameraConnection::State::Lost, hangTimeout);
    bench.device().reopen();
    QTRY_VERIFY_WITH_TIMEOUT(bench.opening.isChanged(QStringLiteral("Gain")), hangTimeout);
    QCOMPARE(bench.opening.state(), State::Complete);
    QCOMPARE(bench.opening.value("Gain", red), std::optional<std::string>("1"));
}

void TestOpeningSnapshot::anotherCameraStartsAnew()
{
    SetupBench bench;
    bench.waitUntilComplete();
    const auto other = std::make_shared<OpenableCamera>("CAM-2");
    other->device().add("Width", std::int64_t(99));
    bench.bench.connection.open(OpenableCamera::entry(other), CvxAccessControl);
    QCOMPARE(bench.opening.state(), State::None);
    QCOMPARE(bench.opening.value("Width", {}), std::nullopt);
    bench.waitUntilComplete();
    QCOMPARE(settingsOf(bench.opening.snapshot()), QStringList{QStringLiteral("Width: 99")});
}

void TestOpeningSnapshot::watchedCameraKeepsItsSelectors()
{
    SetupBench bench([](TestDevice &device) {
        scriptSetupCamera(device);
        device.feature("GainSelector").state.lockReason = LockReason::Watching;
    });
    bench.waitUntilComplete();
    QCOMPARE(bench.opening.value("Gain", all), std::optional<std::string>("1"));
    QCOMPARE(bench.opening.value("Gain", red), std::nullopt);
    QCOMPARE(bench.opening.snapshot().notes.size(), std::size_t(1));
    QCOMPARE(bench.opening.snapshot().notes.front().name, std::string("GainSelector"));
}

void TestOpeningSnapshot::saysThatCommandCameFirst()
{
    SetupBench bench;
    bench.bench.client.execute(QStringLiteral("UserSetLoad"));
    bench.waitUntilComplete();
    QCOMPARE(bench.opening.snapshot().notes.size(), std::size_t(1));
    bench.device().change([](ScriptedDevice &device) { setGain(device, "Red", 4.0); });
    bench.bench.client.execute(QStringLiteral("UserSetLoad"));
    QTRY_VERIFY_WITH_TIMEOUT(bench.opening.isChanged(QStringLiteral("Gain")), hangTimeout);
    QCOMPARE(bench.opening.snapshot().notes.size(), std::size_t(1));
}

QTEST_GUILESS_MAIN(TestOpeningSnapshot)
#include "TestOpeningSnapshot.moc"
