#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QtTest>

namespace {

constexpr int bound = 20000; // Milliseconds; only catches a hang.

/// What a run of the program has printed.
struct Run
{
    int status = -1;
    QString output;
    QString error;
};

Run runTool(const QStringList &arguments, const QMap<QString, QString> &variables = {})
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("CORVIX_CAMERA"));
    environment.remove(QStringLiteral("DISPLAY"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("missing")); // Unless it is needed.
    for (auto variable = variables.begin(); variable != variables.end(); ++variable)
        environment.insert(variable.key(), variable.value());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(PRINT_TOOL_START), arguments);
    if (!process.waitForFinished(bound) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
        QString::fromUtf8(process.readAllStandardError())};
}

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

class TestToolStart : public QObject
{
    Q_OBJECT

private slots:
    void cameraIsTakenFromArgumentOrEnvironment_data();
    void cameraIsTakenFromArgumentOrEnvironment();
    void questionsAreAnsweredWithoutDisplay_data();
    void questionsAreAnsweredWithoutDisplay();
    void wrongArgumentsAreRefused_data();
    void wrongArgumentsAreRefused();
    void applicationHasNamesAndLook();
};

void TestToolStart::cameraIsTakenFromArgumentOrEnvironment_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("expected");
    QTest::newRow("none") << QString() << QString() << QString();
    QTest::newRow("argument") << QStringLiteral("2403 ü") << QString() << QStringLiteral("2403 ü");
    QTest::newRow("environment") << QString() << QStringLiteral("CAM é") << QStringLiteral("CAM é");
    QTest::newRow("both") << QStringLiteral("A") << QStringLiteral("B") << QStringLiteral("A");
}

void TestToolStart::cameraIsTakenFromArgumentOrEnvironment()
{
    QFETCH(const QString, argument);
    QFETCH(const QString, variable);
    QFETCH(const QString, expected);
    const QStringList arguments = argument.isEmpty() ? QStringList() : QStringList{argument};
    QMap<QString, QString> variables;
    if (!variable.isEmpty())
        variables.insert(QStringLiteral("CORVIX_CAMERA"), variable);
    const Run run = runTool(arguments, variables);
    QCOMPARE(run.output, QStringLiteral("camera \"%1\"\n").arg(expected));
    QCOMPARE(run.status, 0);
}

void TestToolStart::questionsAreAnsweredWithoutDisplay_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("pattern");
    QTest::newRow("version") << QStringLiteral("--version") << QStringLiteral("^TestTool 1\\.2\\.3\n$");
    QTest::newRow("help") << QStringLiteral(
        "--help") << QStringLiteral("Tests the start of a tool\\.(.|\n)*TestTool.*CAMERA(.|\n)*--version");
}

void TestToolStart::questionsAreAnsweredWithoutDisplay()
{
    QFETCH(const QString, option);
    QFETCH(const QString, pattern);
    const Run run = runTool({option});
    QCOMPARE(run.status, 0);
    QVERIFY2(QRegularExpression(pattern).match(run.output).hasMatch(), qPrintable(run.output));
    QCOMPARE(run.error, QString());
}

void TestToolStart::wrongArgumentsAreRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    QTest::newRow("option") << words("--unknown") << QStringLiteral("--unknown");
    QTest::newRow("short option") << words("-x") << QStringLiteral("-x");
    QTest::newRow("two cameras") << words("A B") << QStringLiteral("B");
}

void TestToolStart::wrongArgumentsAreRefused()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, named);
    const Run run = runTool(arguments);
    QCOMPARE(run.status, 2);
    QCOMPARE(run.output, QString());
    QVERIFY2(run.error.contains(named), qPrintable(run.error));
}

void TestToolStart::applicationHasNamesAndLook()
{
    const Run run = runTool({},
        {{QStringLiteral("WITH_APPLICATION"), QStringLiteral("1")},
            {QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen")}});
    QCOMPARE(run.output, QStringLiteral("camera \"\"\nexample.orvelle.TestTool TestTool 1.2.3 styled\n"));
    QVERIFY2(!run.error.contains(QStringLiteral("parse")),
        qPrintable(run.error)); // Qt reports an invalid style sheet.
}

QTEST_GUILESS_MAIN(TestToolStart)
#include "TestToolStart.moc"
