#include "tests/config/ConfigDocuments.h"
#include "tests/support/MessageLog.h"
#include "tests/support/ScriptFile.h"
#include "tests/ui/ConfiguredWindow.h"
#include "ui/CtiSearchDirectories.h"

#include <QDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

using ConfigDocuments::latin1;

/// Which directories bin/CvxC.xml leads to. Each directory holds a file that one interface prefers above all
/// others: the camera of that interface shows it exactly when the directory is searched.
class TestCtiSearchDirectories : public QObject
{
    Q_OBJECT

private slots:
    void document_data();
    void document();
    void directoriesComeOnceInTheOrderOfTheirFirstMention();
    void missingDocumentMeansTheDirectoryCti();
    void unreadableDocumentMeansTheDirectoryCti_data();
    void unreadableDocumentMeansTheDirectoryCti();
    void missingAbsoluteDirectoryIsKeptAndSkipped();
    void absoluteDirectoryIsTakenAsItStands();
    void relativeDirectoryPrefersTheInstallRoot();
    void installRootThatEndsInASlashGetsNoSecondOne();
    void fileInPlaceOfARelativeDirectoryIsPassedOver();
    void emptyInstallRootMeansTheCurrentDirectory();
    void wideCharactersKeepTheirHalves_data();
    void wideCharactersKeepTheirHalves();
    void nothingIsLogged();
};

namespace {

const QMap<QString, QByteArray> noFiles; // The search needs no configuration.

struct Mark
{
    const char *directory; // Below the install root.
    const char *interfaceType;
    const char *fileName;
};

const Mark marks[]
    = {{"cti", "GigE", "m_gige.cti"}, {"bin/own", "USB", "m_usb.cti"}, {"more", "CoaXPress", "m_cxp.cti"},
        {"with blank", "IIDC", "m_iidc.cti"}, {"last", "CameraLinkHS", "m_clhs.cti"}};

/// An installation with all marked directories.
void prepare(ConfiguredWindow &configured)
{
    for (const Mark &mark : marks)
        configured.touch(latin1(mark.directory) + QLatin1Char('/') + latin1(mark.fileName));
}

/// The marked directories that the window searches.
QStringList searched(ConfiguredWindow &configured)
{
    QVector<CameraInfo> cameras;
    for (const Mark &mark : marks)
        cameras.append(camera({}, {}, {}, latin1(mark.directory), latin1(mark.interfaceType)));
    configured.list(cameras);
    QStringList found;
    for (int row = 0; row < cameras.size(); ++row) {
        if (configured.ctiFile(row) == latin1(marks[row].fileName))
            found.append(cameras.at(row).cameraId);
    }
    return found;
}

QStringList words(const char *directories)
{
    return latin1(directories).split(QLatin1Char('|'));
}

} // namespace

void TestCtiSearchDirectories::document_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QStringList>("directories");
    const auto add = [](const char *name, const char *xml, const char *directories) {
        QTest::newRow(name) << QByteArray(xml) << words(directories);
    };
    add("one path", "<c><CtiPaths><Path>more</Path></CtiPaths></c>", "more");
    add("two paths", "<c><CtiPaths><Path>more</Path><Path>cti</Path></CtiPaths></c>", "cti|more");
    add("CtiPaths as root", "<CtiPaths><Path>more</Path></CtiPaths>", "more");
    add("deep inside", "<a><b><CtiPaths><x><Path>more</Path></x></CtiPaths></b></a>", "more");
    add("blanks around the text", "<c><CtiPaths><Path>\n  with blank\t </Path></CtiPaths></c>", "with blank");
    add("empty path", "<c><CtiPaths><Path/><Path>  </Path><Path>more</Path></CtiPaths></c>", "more");
    add("only empty paths", "<c><CtiPaths><Path/><Path>  </Path></CtiPaths></c>", "cti");
    add("no paths", "<c><CtiPaths/></c>", "cti");
    add("other elements", "<c><CtiPaths><Dir>last</Dir><Path>more</Path>last</CtiPaths></c>", "more");
    add("attributes", "<c><CtiPaths on='no'><Path kind='x'>more</Path></CtiPaths></c>", "more");
    add("character data", "<c><CtiPaths><Path><![CDATA[more]]></Path></CtiPaths></c>", "more");
    add("entity", "<c><CtiPaths><Path>m&#111;re</Path></CtiPaths></c>", "more");
    add("letter case", "<c><CTIPATHS><pATH>more</pATH></CTIPATHS></c>", "more");
    add("prefix", "<n:c xmlns:n='urn:x'><n:CtiPaths><n:Path>more</n:Path></n:CtiPaths></n:c>", "more");
    add("default name space", "<c xmlns='urn:x'><CtiPaths><Path>more</Path></CtiPaths></c>", "more");
    add("prefix and letter case", "<n:c xmlns:n='urn:x'><n:ctipaths><n:PATH>more</n:PATH></n:ctipaths></n:c>",
        "more");
    add("path before CtiPaths", "<c><Path>last</Path><CtiPaths><Path>more</Path></CtiPaths></c>", "more");
    add("path after CtiPaths", "<c><CtiPaths><Path>more</Path></CtiPaths><Path>last</Path></c>", "more");
    add("only paths outside", "<c><Path>last</Path></c>", "cti");
    add("two CtiPaths", "<c><CtiPaths><Path>more</Path></CtiPaths><CtiPaths><Path>last</Path></CtiPaths></c>",
        "more|last");
    add("inner end closes", // Intended: a flag, no depth.
        "<c><CtiPaths><CtiPaths><Path>more</Path></CtiPaths><Path>last</Path></CtiPaths></c>", "more");
    add("relative to the document", "<c><CtiPaths><Path>own</Path></CtiPaths></c>", "bin/own");
    add("relative to the install root", "<c><CtiPaths><Path>bin/own</Path></CtiPaths></c>", "bin/own");
    add("parent of the document", "<c><CtiPaths><Path>../more</Path></CtiPaths></c>", "more");
    add("missing relative directory", "<c><CtiPaths><Path>nowhere</Path></CtiPaths></c>", "cti");
    add("missing beside a present one", "<c><CtiPaths><Path>nowhere</Path><Path>more</Path></CtiPaths></c>",
        "more");
    add("error after a path", "<c><CtiPaths><Path>more</Path><Path>last</CtiPaths></c>", "more");
    add("child element ends the reading",
        "<c><CtiPaths><Path>more</Path><Path>cti<b/></Path><Path>last</Path></CtiPaths></c>", "more");
    add("child element first", "<c><CtiPaths><Path>last<b/></Path></CtiPaths></c>", "cti");
    add("cut off", "<c><CtiPaths><Path>more</Path>", "more");
    add("cut off inside a path", "<c><CtiPaths><Path>more", "cti");
    add("undeclared prefix", "<n:c><n:CtiPaths><n:Path>more</n:Path></n:CtiPaths></n:c>", "cti");
    add("no XML", "CtiPaths = more", "cti");
    add("empty file", "", "cti");
    add("declaration and comment",
        "<?xml version='1.0' encoding='UTF-8'?><!-- x --><c><CtiPaths><!-- y --><Path>more<!-- z --></Path>"
        "</CtiPaths></c>",
        "more");
    add("colon in front", "<c><CtiPaths><Path>:/images</Path></CtiPaths></c>", "cti"); // Not our resources.
    add("text after the root", "<c><CtiPaths><Path>more</Path></CtiPaths></c>last", "more");
    add("undeclared entity", "<c><CtiPaths><Path>more</Path><Path>&e;</Path><Path>last</Path></CtiPaths></c>",
        "more");
    add("declared entity", "<!DOCTYPE c [<!ENTITY e 'more'>]><c><CtiPaths><Path>&e;</Path></CtiPaths></c>",
        "more");
    add("not in its encoding", "<c><CtiPaths><Path>more</Path></CtiPaths></c><!-- \xE4 -->", "cti");
    add("line ends of another system",
        "<c>\r\n<CtiPaths>\r\n<Path>\r\nmore\r\n</Path>\r\n</CtiPaths>\r\n</c>", "more");
}

void TestCtiSearchDirectories::document()
{
    QFETCH(QByteArray, xml);
    ConfiguredWindow configured(noFiles);
    prepare(configured);
    ScriptFile::write(configured.path("bin/CvxC.xml"), xml);
    configured.loadConfig();
    QTEST(searched(configured), "directories");
}

// The list itself: a directory that is searched twice finds the same files.
void TestCtiSearchDirectories::directoriesComeOnceInTheOrderOfTheirFirstMention()
{
    ConfiguredWindow configured(noFiles);
    prepare(configured);
    const QString last = configured.path("last");
    // Compared as texts: "./more" is another one.
    const QStringList paths{latin1("last"), latin1("more"), last, latin1("cti"), latin1("./more"),
        latin1("/nowhere"), latin1("more"), latin1("/nowhere")};
    ScriptFile::write(configured.path("bin/CvxC.xml"),
        "<CtiPaths><Path>" + paths.join(latin1("</Path><Path>")).toUtf8() + "</Path></CtiPaths>");
    const QStringList expected{
        last, configured.path("more"), configured.path("cti"), configured.path("./more"), latin1("/nowhere")};
    QCOMPARE(ctiSearchDirsFromCvxCXml(configured.root()), expected);
}

void TestCtiSearchDirectories::missingDocumentMeansTheDirectoryCti()
{
    ConfiguredWindow configured(noFiles);
    prepare(configured);
    configured.loadConfig();
    QCOMPARE(searched(configured), QStringList{latin1("cti")});
}

void TestCtiSearchDirectories::unreadableDocumentMeansTheDirectoryCti_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"directory", "FIFO", "dangling link"})
        QTest::newRow(kind) << latin1(kind);
    if (::geteuid() != 0) // The administrator may read everything.
        QTest::newRow("no permission") << latin1("no permission");
}

// Nobody writes into the FIFO: reading it would never end.
void TestCtiSearchDirectories::unreadableDocumentMeansTheDirectoryCti()
{
    QFETCH(QString, kind);
    ConfiguredWindow configured(noFiles);
    prepare(configured);
    const QString path = configured.path("bin/CvxC.xml");
    if (kind == latin1("directory")) {
        QVERIFY(QDir().mkpath(path));
    } else if (kind == latin1("FIFO")) {
        QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    } else if (kind == latin1("dangling link")) {
        QVERIFY(QFile::link(latin1("nowhere"), path));
    } else {
        ScriptFile::write(path, "<c><CtiPaths><Path>more</Path></CtiPaths></c>");
        QVERIFY(QFile::setPermissions(path, {}));
    }
    configured.loadConfig();
    QCOMPARE(searched(configured), QStringList{latin1("cti")});
}

void TestCtiSearchDirectories::missingAbsoluteDirectoryIsKeptAndSkipped()
{
    ConfiguredWindow configured(noFiles);
    prepare(configured);
    ScriptFile::write(configured.path("bin/CvxC.xml"),
        "<c><CtiPaths><Path>" + configured.path("later").toUtf8() + "</Path></CtiPaths></c>");
    configured.loadConfig();
    // Kept, so that "cti" does not stand in for it, and found once it is there.
    configured.touch(latin1("later/m_gige.cti"));
    configured.list({camera({}, {}, {}, {}, latin1("GigE"))});
    QCOMPARE(configured.ctiFile(0), latin1("m_gige.cti"));
    QCOMPARE(searched(configured), QStringList{latin1("cti")}); // The mark's name, from "later".
    QVERIFY(QFile::remove(configured.path("later/m_gige.cti")));
    configured.loadConfigAgain();
    QCOMPARE(searched(configured), QStringList());
}

void TestCtiSearchDirectories::absoluteDirectoryIsTakenAsItStands()
{
    ConfiguredWindow configured(noFiles);
    prepare(configured);
    ScriptFile::write(configured.path("bin/CvxC.xml"),
        "<c><CtiPaths><Path>" + configured.path("more").toUtf8() + "</Path></CtiPaths></c>");
    configured.loadConfig();
    QCOMPARE(searched(configured), QStringList{latin1("more")});
}

void TestCtiSearchDirectories::relativeDirectoryPrefersTheInstallRoot()
{
    ConfiguredWindow configured(noFiles);
    configured.touch(latin1("twice/root_gige.cti"));
    configured.touch(latin1("bin/twice/bin_gige.cti"));
    ScriptFile::write(configured.path("bin/CvxC.xml"), "<c><CtiPaths><Path>twice</Path></CtiPaths></c>");
    configured.loadConfig();
    configured.list({camera({}, {}, {}, {}, latin1("GigE"))});
    QCOMPARE(configured.ctiFile(0), latin1("root_gige.cti")); // "bin_gige.cti" would win a tie.
}

// As "/" ends in one. Of two, QDir drops one.
void TestCtiSearchDirectories::installRootThatEndsInASlashGetsNoSecondOne()
{
    ConfiguredWindow configured(noFiles);
    prepare(configured);
    ScriptFile::write(configured.path("bin/CvxC.xml"), "<c><CtiPaths><Path>more</Path></CtiPaths></c>");
    const QString root = configured.root() + latin1("//");
    QVERIFY(QDir(root).path().endsWith(QLatin1Char('/')));
    QCOMPARE(ctiSearchDirsFromCvxCXml(root), QStringList{configured.path("more")});
}

void TestCtiSearchDirectories::fileInPlaceOfARelativeDirectoryIsPassedOver()
{
    ConfiguredWindow configured(noFiles);
    prepare(configured);
    configured.touch(latin1("own")); // A file; the directory of that name is beside the document.
    ScriptFile::write(configured.path("bin/CvxC.xml"), "<c><CtiPaths><Path>own</Path></CtiPaths></c>");
    configured.loadConfig();
    QCOMPARE(searched(configured), QStringList{latin1("bin/own")});
}

void TestCtiSearchDirectories::emptyInstallRootMeansTheCurrentDirectory()
{
    const QString before = QDir::currentPath();
    ConfiguredWindow configured(noFiles);
    prepare(configured);
    ScriptFile::write(configured.path("bin/CvxC.xml"), "<c><CtiPaths><Path>more</Path></CtiPaths></c>");
    QVERIFY(QDir::setCurrent(configured.root()));
    configured.window.loadConfig({});
    const QStringList found = searched(configured);
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(found, QStringList{latin1("cti")}); // The document is not even looked for.
}

void TestCtiSearchDirectories::wideCharactersKeepTheirHalves_data()
{
    QTest::addColumn<QByteArray>("mark");
    QTest::newRow("marked") << QByteArray("\xFF\xFE"); // Little-endian, as this computer.
    QTest::newRow("not marked") << QByteArray();
}

void TestCtiSearchDirectories::wideCharactersKeepTheirHalves()
{
    QFETCH(QByteArray, mark);
    ConfiguredWindow configured(noFiles);
    prepare(configured);
    const QString xml = latin1("<c>\r\n<CtiPaths>\r\n<Path>more</Path>\r\n</CtiPaths>\r\n</c>");
    const QByteArray utf16(reinterpret_cast<const char *>(xml.utf16()), xml.size() * 2);
    ScriptFile::write(configured.path("bin/CvxC.xml"), mark + utf16);
    configured.loadConfig();
    QCOMPARE(searched(configured), QStringList{latin1("more")});
}

void TestCtiSearchDirectories::nothingIsLogged()
{
    ConfiguredWindow configured(noFiles);
    prepare(configured);
    ScriptFile::write(configured.path("bin/CvxC.xml"), "<c><CtiPaths><Path>nowhere</Path><oops</c>");
    const MessageLog log;
    configured.loadConfig();
    QCOMPARE(searched(configured), QStringList{latin1("cti")});
    QCOMPARE(log.entries().size(), 0);
}

QTEST_MAIN(TestCtiSearchDirectories)
#include "TestCtiSearchDirectories.moc"
