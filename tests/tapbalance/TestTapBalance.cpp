#include "tests/toolundertest/ToolUnderTest.h"
#include "tools/kit/widgets/BigNumber.h"
#include "tools/kit/widgets/StepCard.h"
#include "tools/kit/widgets/StepList.h"
#include "tools/tapbalance/TapPanel.h"
#include "tools/tapbalance/TapWindow.h"

#include <QComboBox>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QtTest>

using TapsUnderTest = ToolUnderTest<TapWindow>;

namespace {

QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

QJsonObject tapCamera(const QString &serial, int taps, bool hasFlaws)
{
    return {{"id"_s, "SIM-%1"_s.arg(serial)}, {"vendor"_s, "KORDANE"_s}, {"model"_s, "HX-2040M"_s},
        {"serial"_s, serial}, {"sensorWidth"_s, 640}, {"sensorHeight"_s, 320}, {"taps"_s, taps},
        {"flaws"_s, hasFlaws}};
}

QByteArray fileContent(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

/// Clicks the button of a step, and waits until the measurement has ended.
void take(TapsUnderTest &taps, int step)
{
    QPushButton *const button = taps.find<StepList>()->step(step)->button();
    await([&] { return button->isEnabled(); });
    button->click();
    await([&] { return !taps.window().job().isRunning() && button->isEnabled(); });
}

/// Returns whether the window says something that contains the text.
bool shows(TapsUnderTest &taps, const QString &text)
{
    const QList<QLabel *> labels = taps.window().findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(),
        [&](const QLabel *label) { return label->isVisible() && label->text().contains(text); });
}

/// Shows an even, bright surface.
void showSurface(TapsUnderTest &taps)
{
    await([&] { return taps.state() == CameraConnection::State::Open; });
    taps.write("SceneTarget", std::string("FlatField"));
}

double gainOf(TapsUnderTest &taps, const std::string &tap)
{
    taps.write("GainSelector", tap);
    return taps.readFloat("Gain");
}

} // namespace

/// Tests that the parts of Tap Balance are connected, with the real SDK on simulated cameras.
class TestTapBalance : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void tapsAreBalancedAndSaved();
    void balancingIsUndone();
    void sensorWithoutFlawsIsBalancedAlready();
    void cancelledBalancingLeavesTheCameraAsItWas();
    void wrongReferenceIsNamed();
    void cameraWithoutGeometryIsMeasuredByHand();
    void everyControlHasAnAccessibleName();
};

/// 3001 has four taps that differ, 3002 has four equal ones, 3003 has one.
void TestTapBalance::initTestCase()
{
    const QJsonArray cameras{
        tapCamera("3001"_s, 4, true), tapCamera("3002"_s, 4, false), tapCamera("3003"_s, 1, false)};
    const QJsonObject interface {
        {"id"_s, "Sim"_s}, {"tlType"_s, "CL"_s}, { "devices"_s, cameras }
    };
    QFile file(qEnvironmentVariable("CORVIX_TEST_SDK") + "/cti/CorvixCameraSimulator.json"_s);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QJsonDocument(QJsonObject{{"interfaces"_s, QJsonArray{interface}}}).toJson());
}

void TestTapBalance::tapsAreBalancedAndSaved()
{
    TapsUnderTest taps("3001"_s);
    showSurface(taps);
    take(taps, 0);
    const TapResult &result = taps.window().session().result();
    QVERIFY(result.bright);
    QVERIFY(result.bright->mismatch > 0.03);
    QCOMPARE(result.bright->steps.size(), std::size_t(3));
    const QList<QComboBox *> choices = taps.window().findChildren<QComboBox *>();
    QVERIFY(std::any_of(choices.begin(), choices.end(),
        [](const QComboBox *choice) { return choice->currentText().contains("Geometry_4X_1Y"_s); }));

    taps.write("SceneTarget", std::string("LensCap"));
    take(taps, 1);
    QVERIFY(result.blackLevel);
    taps.write("SceneTarget", std::string("FlatField"));
    take(taps, 2);
    QVERIFY(result.gain);
    QVERIFY(result.gain->before.mismatch > 0.03);
    QVERIFY(result.bright->mismatch < 0.005);
    QVERIFY(gainOf(taps, "Tap2") > 0);

    const QTemporaryDir folder;
    QCOMPARE(ResultSaver::write(folder.filePath("a.json"_s), taps.window().resultFiles()), QString());
    const QJsonObject json = QJsonDocument::fromJson(fileContent(folder.filePath("a.json"_s))).object();
    QCOMPARE(json["format"_s].toString(), "corvix-x-taps"_s);
    QCOMPARE(json["camera"_s].toObject()["serialNumber"_s].toString(), "3001"_s);
    QCOMPARE(json["result"_s].toObject()["gain"_s].toObject()["settings"_s].toArray().size(), 4);
    QCOMPARE(fileContent(folder.filePath("a.csv"_s)).count('\n'), 5);
    QVERIFY(fileContent(folder.filePath("a.html"_s)).contains("data:image/png"));
}

void TestTapBalance::balancingIsUndone()
{
    TapsUnderTest taps("3001"_s);
    showSurface(taps);
    await([&] { return taps.find<StepList>()->step(0)->button()->isEnabled(); });
    QAction &undo = taps.action("Undo the last balancing"_s);
    QVERIFY(!undo.isEnabled());
    taps.window().session().balance(TapSetting::Gain);
    await([&] { return !taps.window().job().isRunning() && undo.isEnabled(); });
    QVERIFY(gainOf(taps, "Tap2") > 0);
    undo.trigger();
    await([&] { return !taps.window().job().isRunning() && !undo.isEnabled(); });
    for (const char *tap : {"Tap1", "Tap2", "Tap3", "Tap4"})
        QCOMPARE(gainOf(taps, tap), 0.0);
    QVERIFY(taps.window().session().result().bright->mismatch > 0.03);
}

void TestTapBalance::sensorWithoutFlawsIsBalancedAlready()
{
    TapsUnderTest taps("3002"_s);
    showSurface(taps);
    take(taps, 0);
    QVERIFY(taps.window().session().result().bright->mismatch < gainGoal);
    taps.window().session().balance(TapSetting::Gain);
    await([&] { return taps.window().session().result().gain.has_value(); });
    QCOMPARE(taps.window().session().result().gain->rounds, std::size_t(0));
}

void TestTapBalance::cancelledBalancingLeavesTheCameraAsItWas()
{
    TapsUnderTest taps("3001"_s);
    showSurface(taps);
    await([&] { return taps.find<StepList>()->step(0)->button()->isEnabled(); });
    taps.write("GainSelector", std::string("Tap3"));
    taps.write("Gain", 1.5);
    taps.write("GainSelector", std::string("All"));
    QString problem;
    connect(
        &taps.window().session(), &TapSession::failed, this, [&](const QString &text) { problem = text; });
    taps.window().session().balance(TapSetting::Gain);
    MeasureJob &job = taps.window().job();
    await([&] { return job.done() > 8; }); // The first values are written.
    job.cancel();
    await([&] { return !job.isRunning(); });
    QCOMPARE(problem, "The measurement was cancelled."_s);
    std::string selector;
    taps.call([&](CvxCPP::Device &device) { return device.ReadString("GainSelector", selector); });
    QCOMPARE(selector, std::string("All"));
    QCOMPARE(gainOf(taps, "Tap3"), 1.5);
    QCOMPARE(gainOf(taps, "Tap2"), 0.0);
}

void TestTapBalance::wrongReferenceIsNamed()
{
    TapsUnderTest taps("3001"_s);
    showSurface(taps);
    taps.write("SceneTarget", std::string("LensCap"));
    take(taps, 0);
    QVERIFY(shows(taps, "too dark"_s));
    QVERIFY(!taps.window().session().hasResult());
    taps.write("SceneTarget", std::string("FlatField"));
    taps.write("ExposureTime", 200000.0);
    take(taps, 0);
    QVERIFY(shows(taps, "overexposed"_s));
}

void TestTapBalance::cameraWithoutGeometryIsMeasuredByHand()
{
    TapsUnderTest taps("3003"_s);
    showSurface(taps);
    QPushButton *const button = taps.find<StepList>()->step(0)->button();
    await([&] { return button->isEnabled(); });
    const QList<QSpinBox *> numbers = taps.window().findChildren<QSpinBox *>();
    const auto sideBySide = std::find_if(numbers.begin(), numbers.end(),
        [](const QSpinBox *box) { return box->isVisible() && box->value() == 2 && box->maximum() == 16; });
    QVERIFY(sideBySide != numbers.end());
    take(taps, 0);
    QCOMPARE(taps.window().session().result().bright->taps.size(), std::size_t(2));
    QVERIFY(taps.window().session().result().bright->mismatch < 0.002);
    taps.window().session().balance(TapSetting::Gain);
    await([&] {
        return !taps.window().job().isRunning() && shows(taps, "Tap2"_s);
    }); // The entry that is missing.
}

void TestTapBalance::everyControlHasAnAccessibleName()
{
    TapsUnderTest taps("3001"_s);
    showSurface(taps);
    await([&] { return taps.find<StepList>()->step(0)->button()->isEnabled(); });
    int count = 0;
    QCOMPARE(unnamedControls(taps.window(), count), QStringList());
    QVERIFY(count > 5);
}

QTEST_MAIN(TestTapBalance)
#include "TestTapBalance.moc"
