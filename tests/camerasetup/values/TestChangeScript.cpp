#include "tools/camerasetup/values/ChangeScript.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using Kind = HistoryEntry::Kind;

namespace {

const QDateTime noon(QDate(2030, 1, 2), QTime(12, 0, 1));

HistoryEntry entry(Kind kind, const QString &title, const std::vector<FeatureEdit> &edits)
{
    return {noon, kind, title, edits, false};
}

HistoryEntry undone(HistoryEntry entry)
{
    entry.isUndone = true;
    return entry;
}

QVector<HistoryEntry> entries()
{
    const std::vector<SelectorSetting> red{{"GainSelector", "Red"}};
    const std::vector<SelectorSetting> fixed{{"SourceSelector", "Only"}};
    return {entry(Kind::Edit, QStringLiteral("Gain\nrm -rf \"$HOME\""), {{red, "Gain", "1", "5.5"}}),
        undone(entry(Kind::Edit, QStringLiteral("Width"), {{{}, "Width", "640", "700"}})),
        entry(Kind::Undo, QStringLiteral("Undo: Width"), {{{}, "Width", "700", "640"}}),
        entry(Kind::Load, QStringLiteral("Load a.txt"),
            {{{}, "DeviceUserID", "", "It's $HOME `id` \"x\" \\ \xC3\xA9"}, {red, "Gain", "1", "2"},
                {fixed, "Level", "1", "3"}, {{}, "Label", "a", ""}}),
        entry(Kind::Edit, QStringLiteral("Level"), {{fixed, "Level", "1", "2"}}),
        entry(Kind::Command, QStringLiteral("UserSetLoad"),
            {{{{"UserSetSelector", "UserSet0"}}, "UserSetLoad", "", ""}}),
        entry(Kind::Command, QStringLiteral("Start"), {{fixed, "Start", "", ""}})};
}

/// Returns the calls of cvxctl, each one as its arguments, and the settings that it loads. The script must
/// leave no file behind.
QStringList callsOf(const QString &script, const QStringList &arguments)
{
    QTemporaryDir dir;
    QFile program(dir.filePath(QStringLiteral("cvxctl")));
    if (!program.open(QIODevice::WriteOnly))
        return {};
    program.write(
        "#!/bin/sh\nif [ \"$1\" = load ]; then printf '<load><%s>\\n' \"$2\"; grep -v '^#' \"$3\"; exit; fi\n"
        "for argument; do printf '<%s>' \"$argument\"; done\nprintf '\\n'\n");
    program.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    program.close();
    QProcess shell;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(
        QStringLiteral("PATH"), dir.path() + QLatin1Char(':') + environment.value(QStringLiteral("PATH")));
    QTemporaryDir temporaryFiles;
    environment.insert(QStringLiteral("TMPDIR"), temporaryFiles.path());
    shell.setProcessEnvironment(environment);
    shell.start(QStringLiteral("/bin/sh"), QStringList{QStringLiteral("-s")} + arguments);
    shell.write(script.toUtf8());
    shell.closeWriteChannel();
    if (!shell.waitForFinished() || shell.exitCode() != 0)
        return {QString::fromUtf8(shell.readAllStandardError())};
    if (!QDir(temporaryFiles.path()).isEmpty())
        return {QStringLiteral("The script has left a file behind.")};
    return QString::fromUtf8(shell.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

class TestChangeScript : public QObject
{
    Q_OBJECT

private slots:
    void makesTheChangesAgain_data();
    void makesTheChangesAgain();
    void endsAtFirstFailure();
};

void TestChangeScript::makesTheChangesAgain_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("camera");
    QTest::newRow("present camera") << QStringList() << QStringLiteral("it's::CAM-1");
    QTest::newRow("another camera") << QStringList{QStringLiteral("A b")} << QStringLiteral("A b");
}

void TestChangeScript::makesTheChangesAgain()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, camera);
    const QString script = changeScript(
        entries(), {QStringLiteral("it's::CAM-1"), QStringLiteral("Kx\n200"), {"SourceSelector"}});
    QVERIFY(script.startsWith(QStringLiteral("#!/bin/sh\n# Kx 200\nset -eu\n")));
    QVERIFY(script.contains(QStringLiteral("\n# 2030-01-02 12:00:01 Load a.txt\n")));
    const QString set = QStringLiteral("<set><%1>").arg(camera);
    const QString run = QStringLiteral("<run><%1>").arg(camera);
    QCOMPARE(callsOf(script, arguments),
        (QStringList{set + QStringLiteral("<GainSelector=Red><Gain=5.5>"),
            QStringLiteral("<load><%1>").arg(camera),
            QStringLiteral("DeviceUserID\tIt's $HOME `id` \"x\" \\ \u00e9"),
            QStringLiteral("GainSelector\tRed"), QStringLiteral("Gain\t2"), QStringLiteral("Level\t3"),
            set + QStringLiteral("<Label=>"), set + QStringLiteral("<Level=2>"),
            set + QStringLiteral("<UserSetSelector=UserSet0>"), run + QStringLiteral("<UserSetLoad>"),
            run + QStringLiteral("<Start>")}));
}

void TestChangeScript::endsAtFirstFailure()
{
    const QString script = changeScript(entries(), {QStringLiteral("CAM-1"), QString(), {}});
    QProcess shell;
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("PATH"), QStringLiteral("/nonexistent"));
    shell.setProcessEnvironment(environment);
    shell.start(QStringLiteral("/bin/sh"), {QStringLiteral("-s")});
    shell.write(script.toUtf8());
    shell.closeWriteChannel();
    QVERIFY(shell.waitForFinished());
    QCOMPARE(shell.exitCode(), 127);
    QCOMPARE(shell.readAllStandardError().count("not found"), 1);
}

QTEST_GUILESS_MAIN(TestChangeScript)
#include "TestChangeScript.moc"
