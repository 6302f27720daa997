#include "tests/thermalmonitor/FakeNotifications.h"
#include "tests/toolundertest/SimulatedCameras.h"
#include "tests/toolundertest/ToolUnderTest.h"
#include "tools/kit/widgets/BigNumber.h"
#include "tools/thermalmonitor/LogBox.h"
#include "tools/thermalmonitor/PlaceCard.h"
#include "tools/thermalmonitor/TemperaturePlot.h"
#include "tools/thermalmonitor/ThermalPanel.h"
#include "tools/thermalmonitor/ThermalWindow.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QJsonDocument>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

using ThermalUnderTest = ToolUnderTest<ThermalWindow>;

namespace {

QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

/// Readings come often, so the tests need not wait.
QVariantMap quick()
{
    return {{"interval"_s, 0.2}};
}

QByteArray content(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

const ThermalMonitor *monitorOf(ThermalUnderTest &thermal)
{
    return thermal.window().session().monitor();
}

void awaitReadings(ThermalUnderTest &thermal, std::uint64_t count)
{
    await([&] {
        return monitorOf(thermal) && monitorOf(thermal)->places().front().history().count() >= count;
    });
}

template <typename Widget>
Widget *control(ThermalUnderTest &thermal, const QString &name)
{
    return thermal.window().findChild<Widget *>(name);
}

} // namespace

/// Tests that the parts of the Thermal Monitor are connected, with the real SDK on simulated cameras.
class TestThermalMonitor : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void allTemperaturesAreFollowed_data();
    void allTemperaturesAreFollowed();
    void lostCameraLeavesAGap();
    void thresholdNotifies();
    void darkLevelNeedsALensCap();
    void resultIsSaved();
    void curveHasPeaksAndGaps();
    void everyControlHasAnAccessibleName();

private:
    SimulatedCameras m_cameras;
};

void TestThermalMonitor::init()
{
    m_cameras.plug({"1001"_s, "1002"_s, "2001"_s});
}

void TestThermalMonitor::allTemperaturesAreFollowed_data()
{
    QTest::addColumn<QString>("camera");
    QTest::newRow("area scan") << "1001"_s;
    QTest::newRow("line scan") << "2001"_s;
}

void TestThermalMonitor::allTemperaturesAreFollowed()
{
    QFETCH(QString, camera);
    ThermalUnderTest thermal(camera, quick());
    awaitReadings(thermal, 5);
    const auto cards = thermal.window().findChildren<PlaceCard *>();
    QCOMPARE(cards.size(), 2);
    const std::vector<PlaceMonitor> &places = monitorOf(thermal)->places();
    QCOMPARE(QString::fromStdString(places[0].place()), "Sensor"_s);
    QCOMPARE(QString::fromStdString(places[1].place()), "Mainboard"_s);
    QVERIFY(cards[0]->findChild<BigNumber *>()->text().contains("°C"_s));
    // The camera works since its stream was started: the final value of its sensor is 51 °C. Readings from
    // before and around the start may first lead to another value.
    await([&] {
        const std::optional<Forecast> found = places[0].report().forecast;
        return found && std::abs(found->end - 51) < 3 * found->endError + 0.1;
    });
    QVERIFY(control<QLabel>(thermal, "forecast"_s)->text().startsWith("Expected final value: "_s));
    std::string selected;
    thermal.call(
        [&](CvxCPP::Device &device) { return device.ReadString("DeviceTemperatureSelector", selected); });
    QCOMPARE(QString::fromStdString(selected), "Sensor"_s);
}

void TestThermalMonitor::lostCameraLeavesAGap()
{
    const QTemporaryDir folder;
    ThermalUnderTest thermal("1001"_s, quick());
    awaitReadings(thermal, 3);
    thermal.window().panel().log().start(folder.filePath("log.csv"_s));
    QVERIFY(control<QLabel>(thermal, "logFile"_s)->text().contains("log.csv"_s));
    m_cameras.plug({"2001"_s});
    await([&] { return monitorOf(thermal)->isLost(); });
    const std::uint64_t before = monitorOf(thermal)->places().front().history().count();
    init();
    awaitReadings(thermal, before + 3);
    const std::vector<HistoryPoint> points = monitorOf(thermal)->places().front().history().points();
    QVERIFY(std::any_of(
        points.begin(), points.end(), [](const HistoryPoint &point) { return point.isAfterGap; }));
    const QByteArray log = content(folder.filePath("log.csv"_s));
    QVERIFY(log.startsWith("time,Sensor [degC],Mainboard [degC],dark level,event\n"));
    QCOMPARE(log.count("no reading"), 1);
    QVERIFY(!log.endsWith("no reading\n"));
    control<QPushButton>(thermal, "logButton"_s)->click();
    QVERIFY(!thermal.window().session().isLogging());
}

void TestThermalMonitor::thresholdNotifies()
{
    FakeNotifications desktop;
    QVERIFY(desktop.start());
    ThermalUnderTest thermal("1001"_s, quick());
    awaitReadings(thermal, 1);
    auto *const alert = control<QLabel>(thermal, "alert"_s);
    QVERIFY(alert->isHidden());
    control<QDoubleSpinBox>(thermal, "thresholds/warning"_s)->setValue(20);
    control<QCheckBox>(thermal, "thresholds/warningOn"_s)->click();
    await([&] { return desktop.texts.size() >= 2; }); // Both places.
    QVERIFY(alert->isVisible());
    QVERIFY(desktop.texts.first().startsWith("Warning: Sensor is at "_s));
    QCOMPARE(desktop.urgencies.first(), 1);

    control<QDoubleSpinBox>(thermal, "thresholds/alarm"_s)->setValue(21);
    control<QCheckBox>(thermal, "thresholds/alarmOn"_s)->click();
    await([&] { return desktop.texts.size() >= 4; });
    QVERIFY(desktop.texts.last().startsWith("Alarm: Mainboard has reached "_s));
    QCOMPARE(desktop.urgencies.last(), 2);
    QCOMPARE(desktop.replaced.last(), FakeNotifications::number);
    QCOMPARE(alert->text(), desktop.texts.last());
}

void TestThermalMonitor::darkLevelNeedsALensCap()
{
    ThermalUnderTest thermal("1001"_s, quick());
    awaitReadings(thermal, 1);
    ThermalSession &session = thermal.window().session();
    auto *const message = control<QLabel>(thermal, "darkMessage"_s);
    control<QPushButton>(thermal, "darkButton"_s)->click();
    await([&] { return message->text().contains("The picture is not dark."_s); });
    QVERIFY(monitorOf(thermal)->dark().levels().isEmpty());

    thermal.write("SceneTarget", "LensCap");
    thermal.write("BlackLevel", 100.0);
    await([&] { return monitorOf(thermal)->dark().levels().count() >= 3; });
    QVERIFY(control<QLabel>(thermal, "darkResult"_s)->text().startsWith("Dark level: "_s));
    QVERIFY(!message->text().contains("not dark"_s));
    QVERIFY(control<QWidget>(thermal, "temperaturePlot"_s)->findChildren<QWidget *>().size() > 2);

    // Levels of another exposure cannot be compared with these.
    thermal.write("ExposureTime", 12345.0);
    await([&] { return monitorOf(thermal)->dark().levels().count() < 3; });
    control<QPushButton>(thermal, "darkButton"_s)->click();
    QVERIFY(!session.isMeasuringDark());
}

void TestThermalMonitor::resultIsSaved()
{
    const QTemporaryDir folder;
    ThermalUnderTest thermal("1001"_s, quick());
    awaitReadings(thermal, 3);
    CameraRecord camera;
    camera.model = "Area";
    QCOMPARE(
        ResultSaver::write(folder.filePath("a.json"_s), thermal.window().resultFiles(camera)), QString());
    const QJsonObject json = QJsonDocument::fromJson(content(folder.filePath("a.json"_s))).object();
    QCOMPARE(json["format"_s].toString(), "corvix-x-temperatures"_s);
    QCOMPARE(json["result"_s].toObject()["places"_s].toArray().size(), 2);
    QVERIFY(content(folder.filePath("a.csv"_s)).contains("\n\"Mainboard\","));
    const QByteArray html = content(folder.filePath("a.html"_s));
    QVERIFY(html.contains("Mainboard"));
    QVERIFY(html.contains("data:image/png"));
}

void TestThermalMonitor::curveHasPeaksAndGaps()
{
    const std::vector<HistoryPoint> points{
        {0, 0, 40, 40, 40, 1, false}, {1, 4, 42, 41, 43, 4, false}, {20, 20, 30, 30, 30, 1, true}};
    const QVector<QPointF> curve = curveOf(points);
    QCOMPARE(curve.size(), 5);
    QCOMPARE(curve[1], QPointF(2.5, 41));
    QCOMPARE(curve[2], QPointF(2.5, 43));
    QVERIFY(std::isnan(curve[3].y()));
    QCOMPARE(curve[4], QPointF(20, 30));
}

void TestThermalMonitor::everyControlHasAnAccessibleName()
{
    ThermalUnderTest thermal("1001"_s, quick());
    awaitReadings(thermal, 1);
    int count = 0;
    QCOMPARE(unnamedControls(thermal.window(), count), QStringList());
    QVERIFY(count > 8);
}

QTEST_MAIN(TestThermalMonitor)
#include "TestThermalMonitor.moc"
