#include "sdk/imagefile/FlatFieldFile.h"
#include "tests/toolundertest/SimulatedCameras.h"
#include "tests/toolundertest/ToolUnderTest.h"
#include "tools/flatfield/FlatFieldPanel.h"
#include "tools/flatfield/FlatFieldWindow.h"
#include "tools/flatfield/LevelBar.h"
#include "tools/kit/widgets/StepCard.h"
#include "tools/kit/widgets/StepList.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

namespace {

QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

/// The window on a camera, and what a person does with it.
class FlatFieldUnderTest : public ToolUnderTest<FlatFieldWindow>
{
public:
    explicit FlatFieldUnderTest(const QString &camera) : ToolUnderTest(camera)
    {
        await([this] { return step(0)->button()->isEnabled(); });
        find<QSpinBox>()->setValue(8);
    }

    StepCard *step(int index) { return find<StepList>()->step(index); }

    /// Lets the camera look at something, clicks the button of a step, and waits until it has ended.
    void perform(int index, const std::string &target)
    {
        start(index, target);
        await([this] { return !window().job().isRunning(); });
    }

    void start(int index, const std::string &target)
    {
        write("SceneTarget", target);
        step(index)->button()->click();
        await([this] { return window().job().isRunning(); });
    }

    /// Returns everything that a step says.
    QString textOf(int index)
    {
        QString text;
        for (const QLabel *label : step(index)->findChildren<QLabel *>())
            text += label->text() + QLatin1Char('\n');
        return text;
    }

    /// Returns the percentage in the first row of the table.
    double shading(int column)
    {
        return QLocale().toDouble(find<QTableWidget>()->item(0, column)->text().section(QChar::Nbsp, 0, 0));
    }
};

} // namespace

/// Tests the window of Flat Field with the real SDK on simulated cameras.
class TestFlatField : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void shadingIsMeasuredAndItsCorrectionSaved();
    void lineScanCameraIsMeasured();
    void forgottenLensCapIsReported();
    void cancelledStepLeavesTheCameraAsItWas();
    void levelOfTheLivePictureIsShown();
    void everyControlHasAnAccessibleName();

private:
    SimulatedCameras m_cameras;
};

void TestFlatField::init()
{
    m_cameras.plug({"1001"_s, "1002"_s, "2001"_s});
}

void TestFlatField::shadingIsMeasuredAndItsCorrectionSaved()
{
    FlatFieldUnderTest tool("1002"_s);
    const double exposure = tool.readFloat("ExposureTime");
    tool.perform(0, "LensCap");
    QCOMPARE(tool.find<StepList>()->current(), 1);
    QVERIFY(!tool.action("Save the correction…"_s).isEnabled());
    tool.perform(1, "FlatField");
    QVERIFY2(tool.find<StepList>()->current() == 2, qPrintable(tool.textOf(1)));
    QVERIFY2(tool.shading(1) > 5, qPrintable(QString::number(tool.shading(1))));
    QVERIFY2(tool.shading(2) < 1, qPrintable(QString::number(tool.shading(2))));
    QCOMPARE(tool.readFloat("ExposureTime"), exposure);

    const QTemporaryDir folder;
    tool.step(2)->button()->click();
    chooseResultFile(tool.window(), folder.filePath("field.tif"_s));
    await([&] { return tool.find<StepList>()->current() == 3; });
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files),
        (QStringList{"field.html"_s, "field.json"_s, "field.tif"_s}));
    const FlatFieldReading reading = readFlatField(folder.filePath("field.tif"_s).toStdString());
    QVERIFY2(reading.field, reading.problem.c_str());
    QCOMPARE(reading.field->width, 320U);
    QFile report(folder.filePath("field.html"_s));
    QVERIFY(report.open(QIODevice::ReadOnly));
    QVERIFY(report.readAll().count("<img") >= 3);
}

void TestFlatField::lineScanCameraIsMeasured()
{
    FlatFieldUnderTest tool("2001"_s);
    tool.perform(0, "LensCap");
    tool.perform(1, "FlatField");
    QVERIFY2(tool.find<StepList>()->current() == 2, qPrintable(tool.textOf(1)));
    QVERIFY(tool.shading(2) < tool.shading(1) / 3);
}

void TestFlatField::forgottenLensCapIsReported()
{
    FlatFieldUnderTest tool("1001"_s);
    tool.perform(0, "FlatField");
    QVERIFY2(tool.textOf(0).contains("Cover the lens completely. If"_s), qPrintable(tool.textOf(0)));
    QCOMPARE(tool.find<StepList>()->current(), 0);
    QVERIFY(!tool.step(1)->button()->isEnabled());
}

void TestFlatField::cancelledStepLeavesTheCameraAsItWas()
{
    FlatFieldUnderTest tool("1001"_s);
    tool.perform(0, "LensCap");
    const double exposure = tool.readFloat("ExposureTime");
    tool.find<QSpinBox>()->setValue(1000);
    tool.start(1, "FlatField");
    await([&] { return tool.window().job().done() > 0; }); // The exposure time is set by then.
    tool.window().job().cancel();
    await([&] { return !tool.window().job().isRunning(); });
    QCOMPARE(tool.readFloat("ExposureTime"), exposure);
    QCOMPARE(tool.find<StepList>()->current(), 1);
    QVERIFY2(tool.textOf(1).contains("cancelled"_s), qPrintable(tool.textOf(1)));
}

void TestFlatField::levelOfTheLivePictureIsShown()
{
    FlatFieldUnderTest tool("1001"_s);
    auto *const level = tool.find<LevelBar>();
    tool.write("SceneTarget", std::string("LensCap"));
    await([&] { return level->text().startsWith("2 %"_s) || level->text().startsWith("1 %"_s); });
    tool.write("SceneTarget", std::string("FlatField"));
    tool.write("ExposureTime", 90000.0);
    await([&] { return level->text().contains("clipped"_s); });
}

void TestFlatField::everyControlHasAnAccessibleName()
{
    FlatFieldUnderTest tool("1001"_s);
    tool.perform(0, "LensCap");
    tool.perform(1, "FlatField");
    int count = 0;
    const QStringList unnamed = unnamedControls(tool.window(), count);
    QVERIFY2(count > 6, qPrintable(QString::number(count)));
    QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join("; "_s)));
}

QTEST_MAIN(TestFlatField)
#include "TestFlatField.moc"
