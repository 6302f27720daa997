#include "tests/toolundertest/SimulatedCameras.h"
#include "tests/toolundertest/ToolUnderTest.h"
#include "tools/kit/assistant/AssistantWindow.h"
#include "tools/kit/assistant/CameraSettings.h"
#include "tools/kit/assistant/MeasureBar.h"
#include "tools/kit/assistant/SentenceText.h"
#include "tools/kit/canvas/CanvasOverlay.h"
#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/kit/canvas/LivePicture.h"
#include "tools/kit/editors/FeatureEditor.h"

#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
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
                              {{{"AcquisitionLineRate"_s, "AcquisitionLineRateAbs"_s}, "No line rate."_s},
                                  {{"ExposureTime"_s}, "No exposure."_s}},
                              {"ExposureTime"_s, "NoSuchFeature"_s, "PixelFormat"_s}},
            toolSettings)
    {
        panel = new QPushButton("Measure"_s);
        setPanel(panel);
        resultMenu()->addAction("&Save…"_s);
        finish({{"X"_s, "Example key"_s}});
        connect(this, &AssistantWindow::cameraChanged, panel, [this] { ++changeCount; });
    }

    using AssistantWindow::canMeasure;
    using AssistantWindow::canvas;
    using AssistantWindow::picture;

    QPushButton *panel;
    int changeCount = 0;
};

using ExampleUnderTest = ToolUnderTest<ExampleWindow>;

bool hasPicture(ExampleUnderTest &tool)
{
    return !tool.window().picture().canvas().picture().image.isNull();
}

} // namespace

/// Tests the window of an assistant on simulated cameras.
class TestAssistantWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cameraWithTheFeaturesCanBeMeasured();
};

QTEST_MAIN(TestAssistantWindow)
