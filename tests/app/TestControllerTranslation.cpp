#include "tests/app/ControllerTest.h"
#include "tests/support/MarkingTranslator.h"
#include "tests/support/ModalCatcher.h"

using namespace ControllerTest;
using CvxScripted::Function;
using CvxScripted::script;

/// Which texts of the controller are translated, and in which context.
class TestControllerTranslation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::installTranslator(&m_translator); }
    void init() { CvxScripted::reset(); }

    void placeholderIsTranslated();
    void failedLaunchIsTranslated();
    void refusedObserversAreNotTranslated();

private:
    MarkingTranslator m_translator;
};

void TestControllerTranslation::placeholderIsTranslated()
{
    CvxScripted::Gate gate;
    script().intercept = [&gate](const CvxScripted::Call &seen) {
        if (seen.function == Function::CountCameras)
            gate.pass();
        return CvxCPP::CvxErrorSuccess;
    };
    ApplicationController controller;
    QVERIFY(controller.init());
    controller.refreshCameras();
    QCOMPARE(rows().value(0).value(0), QStringLiteral("[ApplicationController] Scanning..."));
    gate.open();
    QTRY_VERIFY(refreshButton()->isEnabled());
}

void TestControllerTranslation::failedLaunchIsTranslated()
{
    const ModalCatcher catcher;
    ApplicationController controller;
    controller.launchTool(QStringLiteral("bin/NoSuchTool"));
    QCOMPARE(catcher.boxes().size(), 1);
    QCOMPARE(catcher.boxes().first().title, QStringLiteral("[ApplicationController] Launch failed"));
    QCOMPARE(catcher.boxes().first().text,
        QStringLiteral("[ApplicationController] Could not launch:\nbin/NoSuchTool"));
}

void TestControllerTranslation::refusedObserversAreNotTranslated()
{
    const ModalCatcher catcher;
    script().errors[Function::RegisterCameraListObserver] = CvxCPP::CvxErrorFailed;
    script().errors[Function::RegisterInterfaceListObserver] = CvxCPP::CvxErrorFailed;
    ApplicationController controller;
    QVERIFY(controller.init());
    QCOMPARE(catcher.boxes().size(), 2);
    for (const ModalCatcher::Box &box : catcher.boxes()) {
        QCOMPARE(box.title, QStringLiteral("Error"));
        QVERIFY(box.text.startsWith(QStringLiteral("Unable to register")));
    }
}

QTEST_MAIN(TestControllerTranslation)
#include "TestControllerTranslation.moc"
