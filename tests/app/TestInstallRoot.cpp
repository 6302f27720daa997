#include "tests/support/ScriptFile.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// Tests which install root a program finds, depending on its directory.
class TestInstallRoot : public QObject
{
    Q_OBJECT

private slots:
    void installRootDependsOnTheProgramsDirectory_data();
    void installRootDependsOnTheProgramsDirectory();
};

void TestInstallRoot::installRootDependsOnTheProgramsDirectory_data()
{
    QTest::addColumn<QByteArray>("program");
    QTest::addColumn<QByteArrayList>("entries"); // A name that ends in "/" is a directory.
    QTest::addColumn<QByteArray>("root");
    const auto addRow
        = [](const char *name, const char *program, const QByteArrayList &entries, const char *root) {
              QTest::newRow(name) << QByteArray(program) << entries << QByteArray(root);
          };
    addRow("in bin, with api above", "sdk/bin/program", {"sdk/api/"}, "/sdk");
    addRow("beside api", "sdk/program", {"sdk/api/"}, "/sdk");
    addRow("beside cti", "sdk/program", {"sdk/cti/"}, "/sdk");
    addRow("beside bin", "sdk/program", {"sdk/bin/"}, "/sdk");
    addRow("beside a file named cti", "sdk/program", {"sdk/cti"}, "/sdk");
    // Intended: this is not an error.
    addRow("no structure in the directory or its parent", "sdk/program", {}, "");
    addRow("letter case matters", "sdk/program", {"sdk/API/"}, "");
    addRow("own directory before the parent", "sdk/bin/program", {"sdk/api/", "sdk/bin/cti/"}, "/sdk/bin");
    addRow("no search beyond one level", "sdk/a/b/program", {"sdk/api/"}, "/sdk/a");
    addRow("spaces and letters", "S D K \xc3\xa4/x/program", {}, "/S D K \xc3\xa4");
}

void TestInstallRoot::installRootDependsOnTheProgramsDirectory()
{
    QFETCH(QByteArray, program);
    QFETCH(QByteArrayList, entries);
    QFETCH(QByteArray, root);
    const QTemporaryDir directory;
    for (const QByteArray &entry : entries)
        ScriptFile::write(
            directory.filePath(QString::fromUtf8(entry.endsWith('/') ? entry + "file" : entry)), {});
    const QString path = directory.filePath(QString::fromUtf8(program));
    QDir().mkpath(QFileInfo(path).absolutePath());
    QVERIFY(QFile::copy(QStringLiteral(INSTALL_ROOT_PROGRAM), path));

    QProcess process; // The program inherits this test's working directory, which must not matter.
    process.start(path, QStringList());
    QVERIFY(process.waitForFinished());
    // A comparison of the strings also detects a separator at the end.
    QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()),
        directory.path() + QString::fromUtf8(root) + QLatin1Char('\n'));
}

QTEST_GUILESS_MAIN(TestInstallRoot)
#include "TestInstallRoot.moc"
