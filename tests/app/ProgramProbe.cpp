// Linked into the launcher for TestProgram: says how the SDK behaves, answers the dialogs, and prints what it
// saw to the standard output, one fact per line. The scenario comes in the environment.

#include "sdk/testing/Gate.h"
#include "sdk/testing/ScriptedCvxCPP.h"
#include "tests/support/MarkingTranslator.h"
#include "tests/support/ModalCatcher.h"
#include "ui/MainWindow.h"

#include <QApplication>
#include <QFile>
#include <QPushButton>
#include <QStyle>
#include <QTimer>

#include <cstdio>
#include <thread>

using CvxScripted::Function;

namespace {

void print(const char *fact, const QString &value)
{
    std::printf("%s: %s\n", fact, qUtf8Printable(value));
}

QString yesOrNo(bool value)
{
    return value ? QStringLiteral("yes") : QStringLiteral("no");
}

/// Lives in the running application: watches the window and the dialogs.
class Watcher : public QObject
{
public:
    explicit Watcher(QByteArray scenarioName, CvxScripted::Gate &scanGate)
        : QObject(qApp), scenario(std::move(scenarioName)), gate(scanGate)
    {
        qApp->installEventFilter(this);
        if (scenario.endsWith("translated"))
            QCoreApplication::installTranslator(&translator);
        catcher.onBox = [](QMessageBox &box) {
            print("box title", box.windowTitle());
            print("box text", box.text());
            print("box is critical", yesOrNo(box.icon() == QMessageBox::Critical));
            print("box has only OK", yesOrNo(box.standardButtons() == QMessageBox::Ok));
            print("box has a parent", yesOrNo(box.parent() != nullptr));
            print("SDK was shut down before", yesOrNo(CvxScripted::callCount(Function::Shutdown) > 0));
        };
        connect(&timer, &QTimer::timeout, this, [this] { look(); });
        timer.start(5);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<MainWindow *>(watched)) {
            window = static_cast<MainWindow *>(watched);
            print("window", QStringLiteral("shown"));
        }
        return false;
    }

private:
    void look()
    {
        if (!window)
            return;
        if (scenario == "closed while it scans") {
            if (gate.waitForArrival(std::chrono::milliseconds(0)))
                close();
        } else if (window->findChild<QPushButton *>(QStringLiteral("refreshBtn"))->isEnabled()) {
            close();
        }
    }

    void close()
    {
        timer.stop();
        QFile styleSheet(QStringLiteral(":/styles/style.qss"));
        const bool opened = styleSheet.open(QIODevice::ReadOnly);
        print("style", QApplication::style()->objectName());
        print("style sheet is the resource",
            yesOrNo(opened && qApp->styleSheet() == QString::fromUtf8(styleSheet.readAll())));
        print("style sheet is empty", yesOrNo(qApp->styleSheet().isEmpty()));
        print("scales for high resolutions",
            yesOrNo(QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling)
                && QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps)));
        window->close();
    }

    QByteArray scenario;
    CvxScripted::Gate &gate;
    MarkingTranslator translator;
    ModalCatcher catcher;
    MainWindow *window = nullptr;
    QTimer timer;
};

/// Lives from before main() until after it.
class Probe
{
public:
    Probe() : scenario(qgetenv("LAUNCHER_TEST_SCENARIO"))
    {
        CvxScripted::reset(); // The record is made now, so that it goes after us.
        if (scenario.startsWith("SDK does not start"))
            CvxScripted::script().errors[Function::Startup] = CvxCPP::CvxErrorHostMissing;
        if (scenario == "closed while it scans")
            CvxScripted::script().intercept = [this](const CvxScripted::Call &call) { return hold(call); };
    }

    ~Probe()
    {
        print("starts", QString::number(CvxScripted::callCount(Function::Startup)));
        print("shutdowns", QString::number(CvxScripted::callCount(Function::Shutdown)));
        print("scans", QString::number(CvxScripted::callCount(Function::CountCameras)));
        const bool last = CvxScripted::calls().back().function == Function::Shutdown;
        print("shutdown came last", yesOrNo(last));
    }

    void watch() { new Watcher(scenario, gate); }

private:
    /// Holds the scan until it is seen that the SDK is not shut down meanwhile.
    CvxCPP::CvxError hold(const CvxScripted::Call &call)
    {
        if (call.function != Function::CountCameras)
            return CvxCPP::CvxErrorSuccess;
        gate.open(); // Only tells of the arrival.
        gate.pass();
        const auto bound = std::chrono::milliseconds(300);
        const bool tooEarly = CvxScripted::waitForCalls(Function::Shutdown, 1, bound);
        print("shut down during the scan", yesOrNo(tooEarly));
        return CvxCPP::CvxErrorSuccess;
    }

    QByteArray scenario;
    CvxScripted::Gate gate;
};

Probe probe;

void watch()
{
    probe.watch();
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watch)
