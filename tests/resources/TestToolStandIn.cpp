#include "config/LauncherConfig.h"
#include "packaging/toolstandin/ToolStandInWindow.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QProcess>
#include <QTest>

namespace {

QString programFolder()
{
    return QStringLiteral(PROGRAM_FOLDER) + QLatin1Char('/');
}

QStringList labelTexts(const QWidget &window)
{
    QStringList texts;
    for (const QLabel *label : window.findChildren<QLabel *>())
        texts << label->text();
    return texts;
}

} // namespace

/// The program that stands in for the SDK's tools in a development installation.
class TestToolStandIn : public QObject
{
    Q_OBJECT

private slots:
    void showsWhichToolWasStartedAndHow();
    void unknownNameIsShownAsItIs();
    void everyToolHasAStandIn_data();
    void everyToolHasAStandIn();
    void noToolOfAnotherPlatformHasOne();
    void startsUnderAToolsName();
};

void TestToolStandIn::showsWhichToolWasStartedAndHow()
{
    const QString program = QStringLiteral("/opt/sdk/bin/PixelRepair");
    const ToolStandInWindow window(program);
    QCOMPARE(window.windowTitle(), QStringLiteral("Pixel Repair"));

    const QStringList texts = labelTexts(window);
    QVERIFY(texts.contains(QStringLiteral("Pixel Repair")));
    QVERIFY(texts.contains(program));
    QVERIFY(texts.contains(QString::number(QCoreApplication::applicationPid())));
    QVERIFY(texts.contains(QDir::currentPath()));
    QCOMPARE(texts.filter(QStringLiteral("stands in for the SDK's tool")).size(), 1);
}

void TestToolStandIn::unknownNameIsShownAsItIs()
{
    QCOMPARE(ToolStandInWindow::toolName(QStringLiteral("./bin/Unheard")), QStringLiteral("Unheard"));
}

void TestToolStandIn::everyToolHasAStandIn_data()
{
    LauncherConfig config;
    config.load();
    QTest::addColumn<QString>("path");
    for (const ToolConfig &tool : config.allTools(QStringLiteral("linux_x86_64")))
        QTest::newRow(qPrintable(tool.id)) << programFolder() + QFileInfo(tool.executable).fileName();
}

void TestToolStandIn::everyToolHasAStandIn()
{
    QFETCH(QString, path);
    const QFileInfo link(path);
    QVERIFY2(link.isSymLink() && link.isExecutable(), qPrintable(path));
    QCOMPARE(link.canonicalFilePath(),
        QFileInfo(programFolder() + QStringLiteral("CvxToolStandIn")).canonicalFilePath());
}

void TestToolStandIn::noToolOfAnotherPlatformHasOne()
{
    QVERIFY(!QFileInfo::exists(programFolder() + QStringLiteral("FirmwareUpdate")));
}

void TestToolStandIn::startsUnderAToolsName()
{
    QProcess process; // Its destructor ends the program if the test fails half-way.
    process.start(programFolder() + QStringLiteral("ImageViewer"), QStringList());
    QVERIFY(process.waitForStarted(5000));
    QVERIFY2(!process.waitForFinished(300), "It should stay until it is closed.");
    process.terminate();
    QVERIFY(process.waitForFinished(5000));
}

QTEST_MAIN(TestToolStandIn)
#include "TestToolStandIn.moc"
