#include "tests/support/ScriptFile.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct Run
{
    int exitCode = -1;
    QByteArrayList facts; ///< The lines that the probe printed.
    QByteArray log;
};

Run run(const char *program, const char *variable = "UNUSED", const char *value = "")
{
    const QTemporaryDir directory;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(variable), QString::fromLatin1(value));
    environment.insert(QStringLiteral("QT_LOGGING_TO_CONSOLE"), QStringLiteral("1"));
    // Qt would warn about a runtime directory that other users can read.
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), directory.path());
    // The settings of this desktop contain the style "windows", which the program has to ignore.
    ScriptFile::write(directory.filePath(QStringLiteral("kdeglobals")), "[General]\nwidgetStyle=windows\n");
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), directory.path());
    environment.insert(QStringLiteral("XDG_CURRENT_DESKTOP"), QStringLiteral("KDE"));
    environment.insert(QStringLiteral("KDE_FULL_SESSION"), QStringLiteral("true"));
    environment.insert(QStringLiteral("KDE_SESSION_VERSION"), QStringLiteral("5"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QString::fromLatin1(program), QStringList());
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), process.readAllStandardOutput().trimmed().split('\n'),
        process.readAllStandardError()};
}

} // namespace

/// Tests the whole program from main() to its exit code, with the scripted SDK.
class TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void programScansAndExitsWhenItsWindowCloses();
    void missingStyleSheetOnlyCausesALogMessage();
    void failedStartupShowsOnlyADialog();
};

void TestProgram::programScansAndExitsWhenItsWindowCloses()
{
    const Run result = run(SCRIPTED_LAUNCHER);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.facts,
        (QByteArrayList{"style sheet: true true", "style: ", "high-DPI: true true",
            "names: scripted_launcher example.orvelle.CorvixLauncher",
            "OpenGL: ", "starts, scans, shutdowns: 1 1 1", "shutdown is last: true"}));
    QCOMPARE(result.log, QByteArray());
}

void TestProgram::missingStyleSheetOnlyCausesALogMessage()
{
    const Run result = run(SCRIPTED_LAUNCHER_BARE, "QT_XCB_GL_INTEGRATION", "none");
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.facts,
        (QByteArrayList{"style sheet: false true", "style: fusion", "high-DPI: true true",
            "names: scripted_launcher_bare example.orvelle.CorvixLauncher", "OpenGL: none",
            "starts, scans, shutdowns: 1 1 1", "shutdown is last: true"}));
    QCOMPARE(result.log, QByteArray("Failed to load stylesheet\n"));
}

void TestProgram::failedStartupShowsOnlyADialog()
{
    const Run result = run(SCRIPTED_LAUNCHER, "SDK_REFUSES_STARTUP");
    QCOMPARE(result.exitCode, 255);
    QCOMPARE(result.facts,
        (QByteArrayList{"box: [QObject] Corvix X initialization failed [QObject] Failed to initialize the "
                        "Corvix X system. The launcher will be closed.",
            "critical, only OK, parent: true true false", "shutdowns before: 0",
            "starts, scans, shutdowns: 1 0 1", "shutdown is last: true"}));
}

QTEST_GUILESS_MAIN(TestProgram)
#include "TestProgram.moc"
