#include "tests/support/ScriptFile.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

/// How a run of the program went.
struct Run
{
    int exitCode = -1;
    QStringList facts; ///< What the probe inside printed.
    QString log;

    bool tells(const char *fact) const { return facts.contains(QString::fromLatin1(fact)); }
};

Run run(const QString &program, const QByteArray &scenario)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LAUNCHER_TEST_SCENARIO"), QString::fromUtf8(scenario));
    environment.insert(QStringLiteral("QT_LOGGING_TO_CONSOLE"), QStringLiteral("1"));
    const QTemporaryDir directory; // Of the run alone: Qt wants a private one, or warns.
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), directory.path());
    // A desktop whose user wants the style "windows".
    ScriptFile::write(directory.filePath(QStringLiteral("kdeglobals")), "[General]\nwidgetStyle=windows\n");
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), directory.path());
    environment.insert(QStringLiteral("XDG_CURRENT_DESKTOP"), QStringLiteral("KDE"));
    environment.insert(QStringLiteral("KDE_FULL_SESSION"), QStringLiteral("true"));
    environment.insert(QStringLiteral("KDE_SESSION_VERSION"), QStringLiteral("5"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, QStringList());
    if (!process.waitForFinished(30000)) {
        process.kill();
        process.waitForFinished();
        return {};
    }
    Run result;
    if (process.exitStatus() == QProcess::NormalExit)
        result.exitCode = process.exitCode();
    result.facts = QString::fromUtf8(process.readAllStandardOutput()).split(QLatin1Char('\n'));
    result.log = QString::fromUtf8(process.readAllStandardError());
    return result;
}

Run runProgram(const QByteArray &scenario)
{
    return run(QStringLiteral(SCRIPTED_LAUNCHER), scenario);
}

/// The same program with nothing embedded.
Run runBareProgram(const QByteArray &scenario)
{
    return run(QStringLiteral(SCRIPTED_LAUNCHER_BARE), scenario);
}

} // namespace

/// The whole program from main() to its exit code, on the scripted SDK.
class TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void startsScansAndEndsWhenItsWindowCloses();
    void looksAsItsStyleSheetSays();
    void refusedStartupShowsOneDialogAndNoWindow();
    void refusedStartupIsReportedInTranslation();
    void missingStyleSheetIsLoggedAndTheProgramRuns();
    void closingDuringAScanWaitsForTheScan();
};

void TestProgram::startsScansAndEndsWhenItsWindowCloses()
{
    const Run result = runProgram("plain");
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.tells("window: shown"));
    QVERIFY(result.tells("starts: 1"));
    QVERIFY(result.tells("scans: 1"));
    QVERIFY(result.tells("shutdowns: 1"));
    QVERIFY(result.tells("shutdown came last: yes"));
    QCOMPARE(result.facts.filter(QStringLiteral("box")), QStringList());
    QCOMPARE(result.log, QString());
}

void TestProgram::looksAsItsStyleSheetSays()
{
    const Run result = runProgram("plain");
    QVERIFY(result.tells("style sheet is the resource: yes"));
    QVERIFY(result.tells("style sheet is empty: no"));
    QVERIFY(result.tells("scales for high resolutions: yes"));
}

void TestProgram::refusedStartupShowsOneDialogAndNoWindow()
{
    const Run result = runProgram("SDK does not start");
    QCOMPARE(result.exitCode, 255);
    QCOMPARE(result.facts.mid(0, 6),
        (QStringList{QStringLiteral("box title: Corvix X initialization failed"),
            QStringLiteral(
                "box text: Failed to initialize the Corvix X system. The launcher will be closed."),
            QStringLiteral("box is critical: yes"), QStringLiteral("box has only OK: yes"),
            QStringLiteral("box has a parent: no"), QStringLiteral("SDK was shut down before: no")}));
    QCOMPARE(result.facts.filter(QStringLiteral("box title")).size(), 1);
    QVERIFY(!result.tells("window: shown"));
    QVERIFY(result.tells("starts: 1"));
    QVERIFY(result.tells("scans: 0"));
    QVERIFY(result.tells("shutdowns: 1"));
}

void TestProgram::refusedStartupIsReportedInTranslation()
{
    const Run result = runProgram("SDK does not start, translated");
    QCOMPARE(result.exitCode, 255);
    QVERIFY(result.tells("box title: [QObject] Corvix X initialization failed"));
    QVERIFY(result.tells("box text: [QObject] Failed to initialize the Corvix X system. "
                         "The launcher will be closed."));
}

void TestProgram::missingStyleSheetIsLoggedAndTheProgramRuns()
{
    const Run result = runBareProgram("plain");
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.tells("window: shown"));
    QVERIFY(result.tells("style: fusion"));
    QVERIFY(result.tells("style sheet is empty: yes"));
    QCOMPARE(result.log.count(QStringLiteral("Failed to load stylesheet\n")), 1);
}

void TestProgram::closingDuringAScanWaitsForTheScan()
{
    const Run result = runProgram("closed while it scans");
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.tells("window: shown"));
    QVERIFY(result.tells("shut down during the scan: no"));
    QVERIFY(result.tells("shutdown came last: yes"));
    QVERIFY(result.tells("shutdowns: 1"));
}

QTEST_GUILESS_MAIN(TestProgram)
#include "TestProgram.moc"
