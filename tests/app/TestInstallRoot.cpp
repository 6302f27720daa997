#include "tests/support/ScriptFile.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

/// Makes an entry; a name that ends in "/" is a directory.
void make(const QString &path)
{
    if (path.endsWith(QLatin1Char('/')))
        QDir().mkpath(path);
    else
        ScriptFile::write(path, QByteArray());
}

} // namespace

/// The install root as a program finds it that stands in some directory.
class TestInstallRoot : public QObject
{
    Q_OBJECT

private slots:
    void rootIsFoundFromThePlaceOfTheProgram_data();
    void rootIsFoundFromThePlaceOfTheProgram();
    void workingDirectoryDoesNotMatter();
    void linkToTheProgramDoesNotMatter();

private:
    /// The root printed by a copy of the program at that place; empty when it cannot be run.
    static QString printedBy(const QString &program, const QString &workingDirectory = QStringLiteral("/"));
    static void installAt(const QString &program);
};

QString TestInstallRoot::printedBy(const QString &program, const QString &workingDirectory)
{
    QProcess process;
    process.setWorkingDirectory(workingDirectory);
    process.start(program, QStringList());
    if (!process.waitForFinished() || process.exitCode() != 0)
        return {};
    return QString::fromUtf8(process.readAllStandardOutput()).chopped(1);
}

void TestInstallRoot::installAt(const QString &program)
{
    QDir().mkpath(QFileInfo(program).absolutePath());
    QVERIFY(QFile::copy(QStringLiteral(INSTALL_ROOT_PROGRAM), program));
}

void TestInstallRoot::rootIsFoundFromThePlaceOfTheProgram_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("root");
    const QString top = QStringLiteral("sdk");
    const QString inBin = QStringLiteral("sdk/bin/program");
    const QString atTop = QStringLiteral("sdk/program");
    QTest::newRow("in bin, with api above") << inBin << QStringList{QStringLiteral("sdk/api/")} << top;
    QTest::newRow("in bin, nothing above") << inBin << QStringList() << top;
    QTest::newRow("beside api") << atTop << QStringList{QStringLiteral("sdk/api/")} << top;
    QTest::newRow("beside cti") << atTop << QStringList{QStringLiteral("sdk/cti/")} << top;
    QTest::newRow("beside bin") << atTop << QStringList{QStringLiteral("sdk/bin/")} << top;
    QTest::newRow("beside a file named api") << atTop << QStringList{QStringLiteral("sdk/api")} << top;
    QTest::newRow("beside a file named cti") << atTop << QStringList{QStringLiteral("sdk/cti")} << top;
    QTest::newRow("beside a file named bin") << atTop << QStringList{QStringLiteral("sdk/bin")} << top;
    QTest::newRow("beside none of them") << atTop << QStringList() << QStringLiteral(".");
    QTest::newRow("letter case counts")
        << atTop << QStringList{QStringLiteral("sdk/API/")} << QStringLiteral(".");
    QTest::newRow("other names do not count")
        << atTop << QStringList{QStringLiteral("sdk/doc/"), QStringLiteral("sdk/cti.bak/")}
        << QStringLiteral(".");
    QTest::newRow("own directory before the parent")
        << QStringLiteral("sdk/bin/program")
        << QStringList{QStringLiteral("sdk/api/"), QStringLiteral("sdk/bin/cti/")}
        << QStringLiteral("sdk/bin");
    QTest::newRow("one level up and no further")
        << QStringLiteral("sdk/a/b/program") << QStringList{QStringLiteral("sdk/api/")}
        << QStringLiteral("sdk/a");
    QTest::newRow("blanks and letters")
        << QStringLiteral("S D K \u00e4/x/program") << QStringList() << QStringLiteral("S D K \u00e4");
}

void TestInstallRoot::rootIsFoundFromThePlaceOfTheProgram()
{
    QFETCH(QString, program);
    QFETCH(QStringList, entries);
    QFETCH(QString, root);
    const QTemporaryDir directory;
    installAt(directory.filePath(program));
    for (const QString &entry : entries)
        make(directory.filePath(entry));
    // Compared as text: the root has no separator at its end.
    QCOMPARE(printedBy(directory.filePath(program)), QDir::cleanPath(directory.filePath(root)));
}

void TestInstallRoot::workingDirectoryDoesNotMatter()
{
    const QTemporaryDir directory;
    const QString program = directory.filePath(QStringLiteral("sdk/x/program"));
    installAt(program);
    make(directory.filePath(QStringLiteral("api/")));
    QCOMPARE(printedBy(program, directory.path()), directory.filePath(QStringLiteral("sdk")));
}

void TestInstallRoot::linkToTheProgramDoesNotMatter()
{
    const QTemporaryDir directory;
    const QString program = directory.filePath(QStringLiteral("sdk/x/program"));
    const QString link = directory.filePath(QStringLiteral("link"));
    installAt(program);
    make(directory.filePath(QStringLiteral("api/")));
    QVERIFY(QFile::link(program, link));
    QCOMPARE(printedBy(link), directory.filePath(QStringLiteral("sdk")));
}

QTEST_GUILESS_MAIN(TestInstallRoot)
#include "TestInstallRoot.moc"
