// This file is linked into the launcher that TestProgram starts. It closes the dialogs, closes the window
// after the first scan, and prints one fact per line. If the environment contains SDK_REFUSES_STARTUP,
// Startup() fails.

#include "sdk/testing/ScriptedCvxCPP.h"
#include "tests/support/ChildNamed.h"
#include "tests/support/MarkingTranslator.h"
#include "tests/support/ModalCatcher.h"
#include "ui/MainWindow.h"

#include <QFile>
#include <QStyle>

#include <cstdio>

using CvxScripted::callCount;
using CvxScripted::Function;

namespace {

template <typename... Values>
void print(const char *fact, const Values &...values)
{
    std::printf("%s:", fact);
    (std::printf(" %s", qUtf8Printable(QVariant(values).toString())), ...);
    std::puts("");
}

/// Closes the dialogs and the idle window, and prints facts about them. Exists as long as the application
/// object.
class Watcher : public QObject
{
public:
    Watcher() : QObject(qApp)
    {
        QCoreApplication::installTranslator(&m_translator);
        m_catcher.onBox = [](QMessageBox &box) {
            print("box", box.windowTitle(), box.text());
            print("critical, only OK, parent", box.icon() == QMessageBox::Critical,
                box.standardButtons() == QMessageBox::Ok, box.parent() != nullptr);
            print("shutdowns before", int(callCount(Function::Shutdown)));
        };
        m_timer.callOnTimeout(this, [this] { closeIdleWindow(); });
        m_timer.start(5);
    }

private:
    void closeIdleWindow()
    {
        auto *window = qobject_cast<MainWindow *>(QApplication::activeWindow());
        if (!window || !childNamed<QWidget>(*window, "refreshBtn")->isEnabled())
            return;
        m_timer.stop();
        QFile styleSheet(QStringLiteral(":/styles/style.qss"));
        const QByteArray content = styleSheet.open(QIODevice::ReadOnly) ? styleSheet.readAll() : QByteArray();
        print("style sheet", !content.isEmpty(), qApp->styleSheet() == QString::fromUtf8(content));
        print("style", QApplication::style()->objectName()); // The name is empty if there is a style sheet.
        print("high-DPI", QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling),
            QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps));
        print("names", QCoreApplication::applicationName(), QGuiApplication::desktopFileName());
        print("OpenGL", qEnvironmentVariable("QT_XCB_GL_INTEGRATION"));
        window->close();
    }

    MarkingTranslator m_translator;
    ModalCatcher m_catcher;
    QTimer m_timer;
};

/// Sets up the scripted SDK before main() starts, and prints the SDK calls after main() has returned.
class Probe
{
public:
    Probe()
    {
        CvxScripted::reset(); // reset() creates the record of calls, which therefore outlives this object.
        if (qEnvironmentVariableIsSet("SDK_REFUSES_STARTUP"))
            CvxScripted::script().errors[Function::Startup] = CvxCPP::CvxErrorHostMissing;
    }

    ~Probe()
    {
        print("starts, scans, shutdowns", int(callCount(Function::Startup)),
            int(callCount(Function::CountCameras)), int(callCount(Function::Shutdown)));
        print("shutdown is last", CvxScripted::calls().back().function == Function::Shutdown);
    }
};

const Probe probe;

void watch()
{
    new Watcher;
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watch)
