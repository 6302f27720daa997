#include "tests/toolundertest/SimulatedCameras.h"
#include "tests/toolundertest/ToolUnderTest.h"
#include "tools/camerasetup/SetupWindow.h"
#include "tools/camerasetup/compare/ComparePanel.h"
#include "tools/camerasetup/settings/LoadDialog.h"
#include "tools/camerasetup/settings/RestoreBar.h"
#include "tools/camerasetup/tree/TreePanel.h"
#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/kit/editors/FeatureEditor.h"

#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTreeView>
#include <QtTest>

using State = CameraConnection::State;
using SetupUnderTest = ToolUnderTest<SetupWindow>;

namespace {

QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

/// Waits until the tree shows the features of the camera.
void awaitFeatures(SetupUnderTest &setup)
{
    await([&] { return setup.find<TreePanel>()->findChild<QTreeView *>()->model()->rowCount() > 0; });
}

/// Changes a feature as the editors do: what is visible was read before.
void change(SetupUnderTest &setup, const QString &feature, const CvxCPP::NodeValue &value)
{
    setup.find<TreePanel>()->showFeature(feature);
    await([&] { return setup.window().features().state(feature) != nullptr; });
    setup.window().features().write(feature, value);
}

/// Returns the names of the settings that differ between the opening (left) and now (right).
QStringList differencesToTheOpening(SetupUnderTest &setup)
{
    auto *const panel = setup.find<ComparePanel>();
    bool isCompared = false;
    const auto connection
        = QObject::connect(&panel->session(), &CompareSession::compared, panel, [&] { isCompared = true; });
    panel->compareWithOpening();
    await([&] { return isCompared && !panel->session().isBusy(); });
    QObject::disconnect(connection);
    QStringList names;
    for (const ComparedFeature &feature : panel->session().features()) {
        if (feature.difference != FeatureDifference::Equal && !feature.isIgnorable)
            names.append(QString::fromStdString(feature.name));
    }
    return names;
}

} // namespace

/// Tests that the parts of Camera Setup are connected, with the real SDK on simulated cameras.
class TestSetup : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void namedCameraShowsItsFeatures();
    void changeIsTheOnlyDifferenceToTheOpeningAndIsRestored();
    void changeCanBeUndone();
    void cameraThatWasLostOffersToRestore();
    void windowStaysUsableWhenTheHostHangs();
    void pictureIsShownWhileItsPanelIsOpen();
    void formatIsChangedWhileThePictureIsShown();
    void cameraInUseCanBeWatched();
    void everyControlHasAnAccessibleName();

private:
    SimulatedCameras m_cameras;
};

void TestSetup::init()
{
    m_cameras.plug({"1001"_s, "1002"_s, "2001"_s});
}

void TestSetup::namedCameraShowsItsFeatures()
{
    SetupUnderTest setup("1002"_s);
    awaitFeatures(setup);
    QVERIFY(setup.window().windowTitle().contains("1002"_s));
    auto *const tree = setup.find<TreePanel>();
    tree->showFeature("ExposureTime"_s);
    QCOMPARE(tree->currentFeature(), "ExposureTime"_s);
    // The panel shows the editor of the current feature.
    const auto hasEditor = [&] {
        const QList<FeatureEditor *> editors = setup.window().findChildren<FeatureEditor *>();
        return std::any_of(editors.begin(), editors.end(),
            [](const FeatureEditor *editor) { return editor->feature() == "ExposureTime"_s; });
    };
    await(hasEditor);
}

void TestSetup::changeIsTheOnlyDifferenceToTheOpeningAndIsRestored()
{
    SetupUnderTest setup("1001"_s);
    awaitFeatures(setup);
    QAction &restore = setup.action("As it was when I opened it…"_s);
    await([&] { return restore.isEnabled(); }); // The settings at opening are known.
    QCOMPARE(differencesToTheOpening(setup), QStringList());
    const double before = setup.readFloat("Gain");
    change(setup, "Gain"_s, before + 6);
    await([&] { return setup.readFloat("Gain") == before + 6; });
    QCOMPARE(differencesToTheOpening(setup), QStringList("Gain"_s));

    restore.trigger();
    auto *const dialog = setup.find<LoadDialog>();
    QVERIFY(dialog);
    const QList<QPushButton *> buttons = dialog->findChildren<QPushButton *>();
    const auto load = std::find_if(buttons.begin(), buttons.end(), [](const QPushButton *button) {
        return button->isDefault() || button->text().remove(QLatin1Char('&')) == "Load"_s;
    });
    QVERIFY(load != buttons.end());
    await([&] { return (*load)->isEnabled(); });
    (*load)->click();
    await([&] { return setup.readFloat("Gain") == before; });
    dialog->reject();
    QCOMPARE(differencesToTheOpening(setup), QStringList());
}

void TestSetup::changeCanBeUndone()
{
    SetupUnderTest setup("1001"_s);
    awaitFeatures(setup);
    const double before = setup.readFloat("ExposureTime");
    QAction &undo = setup.action("Undo"_s);
    QVERIFY(!undo.isEnabled());
    change(setup, "ExposureTime"_s, 1234.0);
    await([&] { return undo.isEnabled(); });
    undo.trigger();
    await([&] { return setup.readFloat("ExposureTime") == before; });
    await([&] { return setup.action("Redo"_s).isEnabled(); });
    setup.action("Redo"_s).trigger();
    await([&] { return setup.readFloat("ExposureTime") == 1234.0; });
}

void TestSetup::cameraThatWasLostOffersToRestore()
{
    SetupUnderTest setup("1001"_s);
    awaitFeatures(setup);
    QVERIFY(!setup.find<RestoreBar>()->isVisible());
    m_cameras.plug({"1002"_s});
    await([&] { return setup.state() == State::Lost; });
    m_cameras.plug({"1001"_s, "1002"_s});
    await([&] { return setup.state() == State::Open; });
    await([&] { return setup.find<RestoreBar>()->isVisible(); });
}

void TestSetup::windowStaysUsableWhenTheHostHangs()
{
    SetupUnderTest setup("1001"_s);
    awaitFeatures(setup);
    signalCameraHost("STOP"_s);
    // The SDK ends a process that does not answer, and opens the camera again with what was written.
    setup.window().features().write("ExposureTime"_s, 2500.0);
    await([&] { return setup.state() == State::Lost; });
    setup.find<TreePanel>()->showFeature("Gain"_s); // The tree stays.
    QCOMPARE(setup.find<TreePanel>()->currentFeature(), "Gain"_s);
    await([&] { return setup.state() == State::Open; });
}

void TestSetup::pictureIsShownWhileItsPanelIsOpen()
{
    SetupUnderTest setup("1002"_s);
    awaitFeatures(setup);
    auto *const canvas = setup.find<ImageCanvas>();
    QVERIFY(!canvas->picture().image);
    setup.action("Live picture"_s).trigger();
    await([&] { return canvas->picture().image != nullptr; });
    setup.action("Live picture"_s).trigger();
    const auto isStopped = [&] {
        const CvxCPP::NodeState *const lock = setup.window().features().state("PixelFormat"_s);
        return lock && lock->lockReason == CvxCPP::LockReason::None;
    };
    setup.window().features().watch({"PixelFormat"_s});
    await(isStopped);
}

void TestSetup::formatIsChangedWhileThePictureIsShown()
{
    SetupUnderTest setup("1001"_s);
    awaitFeatures(setup);
    setup.action("Live picture"_s).trigger();
    auto *const canvas = setup.find<ImageCanvas>();
    await([&] { return canvas->picture().image != nullptr; });
    setup.find<TreePanel>()->showFeature("Width"_s);
    FeatureEditor *width = nullptr;
    await([&] {
        const QList<FeatureEditor *> editors = setup.window().findChildren<FeatureEditor *>();
        for (FeatureEditor *editor : editors) {
            if (editor->feature() == "Width"_s && editor->isEditable())
                width = editor;
        }
        return width != nullptr;
    });
    auto *const line = width->findChild<QLineEdit *>();
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, "160"_s);
    QTest::keyClick(line, Qt::Key_Return);
    await([&] { return width->noteText().contains("stopped"_s); });
    width->acceptQuestion();
    await([&] { return canvas->picture().pictureSize.width() == 160; });
    // The history has the change, although the stream was paused for it.
    await([&] { return setup.action("Undo"_s).isEnabled(); });
}

void TestSetup::cameraInUseCanBeWatched()
{
    QProcess other;
    other.start(qEnvironmentVariable("CORVIX_TEST_SDK") + "/bin/cvxctl"_s, {"watch"_s, "1001"_s});
    QVERIFY(other.waitForReadyRead(60000)); // The camera streams.
    SetupUnderTest setup("1001"_s);
    setup.watchOnly();
    awaitFeatures(setup);
    QVERIFY(!setup.window().connection().isControlled());
    QVERIFY(!setup.action("As it was when I opened it…"_s).isEnabled());
    other.terminate();
    QVERIFY(other.waitForFinished(60000));
}

void TestSetup::everyControlHasAnAccessibleName()
{
    SetupUnderTest setup("1002"_s);
    awaitFeatures(setup);
    setup.find<TreePanel>()->showFeature("ExposureTime"_s);
    await([&] { return setup.action("As it was when I opened it…"_s).isEnabled(); });
    int count = 0;
    const QStringList unnamed = unnamedControls(setup.window(), count);
    QVERIFY2(count > 20, qPrintable(QString::number(count)));
    QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join("; "_s)));
}

QTEST_MAIN(TestSetup)
#include "TestSetup.moc"
