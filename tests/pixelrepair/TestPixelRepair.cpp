#include "sdk/imagefile/DefectMapFile.h"
#include "tests/toolundertest/SimulatedCameras.h"
#include "tests/toolundertest/ToolUnderTest.h"
#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/kit/widgets/StepCard.h"
#include "tools/kit/widgets/StepList.h"
#include "tools/pixelrepair/RepairPanel.h"
#include "tools/pixelrepair/RepairWindow.h"
#include "tools/pixelrepair/ResultBox.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QtTest>

namespace {

QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

class RepairUnderTest : public ToolUnderTest<RepairWindow>
{
public:
    explicit RepairUnderTest(const QString &camera) : ToolUnderTest<RepairWindow>(camera)
    {
        await([this] { return button(RepairPanel::DarkStep)->isEnabled(); });
    }

    RepairPanel &panel() { return window().panel(); }
    QPushButton *button(RepairPanel::Step step) { return panel().step(step).button(); }
    ImageCanvas &canvas() { return *find<ImageCanvas>(); }

    void choose(const std::string &feature, const std::string &entry) { write(feature, entry); }

    /// A running stream locks the feature; the next measurement starts the stream again.
    void choosePixelFormat(const std::string &entry)
    {
        await([this] { return window().stream().state() == LiveStream::State::Running; });
        window().stream().stop();
        await([this] { return window().stream().state() == LiveStream::State::Stopped; });
        choose("PixelFormat", entry);
    }

    std::string read(const std::string &feature)
    {
        std::string text;
        call([&](CvxCPP::Device &device) { return device.ReadText(feature, text); });
        return text;
    }

    /// Clicks the button of a step and waits for the end of the measurement.
    void measure(RepairPanel::Step step, const std::string &target)
    {
        choose("SceneTarget", target);
        button(step)->click();
        await([this] { return !window().job().isRunning(); });
    }

    /// Returns the sentence that a step shows, apart from its title and its instruction.
    bool shows(RepairPanel::Step step, const QString &text)
    {
        for (const QLabel *const label : panel().step(step).findChildren<QLabel *>())
            if (label->isVisible() && label->text().contains(text))
                return true;
        return false;
    }

    /// Returns the brightness of the brightest pixel of the screen below the marks.
    int brightness()
    {
        const QImage pixels = canvas().picture().pixels;
        int brightest = 0;
        for (int y = 0; y < pixels.height(); ++y)
            for (int x = 0; x < pixels.width(); ++x)
                brightest = std::max(brightest, qGray(pixels.pixel(x, y)));
        return brightest;
    }

    QTableView *table() { return window().findChild<QTableView *>("defects"_s); }
    int rows() { return table()->model()->rowCount(); }

    /// Returns how many pixels of the screen have a colour that only marks have.
    int markedPixels()
    {
        const QImage screen = canvas().grab().toImage();
        int count = 0;
        for (int y = 0; y < screen.height(); ++y)
            for (int x = 0; x < screen.width(); ++x) {
                const QColor color = screen.pixelColor(x, y);
                count += color.saturation() > 100 && color.value() > 150 ? 1 : 0;
            }
        return count;
    }
};

} // namespace

/// Tests the window of Pixel Repair on simulated cameras.
class TestPixelRepair : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void defectsAreFoundShownAndSaved();
    void wrongImagesAreExplained();
    void cancelledMeasurementLeavesTheCameraAsItWas();
    void lostCameraKeepsTheImages();
    void everyControlHasAnAccessibleName();

private:
    SimulatedCameras m_cameras;
};

void TestPixelRepair::init()
{
    m_cameras.plug({"1001"_s, "1002"_s});
}

void TestPixelRepair::defectsAreFoundShownAndSaved()
{
    RepairUnderTest tool("1001"_s);
    QVERIFY(!tool.button(RepairPanel::BrightStep)->isEnabled());
    tool.write("Gamma", 0.8);
    tool.measure(RepairPanel::DarkStep, "LensCap");
    QVERIFY(tool.shows(RepairPanel::DarkStep, "16 dark image"_s));
    tool.measure(RepairPanel::BrightStep, "FlatField");
    QVERIFY(tool.window().result());
    QCOMPARE(tool.readFloat("Gamma"), 0.8);

    const std::size_t defects = tool.window().result()->counts.pixels;
    QVERIFY(defects >= 2);
    QVERIFY(tool.shows(RepairPanel::BrightStep, "found."_s));
    QVERIFY(tool.rows() >= int(defects));
    await([&] { return tool.markedPixels() > 0; });
    tool.window().findChild<QCheckBox *>("marks"_s)->click();
    await([&] { return tool.markedPixels() == 0; });

    auto *const threshold = tool.window().findChild<QDoubleSpinBox *>("threshold"_s);
    threshold->setValue(100);
    QVERIFY(tool.window().result()->counts.pixels < defects);
    threshold->setValue(6);
    QCOMPARE(tool.window().result()->counts.pixels, defects);

    tool.table()->selectRow(tool.rows() - 1);
    QVERIFY(tool.canvas().view().scale() >= 8);
    tool.canvas().fit();
    tool.choose("SceneTarget", "LensCap"); // Only defects are bright.
    QVERIFY(tool.button(RepairPanel::SaveStep)->isEnabled());
    tool.window().findChild<QCheckBox *>("repaired"_s)->click();
    await([&] { return tool.brightness() <= 20; });

    const QTemporaryDir folder;
    const QString path = folder.filePath("map.json"_s);
    QCOMPARE(ResultSaver::write(path, tool.window().resultFiles()), QString());
    const DefectMapReading reading = readDefectMap(path.toStdString());
    QCOMPARE(reading.map->pixels.size(), defects);
    QCOMPARE(reading.map->width, 320U);
    const DefectMapReading table = readDefectMap(folder.filePath("map.csv"_s).toStdString());
    QCOMPARE(table.map->pixels.size(), defects);
    QFile report(folder.filePath("map.html"_s));
    QVERIFY(report.open(QIODevice::ReadOnly));
    QVERIFY(report.readAll().contains("<img"));
}

void TestPixelRepair::wrongImagesAreExplained()
{
    RepairUnderTest tool("1002"_s);
    tool.choosePixelFormat("RGB8");
    tool.measure(RepairPanel::DarkStep, "LensCap");
    QVERIFY(tool.shows(RepairPanel::DarkStep, "Choose a pixel format"_s));
    tool.choosePixelFormat("BayerRG8");
    tool.measure(RepairPanel::DarkStep, "FlatField");
    QVERIFY(tool.shows(RepairPanel::DarkStep, "Cover the lens, then take the dark images again."_s));
    QVERIFY(!tool.button(RepairPanel::BrightStep)->isEnabled());
    tool.measure(RepairPanel::DarkStep, "LensCap");
    tool.measure(RepairPanel::BrightStep, "LensCap");
    QVERIFY(tool.shows(RepairPanel::BrightStep, "too dark"_s));
    QVERIFY(!tool.window().result());
    tool.measure(RepairPanel::BrightStep, "FlatField");
    QVERIFY(tool.window().result());
}

void TestPixelRepair::cancelledMeasurementLeavesTheCameraAsItWas()
{
    RepairUnderTest tool("1001"_s);
    tool.choose("ExposureAuto", "Continuous");
    tool.choose("SceneTarget", "LensCap");
    tool.button(RepairPanel::DarkStep)->click();
    await([&] { return tool.window().job().done() > 0; });
    QVERIFY(!tool.button(RepairPanel::DarkStep)->isEnabled());
    tool.window().job().cancel();
    await([&] { return !tool.window().job().isRunning(); });
    QVERIFY(tool.shows(RepairPanel::DarkStep, "cancelled"_s));
    QVERIFY(!tool.button(RepairPanel::BrightStep)->isEnabled());
    QCOMPARE(tool.read("ExposureAuto"), std::string("Continuous"));
}

void TestPixelRepair::lostCameraKeepsTheImages()
{
    RepairUnderTest tool("1001"_s);
    tool.measure(RepairPanel::DarkStep, "LensCap");
    signalCameraHost("KILL"_s); // The camera is lost and comes back.
    await([&] { return tool.button(RepairPanel::BrightStep)->isEnabled(); });
    QCOMPARE(tool.panel().steps().current(), int(RepairPanel::BrightStep));
}

void TestPixelRepair::everyControlHasAnAccessibleName()
{
    RepairUnderTest tool("1001"_s);
    tool.measure(RepairPanel::DarkStep, "LensCap");
    tool.measure(RepairPanel::BrightStep, "FlatField");
    int count = 0;
    QCOMPARE(unnamedControls(tool.window(), count), QStringList());
    QVERIFY(count > 10);
}

QTEST_MAIN(TestPixelRepair)
#include "TestPixelRepair.moc"
