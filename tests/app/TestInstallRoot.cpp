#include "tests/support/ScriptFile.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// The install root that a program finds, depending on the directory in which it is installed.
class TestInstallRoot : public QObject
{
    Q_OBJECT

private slots:
    void rootFollowsFromTheProgramsDirectory_data();
    void rootFollowsFromTheProgramsDirectory();
    void workingDirectoryAndLinksDoNotMatter();

private:
    /// Installs the program that prints its install root.
    static void install(const QString &program);

    /// Returns the root that the program prints, as text, so that a separator at its end would show.
    static QString printedBy(const QString &program, const QString &workingDirectory = QDir::rootPath());
};

void TestInstallRoot::install(const QString &program)
{
    QDir().mkpath(QFileInfo(program).absolutePath());
    QVERIFY(QFile::copy(QStringLiteral(INSTALL_ROOT_PROGRAM), program));
}

QString TestInstallRoot::printedBy(const QString &program, const QString &workingDirectory)
{
    QProcess process;
    process.setWorkingDirectory(workingDirectory);
    process.start(program, QStringList());
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
}

void TestInstallRoot::rootFollowsFromTheProgramsDirectory_data()
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
    addRow("beside none of them, nor is the parent", "sdk/program", {}, ""); // Intended: no error.
    addRow("letter case matters", "sdk/program", {"sdk/API/"}, "");
    addRow("similar names do not count", "sdk/program", {"sdk/cti.bak/"}, "");
    addRow("own directory before the parent", "sdk/bin/program", {"sdk/api/", "sdk/bin/cti/"}, "/sdk/bin");
    addRow("no search beyond one level", "sdk/a/b/program", {"sdk/api/"}, "/sdk/a");
    addRow("spaces and letters", "S D K \xc3\xa4/x/program", {}, "/S D K \xc3\xa4");
}

void TestInstallRoot::rootFollowsFromTheProgramsDirectory()
{
    QFETCH(QByteArray, program);
    QFETCH(QByteArrayList, entries);
    QFETCH(QByteArray, root);
    const QTemporaryDir directory;
    const QString path = directory.filePath(QString::fromUtf8(program));
    install(path);
    for (const QByteArray &entry : entries)
        ScriptFile::write(
            directory.filePath(QString::fromUtf8(entry.endsWith('/') ? entry + "file" : entry)), {});
    QCOMPARE(printedBy(path), directory.path() + QString::fromUtf8(root) + QLatin1Char('\n'));
}

void TestInstallRoot::workingDirectoryAndLinksDoNotMatter()
{
    const QTemporaryDir directory;
    const QString program = directory.filePath(QStringLiteral("sdk/x/program"));
    const QString link = directory.filePath(QStringLiteral("link"));
    install(program);
    QVERIFY(QDir(directory.path()).mkdir(QStringLiteral("api")));
    QVERIFY(QFile::link(program, link));
    QCOMPARE(printedBy(link, directory.path()), directory.filePath(QStringLiteral("sdk\n")));
}

QTEST_GUILESS_MAIN(TestInstallRoot)
#include "TestInstallRoot.moc"
