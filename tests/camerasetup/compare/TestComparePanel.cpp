#include "sdk/testing/ScriptedCvxCPP.h"
#include "tests/camerasetup/compare/UserSetCamera.h"
#include "tests/kit/editors/EditorBench.h"
#include "tools/camerasetup/compare/ComparePanel.h"
#include "tools/camerasetup/compare/CopyActions.h"
#include "tools/camerasetup/compare/DifferenceView.h"
#include "tools/camerasetup/compare/ExportActions.h"
#include "tools/kit/camera/CameraFinder.h"
#include "tools/kit/start/ToolSettings.h"
#include "tools/kit/widgets/NoteListDialog.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTreeView>
#include <QtTest>

using namespace CvxCPP;

namespace {

/// A panel for a camera with user sets, in a program without a stream.
struct PanelBench
{
    PanelBench()
    {
        jobs.setStreamPauser(&pauser);
        panel.resize(800, 600);
    }

    QString writeFile(const QByteArray &lines)
    {
        const QString path = directory.filePath(QStringLiteral("settings.txt"));
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write("# {05D8C294-F295-4dfb-9D01-096BD04049F4}\n# A comment.\n" + lines);
        return path;
    }

    QByteArray readFile(const QString &name)
    {
        QFile file(directory.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    bool waitUntilDone()
    {
        return QTest::qWaitFor([this] { return !panel.session().isBusy(); }, hangTimeout);
    }

    /// Returns what is shown, for example "Width: 320 px|640 px".
    QStringList shown() const
    {
        QStringList texts;
        for (const DifferenceRow *const row : view->model().shownRows()) {
            texts.append(QStringLiteral("%1: %2|%3")
                             .arg(SettingTexts::rawTitle(row->feature.name, row->feature.selectors),
                                 row->left, row->right));
        }
        return texts;
    }

    bool answer(QMessageBox::ButtonRole role)
    {
        auto *const box = panel.findChild<QMessageBox *>();
        if (!box)
            return false;
        for (QAbstractButton *const button : box->buttons()) {
            if (box->buttonRole(button) == role)
                button->click();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return true;
    }

    template <typename Value>
    void setWidth(Value width)
    {
        bench.device().setByCamera("Width", std::int64_t(width));
    }

    QTemporaryDir directory;
    EditorBench bench{defineUserSetCamera};
    TestPauser pauser{bench};
    CameraJobs jobs{bench.connection};
    PresentSelectors selectors{bench.client};
    OpeningSnapshot opening{bench.client, selectors};
    ChangeHistory history{bench.client, jobs, selectors, opening};
    CameraFinder finder;
    ToolSettings settings{QStringLiteral("Test"), directory.path()};
    ComparePanel panel{{bench.client, finder, jobs, history, opening, settings}};
    DifferenceView *const view = panel.findChild<DifferenceView *>();
    CopyActions *const copy = panel.findChild<CopyActions *>();
    ExportActions *const exports = panel.findChild<ExportActions *>();
};

} // namespace

class TestComparePanel : public QObject
{
    Q_OBJECT

private slots:
    void init() { CvxScripted::reset(); }
    void openingAndNowDifferInWhatWasChanged();
    void nowIsReadAgainForEveryChoice();
    void shownPanelReadsWhatIsMissing();
    void fileIsComparedAndCopiedToTheCamera();
    void copyIsUndoneWithWhatTheCameraChanged();
    void onlyCheckedDifferencesAreCopied();
    void failuresOfACopyAreListed();
    void copyToAFileIsAskedAndKeepsTheRest();
    void userSetIsAskedAndRead();
    void cancelledCopyLeavesTheUserSet();
    void closedCameraEndsTheWork();
    void comparisonIsExported();
    void droppedFileIsASide();
    void doubleClickRequestsTheFeature();
};

void TestComparePanel::openingAndNowDifferInWhatWasChanged()
{
    PanelBench bench;
    QTRY_COMPARE_WITH_TIMEOUT(bench.opening.state(), OpeningSnapshot::State::Complete, hangTimeout);
    bench.setWidth(320);
    bench.panel.compareWithOpening();
    QVERIFY(bench.waitUntilDone());
    QCOMPARE(bench.shown(), QStringList(QStringLiteral("Width: 640 px|320 px")));
    bench.panel.session().swapSides();
    QCOMPARE(bench.shown(), QStringList(QStringLiteral("Width: 320 px|640 px")));
    QVERIFY(!bench.copy->all->isEnabled());
    QVERIFY(!bench.copy->all->toolTip().isEmpty());
}

void TestComparePanel::nowIsReadAgainForEveryChoice()
{
    PanelBench bench;
    QTRY_COMPARE_WITH_TIMEOUT(bench.opening.state(), OpeningSnapshot::State::Complete, hangTimeout);
    for (const int width : {320, 200}) {
        bench.setWidth(width);
        bench.panel.compareWithOpening();
        QVERIFY(bench.waitUntilDone());
        QCOMPARE(bench.shown(), QStringList(QStringLiteral("Width: 640 px|%1 px").arg(width)));
    }
}

void TestComparePanel::shownPanelReadsWhatIsMissing()
{
    PanelBench early; // The opening is not known yet.
    PanelBench late;
    QTRY_VERIFY_WITH_TIMEOUT(late.panel.session().isRead(CompareSession::Left), hangTimeout);
    for (PanelBench *const bench : {&early, &late}) {
        bench->panel.show();
        const CompareSession &session = bench->panel.session();
        QTRY_VERIFY_WITH_TIMEOUT(
            session.isRead(CompareSession::Left) && session.isRead(CompareSession::Right), hangTimeout);
    }
}

void TestComparePanel::fileIsComparedAndCopiedToTheCamera()
{
    PanelBench bench;
    QSignalSpy results(bench.copy, &CopyActions::finished);
    bench.panel.compareWithFile(
        bench.writeFile("Width\t320\nGainSelector\tTap2\nGain\t4\nExposureTime\t100\n"));
    QVERIFY(bench.waitUntilDone());
    QVERIFY(bench.shown().contains(QStringLiteral("Width: 320 px|640 px")));
    QVERIFY(bench.shown().contains(QStringLiteral("Gain [GainSelector=Tap2]: 4|1")));
    bench.copy->all->trigger();
    QVERIFY(bench.waitUntilDone());
    QCOMPARE(bench.bench.value("Width"), NodeValue(std::int64_t(320)));
    QCOMPARE(bench.bench.value("GainSelector"), NodeValue("Tap1"));
    QVERIFY(!bench.shown().join(QLatin1Char(' ')).contains(QStringLiteral("Width")));
    QCOMPARE(results.count(), 1);
    QCOMPARE(results.first().last().toString(), QStringLiteral("good"));
    QCOMPARE(bench.pauser.count, 1);
}

void TestComparePanel::copyIsUndoneWithWhatTheCameraChanged()
{
    PanelBench bench;
    bench.bench.device().change([](ScriptedDevice &device) {
        device.feature("Width").onWrite = [&device](NodeValue &) { device.set("ExposureTime", 50.0); };
    });
    bench.panel.compareWithFile(bench.writeFile("Width\t320\n"));
    QVERIFY(bench.waitUntilDone());
    bench.copy->all->trigger();
    QVERIFY(bench.waitUntilDone());
    QCOMPARE(bench.bench.value("ExposureTime"), NodeValue(50.0));
    bench.history.undo();
    QTRY_COMPARE_WITH_TIMEOUT(bench.bench.value("ExposureTime"), NodeValue(100.0), hangTimeout);
    QTRY_COMPARE_WITH_TIMEOUT(bench.bench.value("Width"), NodeValue(std::int64_t(640)), hangTimeout);
}

void TestComparePanel::onlyCheckedDifferencesAreCopied()
{
    PanelBench bench;
    bench.panel.compareWithFile(bench.writeFile("Width\t320\nExposureTime\t300\n"));
    QVERIFY(bench.waitUntilDone());
    QVERIFY(!bench.copy->checked->isEnabled());
    QAbstractItemModel &model = *bench.panel.findChild<QTreeView *>()->model();
    const QModelIndex category = model.index(0, 0); // The width comes first.
    QVERIFY(model.setData(model.index(0, 0, category), Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(category.data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    bench.copy->checked->trigger();
    QVERIFY(bench.waitUntilDone());
    QCOMPARE(bench.bench.value("Width"), NodeValue(std::int64_t(320)));
    QCOMPARE(bench.bench.value("ExposureTime"), NodeValue(100.0));
}

void TestComparePanel::failuresOfACopyAreListed()
{
    PanelBench bench;
    bench.panel.compareWithFile(bench.writeFile("Width\t9999\nUnknown\t1\n"));
    QVERIFY(bench.waitUntilDone());
    bench.copy->all->trigger();
    QVERIFY(bench.waitUntilDone());
    QVERIFY(bench.panel.findChild<NoteListDialog *>());
    QCOMPARE(bench.bench.value("Width"), NodeValue(std::int64_t(640)));
    QVERIFY(bench.shown().contains(QStringLiteral("Width: 9,999 px|640 px"))
        || bench.shown().contains(QStringLiteral("Width: 9999 px|640 px")));
}

void TestComparePanel::copyToAFileIsAskedAndKeepsTheRest()
{
    PanelBench bench;
    bench.panel.compareWithFile(bench.writeFile("ExposureTime\t5\nWidth\t320\nOther\t1\n"));
    QVERIFY(bench.waitUntilDone());
    bench.panel.session().swapSides();
    bench.copy->all->trigger();
    QVERIFY(!bench.panel.session().isBusy());
    QVERIFY(bench.answer(QMessageBox::RejectRole));
    QVERIFY(bench.readFile(QStringLiteral("settings.txt")).contains("# A comment."));
    bench.copy->all->trigger();
    QVERIFY(bench.answer(QMessageBox::AcceptRole));
    QVERIFY(bench.waitUntilDone());
    const QByteArray content = bench.readFile(QStringLiteral("settings.txt"));
    QVERIFY2(content.contains("ExposureTime\t100\nWidth\t640\nOther\t1\n"), content.constData());
    QCOMPARE(bench.shown(), QStringList(QStringLiteral("Other: |1")));
}

void TestComparePanel::userSetIsAskedAndRead()
{
    PanelBench bench;
    bench.panel.compareWithUserSet(QStringLiteral("UserSet1"));
    QVERIFY(!bench.panel.session().isBusy());
    QVERIFY(bench.answer(QMessageBox::AcceptRole));
    QVERIFY(bench.waitUntilDone());
    QCOMPARE(bench.shown(),
        QStringList() << QStringLiteral("Width: 320 px|640 px")
                      << QStringLiteral("ExposureAuto: Continuous|Off"));
    QCOMPARE(bench.bench.value("Width"), NodeValue(std::int64_t(640)));
    QCOMPARE(bench.bench.value("UserSetSelector"), NodeValue("Default"));
    QCOMPARE(bench.pauser.count, 1);
    QCOMPARE(bench.history.entries().size(), 0);
}

void TestComparePanel::cancelledCopyLeavesTheUserSet()
{
    PanelBench bench;
    QSignalSpy results(bench.copy, &CopyActions::finished);
    bench.panel.session().choose({SideChoice::Kind::File, bench.writeFile("Width\t100\n")},
        {SideChoice::Kind::UserSet, QStringLiteral("UserSet1")});
    QVERIFY(bench.waitUntilDone());
    QVERIFY(bench.shown().contains(QStringLiteral("Width: 100 px|320 px")));
    QSemaphore go;
    const auto wait = [&go](Device &, const FeatureProgress &) {
        go.acquire();
        return CvxResult();
    };
    bench.jobs.start(QStringLiteral("Other work"), CameraJobs::StreamUse::Keep, wait, &bench.panel, {});
    bench.copy->all->trigger();
    QVERIFY(bench.answer(QMessageBox::AcceptRole));
    bench.panel.session().cancel();
    go.release();
    QVERIFY(bench.waitUntilDone());
    QCOMPARE(results.first().first().toString(),
        QStringLiteral("Nothing was copied: The copy was cancelled, so the user set was not changed."));
    bench.copy->all->trigger();
    QVERIFY(bench.answer(QMessageBox::AcceptRole));
    QVERIFY(bench.waitUntilDone());
    QCOMPARE(results.last().last().toString(), QStringLiteral("good"));
    QVERIFY(!bench.shown().join(QLatin1Char(' ')).contains(QStringLiteral("Width")));
    QCOMPARE(bench.bench.value("Width"), NodeValue(std::int64_t(640)));
}

void TestComparePanel::closedCameraEndsTheWork()
{
    PanelBench bench;
    bench.panel.compareWithFile(bench.writeFile("Width\t320\n"));
    bench.bench.connection.close();
    QVERIFY(bench.waitUntilDone());
    QVERIFY(bench.shown().isEmpty());
    QVERIFY(bench.panel.session().isRead(CompareSession::Left));
    QVERIFY(!bench.panel.session().isRead(CompareSession::Right));
    bench.panel.session().refresh();
    QVERIFY(bench.waitUntilDone());
    QVERIFY(!bench.panel.session().problem(CompareSession::Right).isEmpty());
}

void TestComparePanel::comparisonIsExported()
{
    PanelBench bench;
    bench.panel.compareWithFile(bench.writeFile("Width\t320\n"));
    QVERIFY(bench.waitUntilDone());
    bench.exports->saveTo(bench.directory.filePath(QStringLiteral("a.html")));
    QVERIFY(bench.readFile(QStringLiteral("a.html")).startsWith("<!DOCTYPE html>"));
    bench.exports->saveTo(bench.directory.filePath(QStringLiteral("a.txt")));
    QVERIFY(bench.readFile(QStringLiteral("a.txt")).contains("Image width"));
    bench.exports->copy->trigger();
    QVERIFY(QApplication::clipboard()->text().contains(QStringLiteral("File settings.txt")));
    QSignalSpy results(bench.exports, &ExportActions::finished);
    bench.exports->saveTo(QStringLiteral("/nowhere/a.txt"));
    QCOMPARE(results.first().last().toString(), QStringLiteral("error"));
}

void TestComparePanel::droppedFileIsASide()
{
    PanelBench bench;
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(bench.writeFile("Width\t320\n"))});
    QDragEnterEvent enter(QPoint(790, 300), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&bench.panel, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(790, 300), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&bench.panel, &drop);
    QVERIFY(bench.waitUntilDone());
    QCOMPARE(bench.panel.session().choice(CompareSession::Right).kind, SideChoice::Kind::File);
}

void TestComparePanel::doubleClickRequestsTheFeature()
{
    PanelBench bench;
    bench.panel.compareWithFile(bench.writeFile("Width\t320\n"));
    QVERIFY(bench.waitUntilDone());
    bench.panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bench.panel));
    QSignalSpy requests(&bench.panel, &ComparePanel::featureRequested);
    auto &tree = *bench.panel.findChild<QTreeView *>();
    const QModelIndex feature = tree.model()->index(0, 0, tree.model()->index(0, 0));
    const QPoint place = tree.visualRect(feature).center();
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(requests.count(), 1);
    QCOMPARE(requests.first().first().toString(), QStringLiteral("Width"));
}

QTEST_MAIN(TestComparePanel)
#include "TestComparePanel.moc"
