#include "tests/toolundertest/SimulatedCameras.h"
#include "tests/toolundertest/ToolUnderTest.h"
#include "tools/kit/assistant/AssistantWindow.h"
#include "tools/kit/assistant/CameraSettings.h"
#include "tools/kit/assistant/MeasureBar.h"
#include "tools/kit/assistant/WheelGuard.h"
#include "tools/kit/canvas/CanvasOverlay.h"
#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/kit/editors/FeatureEditor.h"

#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QtTest>

#include <optional>

using State = CameraConnection::State;

namespace {

QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

/// A small tool, which needs a line rate.
class ExampleWindow : public AssistantWindow
{
public:
    ExampleWindow(const QString &camera, ToolSettings &toolSettings)
        : AssistantWindow({{"Example"_s, camera, "example"_s},
                              {{{"AcquisitionLineRateAbs"_s, "AcquisitionLineRate"_s}, "No line rate."_s},
                                  {{"ExposureTime"_s}, "No exposure."_s}},
                              {"ExposureTime"_s, "NoSuchFeature"_s, "PixelFormat"_s}},
            toolSettings)
    {
        setPanel(panel);
        resultMenu()->addAction("&Save…"_s);
        finish({{"X"_s, "Example key"_s}});
    }

    using AssistantWindow::canMeasure;
    using AssistantWindow::canvas;

    QPushButton *const panel = new QPushButton("Measure"_s);
};

using ExampleUnderTest = ToolUnderTest<ExampleWindow>;

bool hasPicture(ExampleUnderTest &tool)
{
    return !tool.window().canvas().picture().pixels.isNull();
}

QString missingFeature(ExampleUnderTest &tool)
{
    const auto *const label = tool.window().findChild<QLabel *>("missingFeature"_s);
    return label->isHidden() ? QString() : label->text();
}

/// Returns the features that can be changed beside the measurement.
QStringList shownSettings(ExampleUnderTest &tool)
{
    QStringList names;
    for (const FeatureEditor *const editor : tool.find<CameraSettings>()->findChildren<FeatureEditor *>())
        names.append(editor->feature());
    return names;
}

/// Fills the pixel (10, 10).
class PixelOverlay : public CanvasOverlay
{
public:
    void paint(QPainter &painter, const ViewTransform &view) const override
    {
        painter.fillRect(view.toView(QRectF(10, 10, 1, 1)).adjusted(-1, -1, 1, 1), Qt::magenta);
    }
};

bool isMarked(const ImageCanvas &canvas)
{
    const QPoint place = canvas.view().toView(QPointF(10.5, 10.5)).toPoint();
    return const_cast<ImageCanvas &>(canvas).grab().toImage().pixelColor(place) == QColor(Qt::magenta);
}

} // namespace

/// Tests the window of the assistants with a small tool on simulated cameras.
class TestAssistantWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void suitableCameraIsShownAndCanBeMeasured();
    void missingFeatureIsNamed();
    void otherCameraIsCheckedAnew();
    void measurementIsShownAndCancelledByEscape();
    void closedWindowLeavesTheCameraAsItWas();
    void overlayIsPaintedOverThePicture();
    void wheelChangesOnlyTheValueWithTheFocus();
    void everyControlHasAnAccessibleName();

private:
    SimulatedCameras m_cameras;
};

void TestAssistantWindow::init()
{
    m_cameras.plug({"1001"_s, "2001"_s});
}

void TestAssistantWindow::suitableCameraIsShownAndCanBeMeasured()
{
    ExampleUnderTest tool("2001"_s);
    await([&] { return hasPicture(tool) && tool.window().canMeasure(); });
    QCOMPARE(missingFeature(tool), QString());
    QVERIFY(tool.window().panel->isEnabled());
    await([&] { return shownSettings(tool) == QStringList{"ExposureTime"_s, "PixelFormat"_s}; });

    QAction &live = tool.action("Live picture"_s);
    QVERIFY(live.isChecked());
    live.trigger();
    await([&] { return tool.window().stream().state() == LiveStream::State::Stopped; });
    live.trigger();
    await([&] { return tool.window().stream().state() == LiveStream::State::Running; });
}

void TestAssistantWindow::missingFeatureIsNamed()
{
    ExampleUnderTest tool("1001"_s);
    await([&] { return hasPicture(tool) && !missingFeature(tool).isEmpty(); });
    QCOMPARE(missingFeature(tool), "No line rate."_s);
    QVERIFY(!tool.window().canMeasure());
    QVERIFY(!tool.window().panel->isEnabled());
}

void TestAssistantWindow::otherCameraIsCheckedAnew()
{
    ExampleUnderTest tool("1001"_s);
    await([&] { return !missingFeature(tool).isEmpty(); });
    QSignalSpy spy(&tool.window(), &AssistantWindow::cameraChanged);
    tool.window().connection().close();
    QVERIFY(!spy.isEmpty());
    m_cameras.plug({"2001"_s});
    ExampleUnderTest other("2001"_s);
    await([&] { return other.window().canMeasure(); });
    signalCameraHost("KILL"_s); // The camera is lost and comes back.
    await([&] { return other.state() == State::Open && other.window().canMeasure(); });
}

void TestAssistantWindow::measurementIsShownAndCancelledByEscape()
{
    ExampleUnderTest tool("2001"_s);
    await([&] { return tool.window().canMeasure(); });
    const double before = tool.readFloat("ExposureTime");
    std::atomic<bool> isChanged = false;
    std::optional<QString> problem;
    const auto work = [&](const MeasureContext &context, const CameraRecord &) {
        isChanged = bool(context.device.Write("ExposureTime", before + 10));
        return takeImages(context, 100000, usualImageLimit, [](const CvxCPP::Image &) { return Sentence{}; });
    };
    tool.window().job().start("Taking images"_s, MeasureJob::Changes::PutBack, work, &tool.window(),
        [&](const QString &text) { problem = text; });
    await([&] { return isChanged && tool.window().job().done() > 0; });
    auto *const bar = tool.find<MeasureBar>();
    QVERIFY(bar->isVisible());
    QVERIFY(!tool.find<CameraSettings>()->isEnabled());
    QVERIFY(!tool.action("Live picture"_s).isEnabled());
    QTest::keyClick(&tool.window(), Qt::Key_Escape);
    await([&] { return problem.has_value(); });
    QVERIFY(!problem->isEmpty());
    QVERIFY(!bar->isVisible());
    QVERIFY(tool.find<CameraSettings>()->isEnabled());
    QCOMPARE(tool.readFloat("ExposureTime"), before);
}

void TestAssistantWindow::closedWindowLeavesTheCameraAsItWas()
{
    double before = 0;
    {
        ExampleUnderTest tool("2001"_s);
        await([&] { return tool.window().canMeasure(); });
        before = tool.readFloat("ExposureTime");
        std::atomic<bool> isChanged = false;
        const auto work = [&](const MeasureContext &context, const CameraRecord &) {
            isChanged = bool(context.device.Write("ExposureTime", before + 10));
            return takeImages(
                context, 100000, usualImageLimit, [](const CvxCPP::Image &) { return Sentence{}; });
        };
        tool.window().job().start(
            "Taking images"_s, MeasureJob::Changes::Keep, work, &tool.window(), [](const QString &) {});
        await([&] { return isChanged.load(); });
        tool.window().close();
    }
    ExampleUnderTest again("2001"_s);
    await([&] { return again.window().canMeasure(); });
    QCOMPARE(again.readFloat("ExposureTime"), before);
}

void TestAssistantWindow::overlayIsPaintedOverThePicture()
{
    ExampleUnderTest tool("2001"_s);
    await([&] { return hasPicture(tool); });
    ImageCanvas &canvas = tool.window().canvas();
    const PixelOverlay overlay;
    QVERIFY(!isMarked(canvas));
    canvas.addOverlay(&overlay);
    QVERIFY(isMarked(canvas));
    canvas.removeOverlay(&overlay);
    QVERIFY(!isMarked(canvas));
}

void TestAssistantWindow::wheelChangesOnlyTheValueWithTheFocus()
{
    QWidget panel;
    QVBoxLayout layout(&panel);
    QSpinBox boxes[2];
    for (QSpinBox &box : boxes)
        layout.addWidget(&box);
    const WheelGuard guard(&panel);
    panel.show();
    panel.activateWindow();
    QTRY_VERIFY_WITH_TIMEOUT(panel.isActiveWindow(), 10000);
    boxes[1].setFocus();
    for (QSpinBox &box : boxes) {
        QWheelEvent event(QPointF(5, 5), box.mapToGlobal(QPoint(5, 5)), {}, QPoint(0, 120), Qt::NoButton,
            Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&box, &event);
        QCOMPARE(event.isAccepted(), box.hasFocus());
    }
    QCOMPARE(boxes[0].value(), 0);
    QCOMPARE(boxes[1].value(), 1);
}

void TestAssistantWindow::everyControlHasAnAccessibleName()
{
    ExampleUnderTest tool("2001"_s);
    await([&] { return shownSettings(tool).size() == 2; });
    int count = 0;
    QCOMPARE(unnamedControls(tool.window(), count), QStringList());
    QVERIFY(count >= 4);
}

QTEST_MAIN(TestAssistantWindow)
#include "TestAssistantWindow.moc"
