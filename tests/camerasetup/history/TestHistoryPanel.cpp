#include "tests/camerasetup/values/SetupBench.h"
#include "tools/camerasetup/history/HistoryPanel.h"

#include <QAction>
#include <QClipboard>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

using namespace CvxCPP;

namespace {

const QString width = QStringLiteral("Width");
const QString automatic = QStringLiteral("ExposureAuto");

QTableView *tableOf(const HistoryPanel &panel)
{
    return panel.findChild<QTableView *>();
}

QStringList rowOf(const HistoryPanel &panel, int row, int role = Qt::DisplayRole)
{
    const QAbstractItemModel *const model = tableOf(panel)->model();
    QStringList cells;
    for (int column = 1; column < model->columnCount(); ++column)
        cells.append(model->index(row, column).data(role).toString());
    return cells;
}

} // namespace

class TestHistoryPanel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void showsValuesForPeople();
    void actionsFollowHistory();
    void newestRowIsVisible();
    void copiesRowsAsTheyAreInFiles();
    void opensFeature();
    void writesScript();
};

void TestHistoryPanel::showsValuesForPeople()
{
    SetupBench bench([](TestDevice &device) {
        scriptSetupCamera(device);
        device.feature("Width").info.displayName = "Image width";
        device.add("ReverseX", false);
    });
    const HistoryPanel panel(bench.history);
    bench.write(width, std::int64_t(700));
    bench.write(automatic, std::string("Continuous"));
    bench.write(QStringLiteral("ReverseX"), true);
    bench.write(QStringLiteral("Gain"), 2.5);
    bench.history.addEdits(
        QStringLiteral("R&D.txt"), {{{}, "OffsetX", "0", "8"}, {{}, "OffsetX", "8", "16"}});
    const QStringList rows[]
        = {{QStringLiteral("Image width"), QStringLiteral("640 px"), QStringLiteral("700 px")},
            {automatic, QStringLiteral("Off shown"), QStringLiteral("Continuous shown")},
            {QStringLiteral("ReverseX"), QStringLiteral("Off"), QStringLiteral("On")},
            {QStringLiteral("Gain [All shown]"), QStringLiteral("1"), QStringLiteral("2.5")},
            {QStringLiteral("OffsetX"), QStringLiteral("0"), QStringLiteral("8")},
            {QStringLiteral("OffsetX"), QStringLiteral("8"), QStringLiteral("16")}};
    QCOMPARE(tableOf(panel)->model()->rowCount(), int(std::size(rows)));
    for (int row = 0; row < int(std::size(rows)); ++row)
        QCOMPARE(rowOf(panel, row), rows[row]);
    QCOMPARE(rowOf(panel, 0, Qt::ToolTipRole)[0], QStringLiteral("<qt>Width"));
    QCOMPARE(rowOf(panel, 4, Qt::ToolTipRole)[0], QStringLiteral("<qt>R&amp;D.txt<br>OffsetX"));
}

void TestHistoryPanel::actionsFollowHistory()
{
    SetupBench bench;
    const HistoryPanel panel(bench.history);
    QVERIFY(!panel.undoAction()->isEnabled() && !panel.redoAction()->isEnabled());
    bench.write(width, std::int64_t(700));
    QVERIFY(panel.undoAction()->isEnabled() && !panel.redoAction()->isEnabled());
    QVERIFY(!tableOf(panel)->model()->index(0, 0).data(Qt::ForegroundRole).isValid());
    panel.undoAction()->trigger();
    QTRY_VERIFY_WITH_TIMEOUT(panel.redoAction()->isEnabled(), hangTimeout);
    QVERIFY(!panel.undoAction()->isEnabled());
    QVERIFY(tableOf(panel)->model()->index(0, 0).data(Qt::ForegroundRole).isValid());
    QCOMPARE(rowOf(panel, 1),
        (QStringList{QStringLiteral("Undo: Width"), QStringLiteral("700 px"), QStringLiteral("640 px")}));
    const auto other = std::make_shared<OpenableCamera>("CAM-2");
    bench.bench.connection.open(OpenableCamera::entry(other), CvxAccessControl);
    QCOMPARE(tableOf(panel)->model()->rowCount(), 0);
}

void TestHistoryPanel::newestRowIsVisible()
{
    SetupBench bench;
    HistoryPanel panel(bench.history);
    panel.resize(400, 200);
    panel.show();
    for (int row = 0; row < 40; ++row)
        bench.history.addEdits(width, {{{}, "Width", "640", std::to_string(641 + row)}});
    const QTableView &table = *tableOf(panel);
    const QRect last = table.visualRect(table.model()->index(39, 0));
    QVERIFY(table.viewport()->rect().contains(last.center()));
    QVERIFY(table.verticalScrollBar()->maximum() > 0);
}

void TestHistoryPanel::copiesRowsAsTheyAreInFiles()
{
    SetupBench bench;
    HistoryPanel panel(bench.history);
    panel.show();
    bench.history.addEdits(
        width, {{{}, "Width", "640", "700"}, {{{"GainSelector", "Red"}}, "Gain", "1", "2.25"}});
    QTableView &table = *tableOf(panel);
    table.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&panel, hangTimeout));
    table.selectAll();
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    const QString time = bench.history.entries()[0].time.toString(Qt::ISODate);
    QCOMPARE(QApplication::clipboard()->text(),
        QStringLiteral("%1\tWidth\t640\t700\n%1\tGain [GainSelector=Red]\t1\t2.25\n").arg(time));
}

void TestHistoryPanel::opensFeature()
{
    SetupBench bench;
    HistoryPanel panel(bench.history);
    panel.show();
    QSignalSpy requested(&panel, &HistoryPanel::featureRequested);
    bench.history.addEdits(width, {{{}, "OffsetX", "0", "8"}, {{}, "Width", "640", "700"}});
    const QTableView &table = *tableOf(panel);
    const QPoint second = table.visualRect(table.model()->index(1, 1)).center();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, second);
    QVERIFY(requested.isEmpty());
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, second);
    QCOMPARE(requested, QList<QVariantList>{{width}});
}

void TestHistoryPanel::writesScript()
{
    SetupBench bench;
    const HistoryPanel panel(bench.history);
    bench.history.addEdits(width, {{{}, "Width", "640", "700"}});
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("changes.sh"));
    QCOMPARE(panel.writeScript(path), QString());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()), bench.history.script());
    QVERIFY(QFileInfo(path).isExecutable());
    QVERIFY(
        panel.writeScript(dir.filePath(QStringLiteral("none/changes.sh"))).contains(QStringLiteral("none")));
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files).size(), 1);
}

QTEST_MAIN(TestHistoryPanel)
#include "TestHistoryPanel.moc"
