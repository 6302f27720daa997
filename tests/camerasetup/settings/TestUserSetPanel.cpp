#include "tests/camerasetup/settings/SettingsBench.h"
#include "tools/camerasetup/settings/UserSetPanel.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

using namespace CvxCPP;

namespace {

/// A shown panel that has read the user sets.
struct PanelBench
{
    explicit PanelBench(CvxAccess access = CvxAccessControl) : PanelBench(defineSettingsCamera, access) { }

    explicit PanelBench(const EditorBench::Script &script, CvxAccess access = CvxAccessControl)
        : bench(script, access), panel({bench.camera.client, bench.jobs, bench.history, bench.opening})
    {
        panel.show();
        if (!QTest::qWaitFor([this] { return !bench.jobs.isBusy(); }, hangTimeout))
            qFatal("The user sets are not read.");
        list = child<QTreeWidget>(panel, "userSets");
    }

    QPushButton *button(const char *name) { return child<QPushButton>(panel, name); }
    QString text(const char *name) { return child<QLabel>(panel, name)->text(); }
    void select(int row) { list->setCurrentItem(list->topLevelItem(row)); }

    /// Presses a button and answers its question; returns the text of the question.
    QString answer(const char *name, const QString &answerText)
    {
        button(name)->click();
        auto *const question = panel.findChild<QMessageBox *>(QStringLiteral("question"));
        const QString text = question->text();
        for (QAbstractButton *const choice : question->buttons()) {
            if (choice->text() == answerText)
                choice->click();
        }
        delete question;
        return text;
    }

    QString value(const char *name)
    {
        return QString::fromStdString(std::get<std::string>(bench.camera.value(name)));
    }
    std::int64_t width() { return std::get<std::int64_t>(bench.camera.value("Width")); }

    SettingsBench bench;
    UserSetPanel panel;
    QTreeWidget *list;
};

} // namespace

class TestUserSetPanel : public QObject
{
    Q_OBJECT

private slots:
    void showsTheSetsAndWhatTheyAllow();
    void loadAsksAndCanBeUndone();
    void saveAsksAndReportsFailures();
    void choosesTheSetForPowerOn();
    void watchingAllowsNothing();
    void forgottenAndFailedReadsAreRepeated();
    void cameraWithoutUserSetsSaysSo();
};

void TestUserSetPanel::showsTheSetsAndWhatTheyAllow()
{
    PanelBench bench;
    QCOMPARE(bench.list->topLevelItemCount(), 2);
    QCOMPARE(bench.list->topLevelItem(0)->text(0), QStringLiteral("Default shown"));
    QCOMPARE(bench.list->topLevelItem(0)->text(1), QStringLiteral("✓ yes"));
    QCOMPARE(bench.list->topLevelItem(1)->text(1), QString());
    QVERIFY(bench.button("load")->isEnabled());
    QVERIFY(!bench.button("save")->isEnabled());
    QVERIFY(!bench.button("default")->isEnabled());
    QCOMPARE(bench.text("reason"),
        QStringLiteral(
            "\"Default shown\" cannot be saved. Locked while User Set Selector is Default shown."));
    bench.select(1);
    QVERIFY(bench.button("save")->isEnabled());
    QVERIFY(bench.button("default")->isEnabled());
    QCOMPARE(bench.value("UserSetSelector"), QStringLiteral("Default")); // The selector is restored.
    QSignalSpy compared(&bench.panel, &UserSetPanel::compareRequested);
    bench.button("compare")->click();
    QCOMPARE(compared.first().first().toString(), QStringLiteral("UserSet0"));
}

void TestUserSetPanel::loadAsksAndCanBeUndone()
{
    PanelBench bench;
    bench.select(1);
    const QString question = bench.answer("load", QStringLiteral("Cancel"));
    QVERIFY2(
        question.contains(QStringLiteral("are overwritten")) && !question.contains(QStringLiteral("differ")),
        qPrintable(question));
    QVERIFY(!bench.bench.jobs.isBusy());
    const int pauses = bench.bench.pauser.count;
    bench.answer("load", QStringLiteral("&Load"));
    QTRY_COMPARE_WITH_TIMEOUT(bench.text("message"),
        QStringLiteral("\"UserSet0 shown\" was loaded, which changed 1 setting(s)."), hangTimeout);
    QCOMPARE(bench.width(), std::int64_t(320));
    QCOMPARE(bench.bench.pauser.count, pauses + 1);
    QCOMPARE(bench.value("UserSetSelector"), QStringLiteral("Default"));
    QCOMPARE(bench.bench.history.undoTitle(), QStringLiteral("Load user set \"UserSet0 shown\""));
    bench.bench.history.undo();
    QTRY_COMPARE_WITH_TIMEOUT(bench.width(), std::int64_t(640), hangTimeout);
}

void TestUserSetPanel::saveAsksAndReportsFailures()
{
    PanelBench bench;
    bench.select(1);
    const QString question = bench.answer("save", QStringLiteral("&Save"));
    QVERIFY(question.contains(QStringLiteral("\"UserSet0 shown\"")));
    QVERIFY(question.contains(QStringLiteral("cannot be undone")));
    QTRY_COMPARE_WITH_TIMEOUT(bench.text("message"),
        QStringLiteral("The present settings were saved as \"UserSet0 shown\"."), hangTimeout);
    bench.bench.camera.device().change([](ScriptedDevice &script) {
        QCOMPARE(script.writes.back(), std::string("UserSetSelector")); // Put back after the command.
        script.set("Width", std::int64_t(100));
        script.feature("UserSetSave").rule
            = [](NodeState &state) { state.lockReason = LockReason::LockedByNode; };
    });
    bench.answer("save", QStringLiteral("&Save"));
    QTRY_COMPARE_WITH_TIMEOUT(
        bench.text("message"), QStringLiteral("\"UserSetSave\" cannot be executed."), hangTimeout);
    bench.answer("load", QStringLiteral("&Load"));
    QTRY_COMPARE_WITH_TIMEOUT(bench.width(), std::int64_t(640), hangTimeout);
}

void TestUserSetPanel::choosesTheSetForPowerOn()
{
    PanelBench bench;
    bench.select(1);
    bench.button("default")->click();
    QTRY_COMPARE_WITH_TIMEOUT(bench.list->topLevelItem(1)->text(1), QStringLiteral("✓ yes"), hangTimeout);
    QCOMPARE(bench.value("UserSetDefault"), QStringLiteral("UserSet0"));
    QCOMPARE(bench.list->topLevelItem(0)->text(1), QString());
    QTRY_VERIFY_WITH_TIMEOUT(bench.bench.history.canUndo(), hangTimeout);
    bench.bench.history.undo();
    QTRY_COMPARE_WITH_TIMEOUT(bench.value("UserSetDefault"), QStringLiteral("Default"), hangTimeout);
}

void TestUserSetPanel::watchingAllowsNothing()
{
    PanelBench bench(CvxAccessWatch);
    bench.select(1);
    for (const char *const name : {"load", "save", "default"}) {
        QVERIFY(!bench.button(name)->isEnabled());
        QCOMPARE(bench.button(name)->toolTip(),
            QStringLiteral("The camera is only watched, so nothing can be changed."));
    }
    QVERIFY(!bench.button("compare")->isEnabled());
    QCOMPARE(bench.button("compare")->toolTip(),
        QStringLiteral("The camera is only watched, so its user sets cannot be loaded."));
}

void TestUserSetPanel::forgottenAndFailedReadsAreRepeated()
{
    SettingsBench bench(defineSettingsCamera);
    UserSetControl control({bench.camera.client, bench.jobs, bench.history, bench.opening});
    QSignalSpy failures(&control, &UserSetControl::failed);
    const auto wait = [](CvxCPP::Device &, const FeatureProgress &) { return CvxResult(); };
    bench.jobs.start(QStringLiteral("Other work"), CameraJobs::StreamUse::Keep, wait, &control, {});
    control.read(); // It waits for the other work.
    bench.jobs.cancel();
    QTRY_COMPARE_WITH_TIMEOUT(failures.count(), 1, hangTimeout);
    bench.camera.device().change([](ScriptedDevice &device) { device.callsUntilLoss = device.callCount; });
    control.read();
    QTRY_COMPARE_WITH_TIMEOUT(failures.count(), 2, hangTimeout);
    QVERIFY(!control.userSets());
    bench.camera.device().change(
        [](ScriptedDevice &device) { device.callsUntilLoss = std::numeric_limits<std::size_t>::max(); });
    control.read();
    QTRY_VERIFY_WITH_TIMEOUT(control.userSets(), hangTimeout);
    QCOMPARE(control.userSets()->sets.size(), std::size_t(2));
}

void TestUserSetPanel::cameraWithoutUserSetsSaysSo()
{
    PanelBench bench([](TestDevice &camera) { camera.add("Width", std::int64_t(640)); });
    QCOMPARE(bench.text("text"), QStringLiteral("This camera keeps no user sets."));
    QVERIFY(!bench.list->isVisible());
}

QTEST_MAIN(TestUserSetPanel)
#include "TestUserSetPanel.moc"
