#include "tests/support/MessageLog.h"
#include "tests/ui/ConfiguredWindow.h"

#include <QDir>
#include <QtTest>

using namespace ConfigDocuments;

/// Tests which directories are searched for producer files. Each directory contains a producer file for a
/// different interface. The directory was searched if a camera with this interface shows the file in its
/// tooltip.
class TestCtiDirectories : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void searchDirectoriesAreReadFromTheDocument_data();
    void searchDirectoriesAreReadFromTheDocument();
    void relativePathIsResolvedInTheInstallRootFirst();
    void emptyInstallRootMeansTheCurrentDirectory();

private:
    QString searched();

    std::unique_ptr<ConfiguredWindow> m_configured;
};

namespace {

struct Directory
{
    const char *path;
    const char *interfaceType;
    const char *fileName;
};

const Directory directories[]
    = {{"cti", "GigE", "m_gige.cti"}, {"bin/own", "USB", "m_usb.cti"}, {"more", "CoaXPress", "m_cxp.cti"},
        {"with blank", "IIDC", "m_iidc.cti"}, {"last", "CameraLinkHS", "m_clhs.cti"}};

} // namespace

void TestCtiDirectories::init()
{
    m_configured = std::make_unique<ConfiguredWindow>(QMap<QString, QByteArray>());
    m_configured->createFile("own"_s); // "own" is a file, but "bin/own" is a directory.
    for (const Directory &directory : directories)
        m_configured->createFile(latin1(directory.path) + QLatin1Char('/') + latin1(directory.fileName));
}

/// Returns the searched directories, separated by "|".
QString TestCtiDirectories::searched()
{
    QStringList found;
    for (const Directory &directory : directories) {
        m_configured->setCameras({camera({}, {}, {}, {}, latin1(directory.interfaceType))});
        if (m_configured->ctiFile(0) == latin1(directory.fileName))
            found.append(latin1(directory.path));
    }
    return found.join(QLatin1Char('|'));
}

void TestCtiDirectories::searchDirectoriesAreReadFromTheDocument_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("expected");
    const auto add = [](const char *name, const QByteArray &xml, const char *expected) {
        QTest::newRow(name) << xml << latin1(expected);
    };
    add("one path", "<c><CtiPaths><Path>more</Path></CtiPaths></c>", "more");
    add("two paths", "<c><CtiPaths><Path>more</Path><Path>cti</Path></CtiPaths></c>", "cti|more");
    add("nested in other elements", "<a><b><CtiPaths><x><Path>more</Path></x></CtiPaths></b></a>", "more");
    add("CtiPaths as root", "<CtiPaths><Path>more</Path></CtiPaths>", "more");
    add("blanks around the text", "<CtiPaths><Path>\n  with blank\t </Path></CtiPaths>", "with blank");
    add("empty paths", "<CtiPaths><Path/><Path>  </Path><Path>more</Path></CtiPaths>", "more");
    add("only empty paths", "<CtiPaths><Path/><Path>  </Path></CtiPaths>", "cti");
    add("no paths", "<c><CtiPaths/></c>", "cti");
    add("other elements and text", "<CtiPaths a='b'><D>last</D><Path c='d'>more</Path>last</CtiPaths>",
        "more");
    add("character data", "<CtiPaths><Path>m<![CDATA[o]]>&#114;e<!-- x --></Path></CtiPaths>", "more");
    add("letter case", "<CTIPATHS><pATH>more</pATH></CTIPATHS>", "more");
    add("prefix", "<n:ctipaths xmlns:n='urn:x'><n:PATH>more</n:PATH></n:ctipaths>", "more");
    add("default namespace", "<CtiPaths xmlns='urn:x'><Path>more</Path></CtiPaths>", "more");
    add("before CtiPaths", "<c><Path>last</Path><CtiPaths><Path>more</Path></CtiPaths></c>", "more");
    add("after CtiPaths", "<c><CtiPaths><Path>more</Path></CtiPaths><Path>last</Path></c>", "more");
    add("only outside", "<c><Path>last</Path></c>", "cti");
    add("two CtiPaths", "<c><CtiPaths><Path>more</Path></CtiPaths><CtiPaths><Path>last</Path></CtiPaths></c>",
        "more|last");
    add("inner end tag", "<CtiPaths><CtiPaths><Path>more</Path></CtiPaths><Path>last</Path></CtiPaths>",
        "more"); // Intended: the inner end tag ends the outer element as well.
    add("relative to the document", "<CtiPaths><Path>own</Path></CtiPaths>", "bin/own");
    add("relative to the install root", "<CtiPaths><Path>bin/own</Path></CtiPaths>", "bin/own");
    add("parent of the document", "<CtiPaths><Path>../more</Path></CtiPaths>", "more");
    add("absolute", "<CtiPaths><Path>ROOT/more</Path></CtiPaths>", "more");
    add("missing", "<CtiPaths><Path>nowhere</Path></CtiPaths>", "cti");
    add("missing and present", "<CtiPaths><Path>nowhere</Path><Path>more</Path></CtiPaths>", "more");
    // The path still counts, so "cti" is not used.
    add("missing absolute", "<CtiPaths><Path>/nowhere</Path></CtiPaths>", "");
    // For Qt, a path that starts with ":" is absolute.
    add("missing resource", "<CtiPaths><Path>:/nowhere</Path></CtiPaths>", "");
    // Text mode removes every carriage return.
    add("carriage returns", "<CtiPaths>\r\n<Path>mo\rre</Path></CtiPaths>", "more");
    add("child element", "<CtiPaths><Path>more<b/></Path><Path>last</Path></CtiPaths>", "more");
    add("child element, absolute", "<CtiPaths><Path>/nowhere<b/></Path></CtiPaths>", "");
    add("child element first", "<CtiPaths><Path><b/>last</Path><Path>last</Path></CtiPaths>", "cti");
    add("wrong end tag", "<CtiPaths><Path>more</Path><Path>last</CtiPaths>", "more|last");
    add("undeclared entity", "<CtiPaths><Path>more&e;</Path><Path>last</Path></CtiPaths>", "more");
    add("undeclared prefix", "<CtiPaths><Path>more</Path><n:Path>last</n:Path></CtiPaths>", "more");
    add("cut off", "<CtiPaths><Path>more</Path>", "more");
    add("text after the root", "<CtiPaths><Path>more</Path></CtiPaths>last", "more");
    add("no XML", "CtiPaths = more", "cti");
    add("empty file", "", "cti");
    QByteArray entities;
    for (int index = 0; index < 300; ++index)
        entities += "<!ENTITY e" + QByteArray::number(index) + " 'more'>";
    add("many entities and a large file",
        "<!DOCTYPE c [" + entities + "]><c><!--" + QByteArray(300'000, ' ')
            + "--><CtiPaths><Path>&e299;</Path></CtiPaths></c>",
        "more");
}

void TestCtiDirectories::searchDirectoriesAreReadFromTheDocument()
{
    QFETCH(QByteArray, xml);
    m_configured->writeXml(xml.replace("ROOT", m_configured->path({}).toUtf8()));
    const MessageLog log;
    m_configured->loadConfig();
    QTEST(searched(), "expected");
    QCOMPARE(log.entries().size(), 0);
}

void TestCtiDirectories::relativePathIsResolvedInTheInstallRootFirst()
{
    m_configured->createFile("twice/root_gige.cti"_s);
    m_configured->createFile("bin/twice/bin_gige.cti"_s); // This name comes first in the sort order.
    m_configured->writeCtiPaths({"twice"_s});
    m_configured->loadConfig();
    m_configured->setCameras({camera({}, {}, {}, {}, "GigE"_s)});
    QCOMPARE(m_configured->ctiFile(0), "root_gige.cti"_s);
}

void TestCtiDirectories::emptyInstallRootMeansTheCurrentDirectory()
{
    const QString before = QDir::currentPath();
    m_configured->writeCtiPaths({"more"_s}); // This file is not read.
    QVERIFY(QDir::setCurrent(m_configured->path({})));
    m_configured->window.loadConfig({});
    const QString found = searched();
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(found, "cti"_s);
}

QTEST_MAIN(TestCtiDirectories)
#include "TestCtiDirectories.moc"
