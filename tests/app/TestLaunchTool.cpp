#include "tests/app/ControllerTest.h"
#include "tests/app/Descriptors.h"
#include "tests/support/ModalCatcher.h"
#include "tests/support/ScriptFile.h"

#include "config/InstallRootResolver.h"

#include <QDir>
#include <QTemporaryDir>

#include <sys/wait.h>
#include <unistd.h>

using namespace ControllerTest;

namespace {

/// A tool that writes what it finds beside itself, one file each; "report" appears last.
QByteArray reportingTool()
{
    return "here=$(dirname \"$0\")\n"
           "(ls -l /proc/$$/fd) > \"$here/descriptors\"\n" // In a subshell, or the shell itself has it open.
           "cat /proc/$$/environ > \"$here/environment\"\n"
           "cat /proc/$$/stat > \"$here/stat\"\n"
           "printf '%s\\n%s\\n%s\\n' \"$(pwd -P)\" \"$0\" \"$#\" > \"$here/report.part\"\n"
           "mv \"$here/report.part\" \"$here/report\"\n";
}

} // namespace

/// Starting tools: real scripts, below the install root that this program has.
class TestLaunchTool : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void relativePathCountsFromTheInstallRoot();
    void absolutePathIsUsedAsItIs();
    void absolutePathOutsideTheInstallRootStarts();
    void toolRunsInItsOwnDirectoryWithoutArguments();
    void nameMayHoldBlanksAndLetters();
    void toolIsDetached();
    void toolOutlivesTheController();
    void toolInheritsNoDescriptor();
    void toolInheritsTheEnvironmentUnchanged();
    void tileRequestReachesTheLaunch();
    void startedToolGivesNoBox();

    void failedLaunchIsReported_data();
    void failedLaunchIsReported();
    void failureNamesThePathAsConfigured_data();
    void failureNamesThePathAsConfigured();

    void noOverrideCursorIsLeft_data();
    void noOverrideCursorIsLeft();
    void noOverrideCursorIsLeftWhileTheBoxIsOpen();

private:
    QString path(const QString &name) const { return m_directory->filePath(name); }
    QString relative(const QString &name) const { return m_root.relativeFilePath(path(name)); }
    QStringList report() const
    {
        return QString::fromUtf8(ScriptFile::read(path(QStringLiteral("report")))).split(QLatin1Char('\n'));
    }
    bool hasReported() const { return QFileInfo::exists(path(QStringLiteral("report"))); }

    /// The fields of /proc/PID/stat of the tool.
    QList<QByteArray> stat() const { return ScriptFile::read(path(QStringLiteral("stat"))).split(' '); }

    QDir m_root{InstallRootResolver::resolve()};
    std::unique_ptr<QTemporaryDir> m_directory; // A directory of its own for every test.
    std::unique_ptr<ApplicationController> m_controller;
};

void TestLaunchTool::init()
{
    CvxScripted::reset();
    m_directory = std::make_unique<QTemporaryDir>(m_root.filePath(QStringLiteral("launch-XXXXXX")));
    QVERIFY(m_directory->isValid());
    m_controller = std::make_unique<ApplicationController>();
}

void TestLaunchTool::cleanup()
{
    m_controller.reset();
    m_directory.reset();
}

void TestLaunchTool::relativePathCountsFromTheInstallRoot()
{
    ScriptFile::writeExecutable(path(QStringLiteral("bin/tool")), reportingTool());
    const QString directory = QDir::currentPath();
    QVERIFY(QDir::setCurrent(QStringLiteral("/")));
    const auto goBack = qScopeGuard([&] { QDir::setCurrent(directory); });
    m_controller->launchTool(relative(QStringLiteral("bin/tool")));
    QTRY_VERIFY(QFileInfo::exists(path(QStringLiteral("bin/report"))));
}

void TestLaunchTool::absolutePathIsUsedAsItIs()
{
    ScriptFile::writeExecutable(path(QStringLiteral("tool")), reportingTool());
    m_controller->launchTool(path(QStringLiteral("tool")));
    QTRY_VERIFY(hasReported());
    QCOMPARE(report().at(1), path(QStringLiteral("tool")));
}

void TestLaunchTool::absolutePathOutsideTheInstallRootStarts()
{
    const QTemporaryDir outside;
    const QString tool
        = ScriptFile::writeExecutable(outside.filePath(QStringLiteral("tool")), reportingTool());
    m_controller->launchTool(tool);
    QTRY_VERIFY(QFileInfo::exists(outside.filePath(QStringLiteral("report"))));
}

void TestLaunchTool::toolRunsInItsOwnDirectoryWithoutArguments()
{
    ScriptFile::writeExecutable(path(QStringLiteral("tool")), reportingTool());
    m_controller->launchTool(relative(QStringLiteral("tool")));
    QTRY_VERIFY(hasReported());
    QCOMPARE(report().at(0), QFileInfo(m_directory->path()).canonicalFilePath());
    QCOMPARE(report().at(2), QStringLiteral("0"));
    QVERIFY(QDir::current() != QDir(m_directory->path()));
}

void TestLaunchTool::nameMayHoldBlanksAndLetters()
{
    const QString name = QStringLiteral("Bild \u00e4 \"%1\" $HOME tool");
    ScriptFile::writeExecutable(path(name), reportingTool());
    m_controller->launchTool(relative(name));
    QTRY_VERIFY(hasReported());
    QCOMPARE(report().at(1), path(name));
}

void TestLaunchTool::toolIsDetached()
{
    ScriptFile::writeExecutable(path(QStringLiteral("tool")), reportingTool());
    m_controller->launchTool(relative(QStringLiteral("tool")));
    QTRY_VERIFY(hasReported());
    const int parentField = 3;
    const int sessionField = 5;
    QVERIFY(stat().value(parentField).toInt() != getpid());
    QVERIFY(stat().value(sessionField).toInt() != getsid(0));
    QCOMPARE(waitpid(-1, nullptr, WNOHANG), -1); // There is no child of ours, running or dead.
}

void TestLaunchTool::toolOutlivesTheController()
{
    // Waits for "go", for ten seconds at most, and then tells that it is still there.
    ScriptFile::writeExecutable(path(QStringLiteral("tool")),
        "touch started\n"
        "for i in $(seq 200); do [ -e go ] && break; sleep 0.05; done\n"
        "[ -e go ] && touch report\n");
    m_controller->launchTool(relative(QStringLiteral("tool")));
    QTRY_VERIFY(QFileInfo::exists(path(QStringLiteral("started"))));
    m_controller.reset();
    ScriptFile::write(path(QStringLiteral("go")), QByteArray());
    QTRY_VERIFY(hasReported());
}

void TestLaunchTool::toolInheritsNoDescriptor()
{
    ScriptFile::writeExecutable(path(QStringLiteral("tool")), reportingTool());
    m_controller->launchTool(relative(QStringLiteral("tool")));
    QTRY_VERIFY(hasReported());
    QStringList open = Descriptors::targets(ScriptFile::read(path(QStringLiteral("descriptors"))));
    QVERIFY(open.size() >= 3);
    QVERIFY(open.removeOne(path(QStringLiteral("tool")))); // The shell reads the script through it.
    for (const QString &target : open)
        QVERIFY2(Descriptors::inheritedAtStart().contains(target), qPrintable(target));
}

void TestLaunchTool::toolInheritsTheEnvironmentUnchanged()
{
    QList<QByteArray> ours;
    for (char **entry = environ; *entry; ++entry)
        ours.append(*entry);
    ScriptFile::writeExecutable(path(QStringLiteral("tool")), reportingTool());
    m_controller->launchTool(relative(QStringLiteral("tool")));
    QTRY_VERIFY(hasReported());
    QList<QByteArray> theirs = ScriptFile::read(path(QStringLiteral("environment"))).split('\0');
    QVERIFY(theirs.takeLast().isEmpty());
    std::sort(ours.begin(), ours.end());
    std::sort(theirs.begin(), theirs.end());
    QCOMPARE(theirs, ours);
}

void TestLaunchTool::tileRequestReachesTheLaunch()
{
    ScriptFile::writeExecutable(path(QStringLiteral("tool")), reportingTool());
    emit mainWindow()->requestLaunchTool(relative(QStringLiteral("tool")));
    QTRY_VERIFY(hasReported());
}

void TestLaunchTool::startedToolGivesNoBox()
{
    const ModalCatcher catcher;
    ScriptFile::writeExecutable(path(QStringLiteral("tool")), reportingTool());
    m_controller->launchTool(relative(QStringLiteral("tool")));
    QTRY_VERIFY(hasReported());
    processQueuedEvents();
    QVERIFY(catcher.boxes().isEmpty());
}

void TestLaunchTool::failedLaunchIsReported_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << QStringLiteral("missing");
    QTest::newRow("a directory") << QStringLiteral("directory");
    QTest::newRow("not executable") << QStringLiteral("plain");
    QTest::newRow("an interpreter that is missing") << QStringLiteral("no-interpreter");
    QTest::newRow("an empty file") << QStringLiteral("empty");
    QTest::newRow("no program format") << QStringLiteral("garbage");
    QTest::newRow("a link that leads nowhere") << QStringLiteral("dangling");
}

void TestLaunchTool::failedLaunchIsReported()
{
    QFETCH(QString, name);
    const auto executable = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    QDir().mkpath(path(QStringLiteral("directory")));
    ScriptFile::write(path(QStringLiteral("plain")), "#!/bin/sh\n");
    ScriptFile::write(path(QStringLiteral("no-interpreter")), "#!/nowhere/interpreter\n");
    ScriptFile::write(path(QStringLiteral("empty")), QByteArray());
    ScriptFile::write(path(QStringLiteral("garbage")), QByteArray(64, '\1'));
    QFile::link(path(QStringLiteral("gone")), path(QStringLiteral("dangling")));
    for (const char *made : {"no-interpreter", "empty", "garbage"})
        QFile::setPermissions(path(QString::fromLatin1(made)), executable);

    const ModalCatcher catcher;
    m_controller->launchTool(relative(name));
    QCOMPARE(catcher.boxes().size(), 1);
    const ModalCatcher::Box &box = catcher.boxes().first();
    QCOMPARE(box.title, QStringLiteral("Launch failed"));
    QCOMPARE(box.text, QStringLiteral("Could not launch:\n") + relative(name));
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(box.parent.data(), mainWindow());
}

void TestLaunchTool::failureNamesThePathAsConfigured_data()
{
    QTest::addColumn<QString>("configured");
    QTest::newRow("relative") << QStringLiteral("bin/NoSuchTool");
    QTest::newRow("absolute") << QStringLiteral("/nowhere/NoSuchTool");
    QTest::newRow("not tidied up") << QStringLiteral("./bin/../bin//NoSuchTool");
    QTest::newRow("with places") << QStringLiteral("bin/100%1 %2 %L1 tool");
}

void TestLaunchTool::failureNamesThePathAsConfigured()
{
    QFETCH(QString, configured);
    const ModalCatcher catcher;
    m_controller->launchTool(configured);
    QCOMPARE(catcher.boxes().size(), 1);
    QCOMPARE(catcher.boxes().first().text, QStringLiteral("Could not launch:\n") + configured);
}

void TestLaunchTool::noOverrideCursorIsLeft_data()
{
    QTest::addColumn<bool>("starts");
    QTest::addColumn<int>("cursorsBefore");
    QTest::newRow("started, none before") << true << 0;
    QTest::newRow("started, some before") << true << 3;
    QTest::newRow("failed, none before") << false << 0;
    QTest::newRow("failed, some before") << false << 3;
}

void TestLaunchTool::noOverrideCursorIsLeft()
{
    QFETCH(bool, starts);
    QFETCH(int, cursorsBefore);
    const ModalCatcher catcher;
    ScriptFile::writeExecutable(path(QStringLiteral("tool")), reportingTool());
    for (int count = 0; count < cursorsBefore; ++count)
        QApplication::setOverrideCursor(Qt::CrossCursor);
    m_controller->launchTool(relative(starts ? QStringLiteral("tool") : QStringLiteral("missing")));
    QVERIFY(!QApplication::overrideCursor());
    QCOMPARE(catcher.boxes().size(), starts ? 0 : 1);
    QTRY_COMPARE(hasReported(), starts); // Or its directory would go while it writes.
}

void TestLaunchTool::noOverrideCursorIsLeftWhileTheBoxIsOpen()
{
    ModalCatcher catcher;
    bool freeCursor = false;
    catcher.onBox = [&freeCursor](QMessageBox &) { freeCursor = !QApplication::overrideCursor(); };
    QApplication::setOverrideCursor(Qt::BusyCursor);
    m_controller->launchTool(QStringLiteral("bin/NoSuchTool"));
    QCOMPARE(catcher.boxes().size(), 1);
    QVERIFY(freeCursor);
}

QTEST_MAIN(TestLaunchTool)
#include "TestLaunchTool.moc"
