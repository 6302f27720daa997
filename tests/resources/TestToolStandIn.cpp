#include "config/LauncherConfig.h"
#include "packaging/toolstandin/ToolStandInWindow.h"

#include <QFileInfo>
#include <QLabel>
#include <QTest>

/// Tests the program that replaces the SDK's tools in a development installation.
class TestToolStandIn : public QObject
{
    Q_OBJECT

private slots:
    void windowShowsWhichToolWasStarted();
    void everyOtherToolOfThisPlatformHasAStandIn();
};

void TestToolStandIn::windowShowsWhichToolWasStarted()
{
    const QString program = QStringLiteral("/opt/sdk/bin/PixelRepair");
    const ToolStandInWindow window(program);
    QCOMPARE(window.windowTitle(), QStringLiteral("Pixel Repair"));
    QStringList labels;
    for (const QLabel *label : window.findChildren<QLabel *>())
        labels << label->text();
    QVERIFY(labels.contains(program));
    QCOMPARE(ToolStandInWindow::toolName(QStringLiteral("./bin/Unknown")), QStringLiteral("Unknown"));
}

void TestToolStandIn::everyOtherToolOfThisPlatformHasAStandIn()
{
    const QString folder = QStringLiteral(PROGRAM_FOLDER) + QLatin1Char('/');
    const QFileInfo standIn(folder + QStringLiteral("CvxToolStandIn"));
    LauncherConfig config;
    config.load();
    for (const ToolConfig &tool : config.allTools(QStringLiteral("linux_x86_64"))) {
        const QFileInfo program(folder + QFileInfo(tool.executable).fileName());
        const bool isReal
            = tool.id == QStringLiteral("image-viewer") || tool.id == QStringLiteral("camera-setup");
        QCOMPARE(program.canonicalFilePath() == standIn.canonicalFilePath(), !isReal);
    }
    // This tool is for another platform.
    QVERIFY(!QFileInfo::exists(folder + QStringLiteral("FirmwareUpdate")));
}

QTEST_MAIN(TestToolStandIn)
#include "TestToolStandIn.moc"
