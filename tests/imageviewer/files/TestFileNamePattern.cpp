#include "tools/imageviewer/files/FileNamePattern.h"
#include "tools/imageviewer/files/NewFile.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

/// Names of files from patterns.
class TestFileNamePattern : public QObject
{
    Q_OBJECT

private slots:
    void placeholdersAreReplaced_data();
    void placeholdersAreReplaced();
    void unusablePatternsSayWhy_data();
    void unusablePatternsSayWhy();
    void longNamesKeepTheirNumber();
    void existingFilesAreNeverReplaced();
    void unusedFileIsRemoved();
};

namespace {

FileNameValues values(const QString &camera = QStringLiteral("Kx200"))
{
    FileNameValues values;
    values.camera = camera;
    values.pixelFormat = QStringLiteral("Mono8");
    values.time = QDateTime({2026, 1, 31}, {23, 59, 58});
    values.frameId = 4711;
    return values;
}

} // namespace

void TestFileNamePattern::placeholdersAreReplaced_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("camera");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("name");
    const QString kx = QStringLiteral("Kx200");
    QTest::newRow("all") << "{camera}_{serial}_{date}_{time}_{number:4}_{frame}_{format}" << kx << 7
                         << "Kx200_unknown_2026-01-31_23-59-58_0007_4711_Mono8";
    QTest::newRow("number without digits") << "a{number}" << kx << 12 << "a12";
    QTest::newRow("number longer than its digits") << "a{number:2}" << kx << 1234 << "a1234";
    QTest::newRow("first without number") << "part" << kx << 1 << "part";
    QTest::newRow("second without number") << "part" << kx << 2 << "part-2";
    QTest::newRow("path in a value") << "{camera}"
                                     << "../etc/passwd" << 1 << "_._etc_passwd";
    QTest::newRow("characters of other systems") << "{camera}"
                                                 << "a:b*c?\n\"d\"" << 1 << "a_b_c_d_";
    QTest::newRow("placeholder in a value") << "{camera}"
                                            << "{date}" << 1 << "_date_";
    QTest::newRow("hidden file") << ".{camera}" << kx << 1 << "_Kx200";
    QTest::newRow("blank value") << "{camera}"
                                 << "  " << 1 << "unknown";
}

void TestFileNamePattern::placeholdersAreReplaced()
{
    QFETCH(const QString, pattern);
    QFETCH(const QString, camera);
    QFETCH(const int, number);
    const FileNamePattern parsed(pattern);
    QCOMPARE(parsed.problem(), QString());
    QTEST(parsed.name(values(camera), unsigned(number)), "name");
}

void TestFileNamePattern::unusablePatternsSayWhy_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("problem"); // A part of it.
    QTest::newRow("unknown placeholder") << "{camera}-{nummer}"
                                         << "{nummer} is not a placeholder";
    QTest::newRow("brace missing") << "{camera"
                                   << "brace is missing";
    QTest::newRow("brace too many") << "camera}"
                                    << "brace is missing";
    QTest::newRow("no digits") << "{number:x}"
                               << "{number:x} has to be like {number:4}";
    QTest::newRow("too many digits") << "{number:10}"
                                     << "1 to 9 digits";
    QTest::newRow("digits of a name") << "{camera:4}"
                                      << "{camera:4} has to be like";
    QTest::newRow("folder") << "a/b"
                            << "choose the folder";
    QTest::newRow("empty") << " "
                           << "empty";
}

void TestFileNamePattern::unusablePatternsSayWhy()
{
    QFETCH(const QString, pattern);
    QFETCH(const QString, problem);
    const QString text = FileNamePattern(pattern).problem();
    QVERIFY2(text.contains(problem), qPrintable(text));
}

void TestFileNamePattern::longNamesKeepTheirNumber()
{
    const FileNamePattern pattern(QStringLiteral("{camera}{number}"));
    const QString first = pattern.name(values(QString(300, QChar(0x00e4))), 1);
    const QString second = pattern.name(values(QString(300, QChar(0x00e4))), 2);
    QVERIFY(first != second);
    QVERIFY(second.toUtf8().size() < 200);
}

void TestFileNamePattern::existingFilesAreNeverReplaced()
{
    const QTemporaryDir folder;
    const FileNamePattern pattern(QStringLiteral("a{number:2}"));
    const auto path = [&](const char *name) { return folder.filePath(QString::fromLatin1(name)); };
    QVERIFY(QFile(path("a02.png.json")).open(QIODevice::WriteOnly)); // A sidecar would be replaced too.
    QVERIFY(QFile::link(path("nowhere"), path("a03.png")));
    const NewFile first(folder.path(), pattern, values(), QStringLiteral("png"));
    const NewFile second(folder.path(), pattern, values(), QStringLiteral("png"));
    QCOMPARE(first.path(), path("a01.png"));
    QCOMPARE(second.path(), path("a04.png"));
    QCOMPARE(second.number(), 4U);
    const NewFile later(folder.path(), pattern, values(), QStringLiteral("png"), 9);
    QCOMPARE(later.path(), path("a09.png"));
}

void TestFileNamePattern::unusedFileIsRemoved()
{
    const QTemporaryDir folder;
    const FileNamePattern pattern(QStringLiteral("a"));
    const QString inner = folder.filePath(QStringLiteral("new"));
    {
        const NewFile unused(inner, pattern, values(), QStringLiteral("raw"));
        QVERIFY(QFile::exists(unused.path()));
        const NewFile used(inner, pattern, values(), QStringLiteral("raw"));
        QFile file(used.path());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("x") == 1);
    }
    QCOMPARE(QDir(inner).entryList(QDir::Files), QStringList{QStringLiteral("a-2.raw")});
}

QTEST_APPLESS_MAIN(TestFileNamePattern)
#include "TestFileNamePattern.moc"
