#include "config/InstallRootResolver.h"
#include "tests/app/ControllerTest.h"
#include "tests/support/ModalCatcher.h"
#include "tests/support/ScriptFile.h"

#include <QTemporaryDir>

#include <sys/wait.h>
#include <unistd.h>

using namespace ControllerTest;

/// Tests the start of tools. The tools are real scripts, most of them below the install root of this test
/// program.
class TestLaunchTool : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void toolStartsDetachedInItsOwnDirectory_data();
    void toolStartsDetachedInItsOwnDirectory();
    void failedLaunchIsReported_data();
    void failedLaunchIsReported();

private:
    MarkingTranslator m_translator;
    const QDir m_root{InstallRootResolver::resolve()};
    const QTemporaryDir m_inside{m_root.filePath("launch-XXXXXX"_s)};
    const QTemporaryDir m_outside;
};

void TestLaunchTool::initTestCase()
{
    QCoreApplication::installTranslator(&m_translator);
    QVERIFY(QDir::setCurrent(QDir::rootPath())); // Relative paths must not depend on the working directory.
}

void TestLaunchTool::init()
{
    CvxScripted::reset();
    for (int count = 0; count < 2; ++count)
        QApplication::setOverrideCursor(Qt::CrossCursor); // Every launch has to remove these cursors.
}

void TestLaunchTool::toolStartsDetachedInItsOwnDirectory_data()
{
    QTest::addColumn<QString>("configured");
    QTest::addColumn<QString>("path");
    const QString tool = m_inside.filePath("bin/tool"_s);
    const QString oddName = m_inside.filePath("Bild \u00e4 \"%1\" $HOME tool"_s);
    const QString outside = m_outside.filePath("tool"_s);
    QTest::newRow("relative to the install root") << m_root.relativeFilePath(tool) << tool;
    QTest::newRow("odd name") << m_root.relativeFilePath(oddName) << oddName;
    QTest::newRow("absolute, outside the install root") << outside << outside;
}

void TestLaunchTool::toolStartsDetachedInItsOwnDirectory()
{
    QFETCH(QString, configured);
    QFETCH(QString, path);
    // The tool reports its directory, its name, its number of arguments, the selected camera, its parent and
    // its session. In its line of /proc, the name in parentheses may contain blanks.
    ScriptFile::writeExecutable(path,
        "process=$(sed 's/.*) //' /proc/$$/stat | cut -d ' ' -f 2,4)\n"
        "printf '%s\\n' \"$(pwd -P)\" \"$0\" $# \"$CORVIX_CAMERA\" $process > report.part\n"
        "mv report.part report\n");
    const QString report = QFileInfo(path).absolutePath() + "/report"_s;
    const ModalCatcher catcher;
    ApplicationController controller;
    CameraInfo selected;
    selected.cameraId = "Kamera \u00e4 %1"_s;
    mainWindow()->setSelectedCamera(selected);
    emit mainWindow()->requestLaunchTool(configured);
    QVERIFY(!QApplication::overrideCursor());
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(report), 30000);
    const QStringList lines = QString::fromUtf8(ScriptFile::read(report)).split(QLatin1Char('\n'));
    QCOMPARE(
        lines.mid(0, 4), (QStringList{QFileInfo(path).canonicalPath(), path, "0"_s, "Kamera \u00e4 %1"_s}));
    QVERIFY(lines.at(4).toInt() != getpid());
    QVERIFY(lines.at(5).toInt() != getsid(0));
    QCOMPARE(waitpid(-1, nullptr, WNOHANG), -1); // This process has no child process, running or ended.
    QCOMPARE(catcher.boxes().size(), 0);
}

void TestLaunchTool::failedLaunchIsReported_data()
{
    const auto configured = [this](const char *name, const QByteArray &content, bool isExecutable) {
        const QString path = ScriptFile::write(m_inside.filePath(QString::fromLatin1(name)), content);
        if (isExecutable)
            QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner);
        return m_root.relativeFilePath(path);
    };
    QTest::addColumn<QString>("configured");
    QTest::newRow("missing") << "bin/NoSuchTool"_s;
    QTest::newRow("missing, absolute") << "/nowhere/NoSuchTool"_s;
    QTest::newRow("missing, odd path") << "./bin/../bin//100%1 %2 %L1 tool"_s;
    QTest::newRow("a directory") << m_root.relativeFilePath(m_inside.path());
    QTest::newRow("not executable") << configured("plain", "#!/bin/sh\n", false);
    QTest::newRow("missing interpreter") << configured("script", "#!/nowhere/interpreter\n", true);
    QTest::newRow("an empty file") << configured("empty", QByteArray(), true);
    QTest::newRow("no program format") << configured("garbage", QByteArray(64, '\1'), true);
}

void TestLaunchTool::failedLaunchIsReported()
{
    QFETCH(QString, configured);
    ModalCatcher catcher;
    bool hasOverrideCursor = true;
    catcher.onBox = [&](QMessageBox &) { hasOverrideCursor = QApplication::overrideCursor() != nullptr; };
    ApplicationController controller;
    controller.launchTool(configured);
    QCOMPARE(catcher.boxes().size(), 1);
    const ModalCatcher::Box &box = catcher.boxes().first();
    QCOMPARE(box.title, "[ApplicationController] Launch failed"_s);
    // The message contains the configured path, not the resolved one.
    QCOMPARE(box.text, "[ApplicationController] Could not launch:\n"_s + configured);
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(box.parent.data(), mainWindow());
    QVERIFY(!hasOverrideCursor);
}

QTEST_MAIN(TestLaunchTool)
#include "TestLaunchTool.moc"
