#include "tests/kit/editors/EditorBench.h"
#include "tools/imageviewer/panel/CameraPanel.h"
#include "tools/kit/widgets/CollapsibleGroup.h"

#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

using namespace CvxCPP;

namespace {

/// An old monochrome camera: its features have former names, or are listed but not implemented.
void addOldCamera(TestDevice &device)
{
    addNumber(device, "ExposureTimeAbs", 100.0, 1.0, 1e6);
    addChoice(device, "GainSelector", {"All"});
    addNumber(device, "Gain", 1.0, 0.0, 10.0).state.access = NodeAccess::NotImplemented;
    addNumber(device, "GainRaw", std::int64_t(300), std::int64_t(0), std::int64_t(1000));
    device.select("GainSelector", {"Gain", "GainRaw"});
    addChoice(device, "BalanceRatioSelector", {"Red", "Blue"});
    addNumber(device, "BalanceRatio", 1.0, 0.5, 2.0).state.access = NodeAccess::NotImplemented;
}

void addRegionAndUserSets(TestDevice &device)
{
    addNumber(device, "Width", std::int64_t(640), std::int64_t(16), std::int64_t(640));
    addNumber(device, "Height", std::int64_t(480), std::int64_t(16), std::int64_t(480));
    addChoice(device, "TriggerSelector", {"FrameStart", "LineStart"});
    addChoice(device, "TriggerMode", {"Off", "On"});
    device.select("TriggerSelector", {"TriggerMode"});
    device.set("TriggerMode", std::string("On"));
    addChoice(device, "UserSetSelector", {"Default", "UserSet1"});
    device.addCommand("UserSetSave");
    device.setDependents("TriggerSelector", {"TriggerSelector", "TriggerMode"});
}

/// A shown panel with all groups open.
struct OpenPanel
{
    explicit OpenPanel(const EditorBench::Script &script, CvxAccess access = CvxAccessControl)
        : bench(script, access), panel(bench.client)
    {
        panel.show();
        for (CollapsibleGroup *const group : panel.findChildren<CollapsibleGroup *>())
            group->setOpen(true);
        bench.waitForCalls();
    }

    bool isShown(const char *feature) const
    {
        const FeatureEditor *const editor = panel.editor(QString::fromLatin1(feature));
        return editor && editor->isVisible();
    }

    QStringList groups() const
    {
        QStringList keys;
        for (const CollapsibleGroup *const group : panel.findChildren<CollapsibleGroup *>()) {
            if (group->isVisible())
                keys.append(group->objectName());
        }
        return keys;
    }

    EditorBench bench;
    CameraPanel panel;
};

} // namespace

#define WAIT_FOR(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, hangTimeout)

class TestCameraPanel : public QObject
{
    Q_OBJECT

private slots:
    void onlyImplementedFeaturesAppear();
    void selectorDecidesWhatIsShown();
    void returnedCameraKeepsThePanel();
    void groupsRememberWhetherTheyAreOpen();
    void savingAUserSetAsksFirst();
    void questionIsOnlyAboutTheSelectedUserSet();
    void watchedCameraIsReadOnly();
    void regionIsAppliedInAPause();
    void failedRegionIsExplained();
};

void TestCameraPanel::onlyImplementedFeaturesAppear()
{
    OpenPanel open(addOldCamera);
    WAIT_FOR(open.isShown("ExposureTimeAbs") && open.isShown("GainRaw"));
    WAIT_FOR(open.panel.editor(QStringLiteral("BalanceRatioSelector")));
    QVERIFY(!open.panel.editor(QStringLiteral("Gain")));
    QVERIFY(!open.isShown("GainSelector")); // There is no choice.
    QVERIFY(!open.isShown("BalanceRatioSelector")); // There is nothing to be selected.
    QCOMPARE(open.groups(), (QStringList{QStringLiteral("exposure"), QStringLiteral("gain")}));
}

void TestCameraPanel::selectorDecidesWhatIsShown()
{
    OpenPanel open(addRegionAndUserSets);
    const QString mode = QStringLiteral("TriggerMode");
    WAIT_FOR(open.isShown("TriggerSelector") && open.isShown("TriggerMode"));
    WAIT_FOR(open.bench.client.state(mode)->value == NodeValue(std::string("On")));
    open.bench.client.write(QStringLiteral("TriggerSelector"), std::string("LineStart"));
    WAIT_FOR(open.bench.client.state(mode)->value == NodeValue(std::string("Off")));
}

void TestCameraPanel::returnedCameraKeepsThePanel()
{
    OpenPanel open(addOldCamera);
    WAIT_FOR(open.isShown("GainRaw"));
    const FeatureEditor *const before = open.panel.editor(QStringLiteral("GainRaw"));
    open.bench.device().lose("The cable was unplugged.");
    WAIT_FOR(!before->isEditable());
    open.bench.device().reopen();
    WAIT_FOR(before->isEditable());
    QCOMPARE(open.panel.editor(QStringLiteral("GainRaw")), before);
}

void TestCameraPanel::groupsRememberWhetherTheyAreOpen()
{
    const QTemporaryDir directory;
    QSettings settings(directory.filePath(QStringLiteral("panel.ini")), QSettings::IniFormat);
    OpenPanel open(addRegionAndUserSets);
    open.panel.findChild<CollapsibleGroup *>(QStringLiteral("region"))->setOpen(false);
    open.panel.saveState(settings);

    CameraPanel other(open.bench.client);
    other.restoreState(settings);
    QVERIFY(!other.findChild<CollapsibleGroup *>(QStringLiteral("region"))->isOpen());
    QVERIFY(other.findChild<CollapsibleGroup *>(QStringLiteral("trigger"))->isOpen());
}

void TestCameraPanel::savingAUserSetAsksFirst()
{
    OpenPanel open(addRegionAndUserSets);
    WAIT_FOR(open.isShown("UserSetSave") && open.isShown("UserSetSelector"));
    FeatureEditor *const save = open.panel.editor(QStringLiteral("UserSetSave"));
    WAIT_FOR(save->isEditable());
    save->findChild<QPushButton *>()->click();
    QVERIFY(save->noteText().contains(QStringLiteral("Default")));
    save->acceptQuestion();
    WAIT_FOR(open.bench.device().calls("Execute").size() == 1);
}

void TestCameraPanel::questionIsOnlyAboutTheSelectedUserSet()
{
    OpenPanel open(addRegionAndUserSets);
    WAIT_FOR(open.isShown("UserSetSave") && open.isShown("UserSetSelector"));
    FeatureEditor *const save = open.panel.editor(QStringLiteral("UserSetSave"));
    WAIT_FOR(save->isEditable());
    save->findChild<QPushButton *>()->click();
    QVERIFY(!save->noteText().isEmpty());
    open.bench.device().setByCamera("UserSetSelector", std::string("UserSet1"));
    WAIT_FOR(save->noteText().isEmpty());
    save->acceptQuestion();
    open.bench.waitForCalls();
    QVERIFY(open.bench.device().calls("Execute").empty());
}

void TestCameraPanel::watchedCameraIsReadOnly()
{
    const auto addWatched = [](TestDevice &device) {
        addRegionAndUserSets(device);
        for (const char *const name : {"Width", "TriggerMode"})
            device.feature(name).state.lockReason = LockReason::Watching;
    };
    OpenPanel open(addWatched, CvxAccessWatch);
    WAIT_FOR(open.isShown("Width"));
    QVERIFY(open.panel.findChild<QLabel *>(QStringLiteral("panelNotice"))->isVisible());
    QVERIFY(!open.panel.editor(QStringLiteral("Width"))->isEditable());
    QCOMPARE(open.panel.editor(QStringLiteral("Width"))->noteText(), QString()); // It is said once.
    QVERIFY(!open.panel.editor(QStringLiteral("Width"))->lockReason().isEmpty());
}

void TestCameraPanel::regionIsAppliedInAPause()
{
    OpenPanel open(addRegionAndUserSets);
    TestPauser pauser(open.bench);
    open.panel.setStreamPauser(&pauser);
    QSignalSpy applied(&open.panel, &CameraPanel::regionApplied);
    open.panel.applyRegion(QRect(0, 0, 320, 240), QSize(640, 480));
    WAIT_FOR(applied.size() == 1);
    QCOMPARE(pauser.count, 1);
    QVERIFY(open.bench.value("Width") == NodeValue(std::int64_t(320)));
}

void TestCameraPanel::failedRegionIsExplained()
{
    OpenPanel open(addRegionAndUserSets);
    open.panel.applyRegion(QRect(0, 0, 320, 240), QSize(1280, 960));
    const auto isExplained = [&open] {
        const auto labels = open.panel.findChildren<QLabel *>(QStringLiteral("featureNote"));
        return std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
            return label->isVisible()
                && label->text().startsWith(QStringLiteral("The camera's region has changed"));
        });
    };
    WAIT_FOR(isExplained());
}

QTEST_MAIN(TestCameraPanel)
#include "TestCameraPanel.moc"
