#include "tests/toolundertest/SimulatedCameras.h"
#include "tests/toolundertest/ToolUnderTest.h"
#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/kit/widgets/BigNumber.h"
#include "tools/kit/widgets/StepCard.h"
#include "tools/kit/widgets/StepList.h"
#include "tools/linescantuner/InputsForm.h"
#include "tools/linescantuner/LineScanReport.h"
#include "tools/linescantuner/LineScanWindow.h"
#include "tools/linescantuner/PlanView.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

using State = CameraConnection::State;

namespace {

QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

/// The tool with a simulated object: one line of its chart is 10 µm, and it moves at 100 mm/s.
class TunerUnderTest : public ToolUnderTest<LineScanWindow>
{
public:
    explicit TunerUnderTest(const QString &camera = "2001"_s) : ToolUnderTest(camera)
    {
        await([this] { return state() == State::Open; });
    }

    StepList &steps() { return *find<StepList>(); }

    void awaitStep(int index)
    {
        await([&] { return steps().current() == index && !window().job().isRunning(); });
    }

    void click(int step)
    {
        await([&] { return steps().step(step)->button()->isEnabled(); });
        steps().step(step)->button()->click();
    }

    void enter(const LineScanInputs &inputs)
    {
        auto *const form = find<InputsForm>();
        form->setInputs(inputs);
        emit form->changed();
    }

    /// Waits for the result of a measurement: returns the text that the step shows.
    QString measured(const QString &part)
    {
        QString found;
        await([&] {
            for (const QLabel *label : steps().step(2)->findChildren<QLabel *>())
                if (label->text().contains(part))
                    found = label->text();
            return !found.isEmpty();
        });
        return found;
    }

    std::string readText(const std::string &feature)
    {
        std::string text;
        call([&](CvxCPP::Device &device) { return device.ReadText(feature, text); });
        return text;
    }
};

LineScanInputs wrongSpeed(double speed)
{
    LineScanInputs inputs;
    inputs.speed = speed;
    inputs.objectPixel = 10;
    return inputs;
}

} // namespace

/// Tests that the parts of the Line Scan Tuner are connected, with the real SDK on simulated cameras.
class TestLineScanTuner : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void circleBecomesRoundAfterAWrongRate();
    void circleBecomesRoundWithTheEncoder();
    void writtenSettingsCanBeUndone();
    void liveTargetIsFoundAndChosen();
    void missingTargetAndCancelChangeNothing();
    void inputsAreRememberedForEachCamera();
    void areaScanCameraIsExplained();
    void resultIsSaved();
    void everyControlHasAnAccessibleName();

private:
    SimulatedCameras m_cameras;
};

void TestLineScanTuner::init()
{
    m_cameras.plug({"1001"_s, "2001"_s});
}

void TestLineScanTuner::circleBecomesRoundAfterAWrongRate()
{
    TunerUnderTest tuner;
    tuner.enter(wrongSpeed(108));
    tuner.awaitStep(1);
    tuner.click(1);
    tuner.awaitStep(2);
    QCOMPARE(tuner.readFloat("AcquisitionLineRate"), 10800.0);
    tuner.click(2);
    tuner.measured("too tall: lower the line rate"_s);
    tuner.awaitStep(3);
    tuner.click(3);
    tuner.measured("The circle is round"_s);
    const double rate = tuner.readFloat("AcquisitionLineRate");
    QVERIFY2(std::abs(rate / 10000 - 1) < 0.01, qPrintable(QString::number(rate)));
    tuner.awaitStep(4);
    QVERIFY(std::abs(tuner.find<InputsForm>()->inputs().speed - 100) < 1);
}

void TestLineScanTuner::circleBecomesRoundWithTheEncoder()
{
    TunerUnderTest tuner;
    LineScanInputs inputs = wrongSpeed(0);
    inputs.trigger = LineScanInputs::Trigger::Encoder;
    inputs.encoderStep = 0.008; // It is 0.01.
    tuner.enter(inputs);
    tuner.awaitStep(1);
    tuner.click(1);
    tuner.awaitStep(2);
    QCOMPARE(tuner.readText("EncoderDivider"), std::string("5"));
    tuner.click(2);
    tuner.measured("too flat: raise the lines per encoder pulse from 0.8000"_s);
    tuner.awaitStep(3);
    tuner.click(3);
    tuner.measured("The circle is round"_s);
    QVERIFY(std::abs(tuner.find<InputsForm>()->inputs().encoderStep - 0.01) < 0.0001);
}

void TestLineScanTuner::writtenSettingsCanBeUndone()
{
    TunerUnderTest tuner;
    tuner.enter(wrongSpeed(400)); // 40 kHz need a shorter exposure.
    tuner.awaitStep(1);
    QVERIFY(tuner.find<PlanView>()->warnings().contains("80.0 µs is longer than a line"_s));
    tuner.click(1);
    tuner.awaitStep(2);
    QCOMPARE(tuner.readFloat("ExposureTime"), 25.0);
    const QList<QPushButton *> buttons = tuner.steps().step(1)->findChildren<QPushButton *>();
    const auto undo = std::find_if(buttons.begin(), buttons.end(),
        [](const QPushButton *button) { return button->text() == "Undo what was written"_s; });
    QVERIFY(undo != buttons.end());
    await([&] { return (*undo)->isEnabled(); });
    (*undo)->click();
    tuner.awaitStep(1);
    await([&] { return (*undo)->isHidden(); });
    QCOMPARE(tuner.readFloat("ExposureTime"), 80.0);
    QCOMPARE(tuner.readFloat("AcquisitionLineRate"), 10000.0);
}

void TestLineScanTuner::liveTargetIsFoundAndChosen()
{
    TunerUnderTest tuner;
    auto *const tracker = tuner.find<TargetTracker>();
    std::optional<RoundTarget> largest;
    connect(tracker, &TargetTracker::searched, this, [&](const TargetSearch &search) {
        if (search.target)
            largest = search.target;
    });
    await([&] { return largest.has_value(); });
    QVERIFY(std::abs(largest->heightToWidth() - 1) < 0.01);
    await([&] { return tuner.find<BigNumber>()->text().contains(QLatin1Char('%')); });

    auto *const canvas = tuner.find<ImageCanvas>();
    const QList<QComboBox *> boxes = tuner.window().findChildren<QComboBox *>();
    const auto choice = std::find_if(boxes.begin(), boxes.end(),
        [](const QComboBox *box) { return box->findText("the one that I click"_s) >= 0; });
    (*choice)->setCurrentIndex(1);
    QCOMPARE(canvas->tool(), ImageCanvas::Tool::Pick);
    emit canvas->picked({80, 100}); // A column of the small rings on the left.
    await([&] { return largest->ellipse.centerX < 150; });
    (*choice)->setCurrentIndex(2);
    QCOMPARE(canvas->tool(), ImageCanvas::Tool::Region);
    emit canvas->regionChanged({140, 0, 240, 200});
    await([&] { return std::abs(largest->ellipse.centerX - 256) < 10; });
}

void TestLineScanTuner::missingTargetAndCancelChangeNothing()
{
    TunerUnderTest tuner;
    tuner.enter(wrongSpeed(100));
    tuner.awaitStep(2); // The camera is set up for this already.
    tuner.write("SceneTarget", std::string("LensCap"));
    tuner.click(2);
    tuner.measured("too little contrast"_s);
    tuner.click(2);
    await([&] { return tuner.window().job().isRunning(); });
    tuner.window().job().cancel();
    await([&] { return !tuner.window().job().isRunning(); });
    tuner.measured("cancelled"_s);
    QCOMPARE(tuner.readFloat("AcquisitionLineRate"), 10000.0);
}

void TestLineScanTuner::inputsAreRememberedForEachCamera()
{
    m_cameras.plug({"2001"_s, "2002"_s});
    QVariantMap remembered;
    {
        TunerUnderTest tuner;
        LineScanInputs inputs = wrongSpeed(123);
        tuner.enter(inputs);
        const QString id = tuner.window().connection().camera().id;
        remembered["inputs/"_s + QString::fromLatin1(id.toUtf8().toHex())]
            = QString::fromStdString(toJson(inputs).dump());
    }
    ToolUnderTest<LineScanWindow> again("2001"_s, remembered);
    await([&] { return again.state() == State::Open; });
    QCOMPARE(again.find<InputsForm>()->inputs().speed, 123.0);
    ToolUnderTest<LineScanWindow> other("2002"_s, remembered);
    await([&] { return other.state() == State::Open; });
    QCOMPARE(other.find<InputsForm>()->inputs().speed, 0.0);
}

void TestLineScanTuner::areaScanCameraIsExplained()
{
    TunerUnderTest tuner("1001"_s);
    auto *const missing = tuner.window().findChild<QLabel *>("missingFeature"_s);
    await([&] { return missing->text().contains("takes whole pictures"_s); });
    QVERIFY(!tuner.action("Save the result…"_s).isEnabled());
}

void TestLineScanTuner::resultIsSaved()
{
    TunerUnderTest tuner;
    tuner.enter(wrongSpeed(100));
    tuner.awaitStep(2);
    tuner.click(2);
    tuner.measured("The circle is round"_s);
    const QTemporaryDir folder;
    QAction &save = tuner.action("Save the result…"_s);
    await([&] { return save.isEnabled(); });
    save.trigger();
    chooseResultFile(tuner.window(), folder.filePath("web.json"_s));
    await([&] { return QFile::exists(folder.filePath("web.html"_s)); });
    QFile file(folder.filePath("web.json"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonObject json = QJsonDocument::fromJson(file.readAll()).object();
    QCOMPARE(json["format"_s].toString(), "corvix-x-linescan"_s);
    QCOMPARE(json["camera"_s].toObject()["serialNumber"_s].toString(), "2001"_s);
    const double ratio = json["result"_s].toObject()["before"_s].toObject()["heightToWidth"_s].toDouble();
    QVERIFY(std::abs(ratio - 1) < 0.01);
    QVERIFY(QFile::exists(folder.filePath("web.csv"_s)));
}

void TestLineScanTuner::everyControlHasAnAccessibleName()
{
    TunerUnderTest tuner;
    tuner.enter(wrongSpeed(108));
    tuner.awaitStep(1);
    int count = 0;
    QCOMPARE(unnamedControls(tuner.window(), count), QStringList());
    QVERIFY(count > 8);
}

QTEST_MAIN(TestLineScanTuner)
#include "TestLineScanTuner.moc"
