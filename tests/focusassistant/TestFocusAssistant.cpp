#include "tests/toolundertest/SimulatedCameras.h"
#include "tests/toolundertest/ToolUnderTest.h"
#include "tools/focusassistant/FocusPanel.h"
#include "tools/focusassistant/FocusWindow.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <cmath>

using FocusUnderTest = ToolUnderTest<FocusWindow>;

namespace {

constexpr char lens[] = "LensFocusPosition";

QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

template <typename Widget>
Widget *control(FocusUnderTest &focus, const QString &name)
{
    return focus.window().findChild<Widget *>(name);
}

/// Returns true if the panel shows this text.
bool hasLabel(FocusUnderTest &focus, const QString &text)
{
    const auto labels = focus.find<FocusPanel>()->findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(),
        [&](const QLabel *label) { return label->isVisible() && label->text() == text; });
}

void awaitMeasurements(FocusUnderTest &focus, std::size_t count)
{
    await([&] { return focus.window().session().history().samples().size() >= count; });
}

std::int64_t lensPosition(FocusUnderTest &focus)
{
    std::int64_t position = 0;
    focus.call([&](CvxCPP::Device &device) { return device.ReadInteger(lens, position); });
    return position;
}

/// Moves the lens and waits until the sharpness of the place was measured.
void moveLens(FocusUnderTest &focus, std::int64_t position)
{
    focus.write(lens, position);
    const double before = focus.window().session().history().samples().back().position;
    await([&] { return focus.window().session().history().samples().back().position > before + 0.5; });
}

QJsonObject resultOf(FocusUnderTest &focus, const QString &path)
{
    if (const QString problem = ResultSaver::write(path, focus.window().resultFiles({})); !problem.isEmpty())
        qFatal("%s", qPrintable(problem));
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return QJsonDocument::fromJson(file.readAll()).object().value("result"_s).toObject();
}

} // namespace

/// Tests that the parts of the Focus Assistant are connected, with the real SDK on simulated cameras.
class TestFocusAssistant : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void searchLeavesTheLensAtTheBestPosition();
    void cancelledSearchPutsTheLensBack();
    void lensTurnedByHandIsFollowed();
    void pictureThatSaysNothingIsExplained();
    void lineScanCameraHasOneRow();
    void resetAndGridBeginAnew();
    void everyControlHasAnAccessibleName();

private:
    SimulatedCameras m_cameras;
};

void TestFocusAssistant::init()
{
    m_cameras.plug({"1001"_s, "1002"_s, "2001"_s});
}

void TestFocusAssistant::searchLeavesTheLensAtTheBestPosition()
{
    const QTemporaryDir folder;
    FocusUnderTest focus("1001"_s, {{"grid"_s, 3}});
    awaitMeasurements(focus, 3);
    QVERIFY(control<QPushButton>(focus, "search"_s)->isEnabled());
    control<QPushButton>(focus, "search"_s)->click();
    await([&] { return !focus.window().job().isRunning() && focus.window().result(); });
    const FocusAnalysis &analysis = *focus.window().result()->analysis;
    QVERIFY(analysis.best);
    QCOMPARE(lensPosition(focus), std::int64_t(std::lround(*analysis.best)));
    awaitMeasurements(focus, 3);
    QVERIFY(focus.find<FocusPanel>()->sentences().first().contains("The lens is there."_s));

    const QJsonObject result = resultOf(focus, folder.filePath("focus.json"_s));
    QCOMPARE(result.value("analysis"_s).toObject().value("best"_s).toDouble(), *analysis.best);
    QVERIFY(QFile::exists(folder.filePath("focus.csv"_s)));
    QFile report(folder.filePath("focus.html"_s));
    QVERIFY(report.open(QIODevice::ReadOnly));
    QCOMPARE(report.readAll().count("<img"), 2);
}

void TestFocusAssistant::cancelledSearchPutsTheLensBack()
{
    FocusUnderTest focus("1001"_s, {{"grid"_s, 3}});
    awaitMeasurements(focus, 3);
    focus.write(lens, std::int64_t{444});
    control<QPushButton>(focus, "search"_s)->click();
    await([&] { return focus.window().job().done() > 2; });
    QVERIFY(!control<QPushButton>(focus, "search"_s)->isEnabled());
    focus.window().job().cancel();
    await([&] { return !focus.window().job().isRunning(); });
    QVERIFY(hasLabel(focus, "The measurement was cancelled."_s));
    QCOMPARE(lensPosition(focus), 444);
    QVERIFY(!focus.window().result());
}

void TestFocusAssistant::lensTurnedByHandIsFollowed()
{
    FocusUnderTest focus("1001"_s, {{"grid"_s, 3}});
    awaitMeasurements(focus, 1);
    moveLens(focus, 420);
    control<QPushButton>(focus, "forget"_s)->click();
    awaitMeasurements(focus, 3);
    QVERIFY(!control<QPushButton>(focus, "tilt"_s)->isEnabled());
    for (const std::int64_t position : {450, 465, 475, 485, 495, 505, 515, 530, 560})
        moveLens(focus, position);
    QVERIFY(focus.window().session().history().share() < 0.5);
    QCOMPARE(
        control<QLabel>(focus, "advice"_s)->text(), "Turn back: the peak lies in the other direction."_s);
    QVERIFY(control<QPushButton>(focus, "tilt"_s)->isEnabled());
    control<QPushButton>(focus, "tilt"_s)->click();
    QVERIFY(focus.window().result());
    QVERIFY(!focus.window().result()->axis); // Positions are times.
    QVERIFY(hasLabel(focus, focus.find<FocusPanel>()->sentences().join(QLatin1Char('\n'))));
}

void TestFocusAssistant::pictureThatSaysNothingIsExplained()
{
    FocusUnderTest focus("1001"_s);
    awaitMeasurements(focus, 3);
    auto *const problem = control<QLabel>(focus, "problem"_s);
    QVERIFY(!problem->isVisible());
    const std::pair<const char *, QString> targets[]
        = {{"LensCap", "too dark"_s}, {"FlatField", "no edges"_s}};
    for (const auto &[target, text] : targets) {
        focus.write("SceneTarget", std::string(target));
        await([&, expected = text] { return problem->isVisible() && problem->text().contains(expected); });
        QVERIFY(!control<QPushButton>(focus, "search"_s)->isEnabled());
    }
    focus.write("SceneTarget", std::string("Chart"));
    await([&] { return !problem->isVisible(); });
}

void TestFocusAssistant::lineScanCameraHasOneRow()
{
    FocusUnderTest focus("2001"_s, {{"grid"_s, 9}});
    awaitMeasurements(focus, 2);
    QCOMPARE(focus.window().session().measurement()->grid.rows, 1);
    QCOMPARE(focus.window().session().measurement()->regions.size(), std::size_t{9});
    QVERIFY(control<QLabel>(focus, "corners"_s)->text().startsWith("Left end: "_s));
}

void TestFocusAssistant::resetAndGridBeginAnew()
{
    FocusUnderTest focus("1002"_s);
    awaitMeasurements(focus, 5);
    QCOMPARE(focus.window().session().measurement()->regions.size(), std::size_t{25});
    control<QSpinBox>(focus, "grid"_s)->setValue(7);
    QCOMPARE(focus.window().session().history().peak(), 0.0);
    awaitMeasurements(focus, 2);
    QCOMPARE(focus.window().session().measurement()->regions.size(), std::size_t{49});
}

void TestFocusAssistant::everyControlHasAnAccessibleName()
{
    FocusUnderTest focus("1001"_s);
    awaitMeasurements(focus, 2);
    int count = 0;
    QCOMPARE(unnamedControls(focus.window(), count), QStringList());
    QVERIFY(count > 5);
}

QTEST_MAIN(TestFocusAssistant)
#include "TestFocusAssistant.moc"
