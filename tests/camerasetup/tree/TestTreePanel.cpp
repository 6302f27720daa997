#include "tests/camerasetup/tree/PanelBench.h"
#include "tools/camerasetup/tree/InPlaceEditor.h"
#include "tools/kit/editors/EditorNote.h"

#include <QComboBox>
#include <QPushButton>
#include <QScrollBar>

#include <algorithm>

using namespace CvxCPP;

namespace {

/// Types into the editor that is open.
void type(const FeatureTreeView &view, const QString &text)
{
    QTest::keyClicks(view.openEditor()->focusProxy(), text);
}

void press(const FeatureTreeView &view, Qt::Key key)
{
    QTest::keyClick(view.openEditor()->focusProxy(), key);
}

} // namespace

class TestTreePanel : public QObject
{
    Q_OBJECT

private slots:
    void treeStaysWhileTheCameraIsLost();
    void onlyVisibleRowsAreRead();
    void valueIsEditedInItsCell();
    void textIsEditedInItsCell();
    void typedTextIsKeptUntilItIsGivenUp();
    void keysChangeWithoutEditor();
    void enumerationIsChosenFromItsList();
    void lockedFeatureSaysWhy();
    void streamIsPausedForAChange();
    void escapeClosesTheEditorAfterAFailedPause();
    void registerLeadsToTheDetails();
    void onlyForeignChangesAreMarked();
    void searchOpensAndRestoresTheTree();
    void hiddenFeatureCanBeShown();
    void stateIsRemembered();
};

void TestTreePanel::treeStaysWhileTheCameraIsLost()
{
    PanelBench bench;
    QAbstractItemModelTester tester(&bench.model());
    QVERIFY(bench.select("Number150"));
    QTRY_COMPARE_WITH_TIMEOUT(bench.valueOf("Number150"), QStringLiteral("150"), hangTimeout);
    const int position = bench.view.verticalScrollBar()->value();
    QVERIFY(position > 0);
    QSignalSpy resets(&bench.model(), &QAbstractItemModel::modelReset);
    const auto colour
        = [&bench] { return bench.model().indexOf(QStringLiteral("Number150")).data(Qt::ForegroundRole); };
    const QVariant usualColour = colour();

    bench.device().lose("The cable is out.");
    QTRY_VERIFY_WITH_TIMEOUT(colour() != usualColour, hangTimeout);
    QCOMPARE(bench.valueOf("Number150"), QStringLiteral("150"));
    bench.device().change([](ScriptedDevice &device) { device.set("Number150", std::int64_t(7)); });
    bench.device().reopen();
    QTRY_COMPARE_WITH_TIMEOUT(bench.valueOf("Number150"), QStringLiteral("7"), hangTimeout);
    QCOMPARE(colour(), usualColour);
    QCOMPARE(bench.panel.currentFeature(), QStringLiteral("Number150"));
    QCOMPARE(bench.view.verticalScrollBar()->value(), position);
    QCOMPARE(resets.count(), 0);
}

void TestTreePanel::onlyVisibleRowsAreRead()
{
    PanelBench bench;
    QVERIFY(bench.select("Number0"));
    bench.waitForCalls();
    QVERIFY(!bench.client.state(QStringLiteral("Number199")));
    QVERIFY(bench.select("Number199"));
    bench.waitForCalls();

    // The first number was scrolled away, so a change is not read.
    const auto readsOfFirst = [&bench] {
        const auto calls = bench.device().calls("ReadStates");
        return std::count_if(calls.begin(), calls.end(), [](const std::vector<std::string> &names) {
            return std::find(names.begin(), names.end(), "Number0") != names.end();
        });
    };
    QTRY_VERIFY_WITH_TIMEOUT(bench.view.indexAt({0, 0}).isValid(), hangTimeout);
    const auto before = readsOfFirst();
    bench.device().setByCamera("Number0", std::int64_t(5));
    bench.device().setByCamera("Number199", std::int64_t(5));
    QTRY_COMPARE_WITH_TIMEOUT(bench.valueOf("Number199"), QStringLiteral("5"), hangTimeout);
    QCOMPARE(readsOfFirst(), before);

    bench.panel.hide();
    bench.waitForCalls();
    bench.device().setByCamera("Number199", std::int64_t(6));
    QCoreApplication::processEvents();
    bench.waitForCalls();
    QCOMPARE(bench.valueOf("Number199"), QStringLiteral("5"));
}

void TestTreePanel::valueIsEditedInItsCell()
{
    PanelBench bench;
    QVERIFY(bench.select("Number3"));
    QTest::keyClick(&bench.view, Qt::Key_F2);
    QVERIFY(bench.view.openEditor());
    type(bench.view, QStringLiteral("42"));
    press(bench.view, Qt::Key_Return);
    QVERIFY(bench.waitForClosedEditor());
    QCOMPARE(bench.value("Number3"), NodeValue(std::int64_t(42)));
    QCOMPARE(bench.valueOf("Number3"), QStringLiteral("42"));
    QVERIFY(bench.view.hasFocus());

    QTest::keyClick(&bench.view, Qt::Key_Return);
    type(bench.view, QStringLiteral("4x"));
    press(bench.view, Qt::Key_Return);
    bench.waitForCalls();
    QVERIFY(bench.view.openEditor()); // Says what is wrong.
    press(bench.view, Qt::Key_Escape);
    QVERIFY(bench.waitForClosedEditor());
    QCOMPARE(bench.value("Number3"), NodeValue(std::int64_t(42)));
}

void TestTreePanel::textIsEditedInItsCell()
{
    PanelBench bench;
    QVERIFY(bench.select("UserText"));
    QTest::keyClick(&bench.view, Qt::Key_F2);
    QVERIFY(bench.view.openEditor());
    type(bench.view, QStringLiteral("Line 2"));
    press(bench.view, Qt::Key_Return);
    QVERIFY(bench.waitForClosedEditor());
    QCOMPARE(bench.value("UserText"), NodeValue("Line 2"));
    QCOMPARE(bench.valueOf("UserText"), QStringLiteral("Line 2"));
}

void TestTreePanel::typedTextIsKeptUntilItIsGivenUp()
{
    PanelBench bench;
    QVERIFY(bench.select("Number3"));
    QTest::keyClick(&bench.view, Qt::Key_F2);
    type(bench.view, QStringLiteral("42"));
    bench.device().setByCamera("Number3", std::int64_t(9));
    QTRY_COMPARE_WITH_TIMEOUT(bench.valueOf("Number3"), QStringLiteral("9"), hangTimeout);
    auto *const line = bench.view.openEditor()->findChild<QLineEdit *>();
    QCOMPARE(line->text(), QStringLiteral("42"));
    press(bench.view, Qt::Key_Escape);
    QVERIFY(bench.waitForClosedEditor());
    bench.waitForCalls();
    QCOMPARE(bench.device().writtenValues("Number3").size(), std::size_t(0));
}

void TestTreePanel::keysChangeWithoutEditor()
{
    PanelBench bench;
    QVERIFY(bench.select("ReverseX"));
    QTest::keyClick(&bench.view, Qt::Key_Space);
    QTRY_COMPARE_WITH_TIMEOUT(bench.valueOf("ReverseX"), QStringLiteral("On"), hangTimeout);
    QVERIFY(bench.select("Reset"));
    QTest::keyClick(&bench.view, Qt::Key_Return);
    bench.waitForCalls();
    QCOMPARE(bench.device().calls("Execute").size(), std::size_t(1));
    QVERIFY(!bench.view.openEditor());
}

void TestTreePanel::enumerationIsChosenFromItsList()
{
    PanelBench bench;
    QVERIFY(bench.select("ExposureAuto"));
    QTest::keyClick(&bench.view, Qt::Key_F2);
    auto *const box = bench.view.openEditor()->findChild<QComboBox *>();
    QTRY_VERIFY_WITH_TIMEOUT(box->view()->isVisible(), hangTimeout);
    QTest::keyClick(box->view(), Qt::Key_Down);
    QTest::keyClick(box->view(), Qt::Key_Return);
    QVERIFY(bench.waitForClosedEditor());
    QCOMPARE(bench.value("ExposureAuto"), NodeValue("Continuous"));
    QCOMPARE(bench.valueOf("ExposureAuto"), QStringLiteral("Continuous shown"));
}

void TestTreePanel::lockedFeatureSaysWhy()
{
    PanelBench bench;
    bench.device().change(
        [](ScriptedDevice &device) { device.set("ExposureAuto", std::string("Continuous")); });
    QVERIFY(bench.select("ExposureTime"));
    const QModelIndex index = bench.model().indexOf(QStringLiteral("ExposureTime"));
    const auto marks
        = [&index] { return FeatureTreeModel::Marks(index.data(FeatureTreeModel::MarksRole).toInt()); };
    QTRY_VERIFY_WITH_TIMEOUT(marks().testFlag(FeatureTreeModel::LockedMark), hangTimeout);
    QTRY_VERIFY_WITH_TIMEOUT(
        index.data(Qt::ToolTipRole).toString().contains(QStringLiteral("Automatic Exposure")), hangTimeout);
    QTest::keyClick(&bench.view, Qt::Key_F2);
    QVERIFY(!bench.view.openEditor());
    bench.device().setByCamera("ExposureAuto", std::string("Off"));
    bench.device().notifyNodes({"ExposureTime"});
    QTRY_VERIFY_WITH_TIMEOUT(!marks().testFlag(FeatureTreeModel::LockedMark), hangTimeout);
    QTest::keyClick(&bench.view, Qt::Key_F2);
    QVERIFY(bench.view.openEditor());
}

void TestTreePanel::streamIsPausedForAChange()
{
    PanelBench bench;
    QVERIFY(bench.select("Width"));
    QTest::keyClick(&bench.view, Qt::Key_F2);
    QVERIFY(!bench.view.openEditor());

    TestPauser pauser(bench);
    pauser.onStop
        = [](ScriptedDevice &device) { device.feature("Width").state.lockReason = LockReason::None; };
    bench.panel.setStreamPauser(&pauser);
    QTest::keyClick(&bench.view, Qt::Key_F2);
    QVERIFY(bench.view.openEditor());
    type(bench.view, QStringLiteral("320"));
    press(bench.view, Qt::Key_Return);
    FeatureEditor &editor = bench.view.openEditor()->editor();
    QVERIFY(!editor.noteText().isEmpty());
    const int rowHeight = bench.view.visualRect(bench.view.currentIndex()).height();
    QTRY_VERIFY_WITH_TIMEOUT(bench.view.openEditor()->height() > rowHeight, hangTimeout);
    editor.acceptQuestion();
    QVERIFY(bench.waitForClosedEditor());
    QCOMPARE(pauser.count, 1);
    QCOMPARE(bench.value("Width"), NodeValue(std::int64_t(320)));
}

void TestTreePanel::escapeClosesTheEditorAfterAFailedPause()
{
    PanelBench bench;
    TestPauser pauser(bench); // The feature stays locked, so the write fails.
    bench.panel.setStreamPauser(&pauser);
    QVERIFY(bench.select("Width"));
    QTest::keyClick(&bench.view, Qt::Key_F2);
    type(bench.view, QStringLiteral("320"));
    press(bench.view, Qt::Key_Return);
    auto *const note = bench.view.openEditor()->findChild<EditorNote *>();
    QTRY_VERIFY_WITH_TIMEOUT(note->isQuestion(), hangTimeout);
    const auto buttons = note->findChildren<QPushButton *>();
    auto *const accept = *std::find_if(
        buttons.begin(), buttons.end(), [](const QPushButton *button) { return button->isVisible(); });
    accept->setFocus();
    QTest::keyClick(accept, Qt::Key_Space);
    QTRY_COMPARE_WITH_TIMEOUT(pauser.count, 1, hangTimeout);
    bench.waitForCalls();
    QTRY_VERIFY_WITH_TIMEOUT(
        bench.view.openEditor() && !note->isQuestion() && !note->text().isEmpty(), hangTimeout);
    QVERIFY(bench.view.openEditor()->isAncestorOf(QApplication::focusWidget()));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QVERIFY(bench.waitForClosedEditor());
}

void TestTreePanel::registerLeadsToTheDetails()
{
    PanelBench bench;
    QSignalSpy requests(&bench.panel, &TreePanel::detailsRequested);
    QVERIFY(bench.select("Table"));
    QTest::keyClick(&bench.view, Qt::Key_Return);
    QCOMPARE(requests.count(), 1);
    QVERIFY(!bench.view.openEditor());
}

void TestTreePanel::onlyForeignChangesAreMarked()
{
    PanelBench bench;
    QVERIFY(bench.select("Number3"));
    std::int64_t value = 50; // A feature is silent for a moment after it was shown.
    QTRY_VERIFY_WITH_TIMEOUT(
        (bench.device().setByCamera("Number3", ++value), !bench.view.marks().isEmpty()), hangTimeout);
    QTRY_VERIFY_WITH_TIMEOUT(bench.view.marks().isEmpty(), hangTimeout);

    bench.client.write(QStringLiteral("Number3"), std::int64_t(11));
    QTRY_COMPARE_WITH_TIMEOUT(bench.valueOf("Number3"), QStringLiteral("11"), hangTimeout);
    bench.waitForCalls();
    QVERIFY(bench.view.marks().isEmpty());
}

void TestTreePanel::searchOpensAndRestoresTheTree()
{
    PanelBench bench;
    QVERIFY(bench.select("Number199"));
    const QModelIndex control = bench.view.filter().indexOf(QStringLiteral("Control"));
    QVERIFY(!bench.view.isExpanded(control));
    bench.search.setText(QStringLiteral("exposure"));
    QVERIFY(bench.view.isExpanded(bench.view.filter().indexOf(QStringLiteral("Control"))));
    QCOMPARE(bench.view.filter().rowCount(), 1);
    QCOMPARE(bench.panel.currentFeature(), QStringLiteral("Number199")); // Its details stay.
    bench.search.clear();
    QVERIFY(!bench.view.isExpanded(bench.view.filter().indexOf(QStringLiteral("Control"))));
    QVERIFY(bench.view.isExpanded(bench.view.filter().indexOf(QStringLiteral("Numbers"))));
    QCOMPARE(bench.view.currentFeature(),
        FeatureTreeModel::featureOf(bench.model().indexOf(QStringLiteral("Number199"))));
}

void TestTreePanel::hiddenFeatureCanBeShown()
{
    PanelBench bench;
    QSignalSpy current(&bench.panel, &TreePanel::currentChanged);
    bench.search.setText(QStringLiteral("number"));
    bench.panel.showFeature(QStringLiteral("Gain"));
    QCOMPARE(bench.search.text(), QString());
    QCOMPARE(bench.view.filter().level(), NodeVisibility::Guru);
    QCOMPARE(current.last().first().toString(), QStringLiteral("Gain"));
    QVERIFY(!bench.view.visualRect(bench.view.currentIndex()).isEmpty());

    QTest::keyClick(&bench.view, Qt::Key_D, Qt::ControlModifier);
    QVERIFY(bench.favourites.contains(QStringLiteral("Gain")));
}

void TestTreePanel::stateIsRemembered()
{
    PanelBench first;
    QVERIFY(!first.view.isExpanded(first.view.filter().indexOf(QStringLiteral("Control")))); // A large tree.
    first.panel.showFeature(QStringLiteral("Gain"));
    first.view.setColumnWidth(0, 123);
    first.search.setText(QStringLiteral("number"));
    first.panel.saveState(first.settings.values());

    PanelBench second;
    second.panel.restoreState(first.settings.values());
    QCOMPARE(second.view.filter().level(), NodeVisibility::Guru);
    QCOMPARE(second.view.columnWidth(0), 123);
    QCOMPARE(second.search.text(), QString());
    QVERIFY(second.view.isExpanded(second.view.filter().indexOf(QStringLiteral("Control"))));
    QVERIFY(!second.view.isExpanded(second.view.filter().indexOf(QStringLiteral("Numbers"))));
}

QTEST_MAIN(TestTreePanel)
#include "TestTreePanel.moc"
