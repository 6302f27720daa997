#include "config/LauncherConfig.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

namespace {

QString fileText(const QString &path)
{
    QFile file(QStringLiteral(STAGE) + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString guide()
{
    return fileText(QStringLiteral("/doc/index.html"));
}

/// The first group of every match.
QStringList allMatches(const QString &text, const QString &pattern)
{
    QStringList found;
    auto matches = QRegularExpression(pattern).globalMatch(text);
    while (matches.hasNext())
        found << matches.next().captured(1);
    return found;
}

} // namespace

/// The files beside the programs, as they lie in the build tree and in an installation.
class TestStagedFiles : public QObject
{
    Q_OBJECT

private slots:
    void producersAreSearchedInCtiAndOursForAnyMakerLast();
    void guideNamesEveryTool_data();
    void guideNamesEveryTool();
    void guideNamesEveryMessage_data();
    void guideNamesEveryMessage();
    void guideNeedsNothingFromElsewhere();
    void linksOfTheGuideLeadSomewhere();
};

void TestStagedFiles::producersAreSearchedInCtiAndOursForAnyMakerLast()
{
    QXmlStreamReader xml(fileText(QStringLiteral("/bin/CvxC.xml")));
    QStringList parents, paths;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement())
            parents << xml.name().toString();
        else if (xml.isEndElement())
            parents.removeLast();
        else if (xml.isCharacters() && !xml.isWhitespace())
            paths << parents.join(QLatin1Char('/')) + QLatin1Char('=') + xml.text().toString();
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QCOMPARE(paths,
        (QStringList{
            QStringLiteral("CvxC/CtiPaths/Path=cti"), QStringLiteral("CvxC/CtiPaths/Path=cti/fallback")}));
}

void TestStagedFiles::guideNamesEveryTool_data()
{
    QTest::addColumn<QString>("row");
    LauncherConfig config;
    config.load();
    for (const ToolConfig &tool : config.allTools(QStringLiteral("linux_x86_64"))) {
        QTest::newRow(qPrintable(tool.id))
            << QStringLiteral("<td>%1</td><td><code>%2</code></td>").arg(tool.name, tool.executable);
    }
}

void TestStagedFiles::guideNamesEveryTool()
{
    QFETCH(QString, row);
    QVERIFY2(guide().contains(row), qPrintable(row));
}

void TestStagedFiles::guideNamesEveryMessage_data()
{
    QTest::addColumn<QString>("text");
    for (const char *message : {"Corvix X initialization failed",
             "Failed to initialize the Corvix X system. The launcher will be closed.",
             "Unable to register camera list observer", "Unable to register interface list observer",
             "Launch failed", "Could not launch:", "Unable to open documentation at:", "Scanning...",
             "Select a camera to enable its recommended tools.", "CTI location",
             "Configuration files version mismatch!", "Failed to load stylesheet",
             "Invalid entry in cameras_reference.json file"})
        QTest::newRow(message) << QString::fromLatin1(message);
}

void TestStagedFiles::guideNamesEveryMessage()
{
    QFETCH(QString, text);
    QVERIFY(guide().simplified().contains(text));
}

void TestStagedFiles::guideNeedsNothingFromElsewhere()
{
    const QString text = guide();
    QVERIFY(text.startsWith(QStringLiteral("<!doctype html>")));
    QCOMPARE(allMatches(text, QStringLiteral("(src=|<link|<script|@import|url\\()")), QStringList());
    const QStringList outside = allMatches(text, QStringLiteral("href=\"([^#\"][^\"]*)\""));
    QCOMPARE(outside, QStringList{QStringLiteral("https://www.orvelle.example")});
}

void TestStagedFiles::linksOfTheGuideLeadSomewhere()
{
    const QString text = guide();
    const QStringList ids = allMatches(text, QStringLiteral("id=\"([^\"]+)\""));
    QCOMPARE(QSet<QString>(ids.begin(), ids.end()).size(), ids.size());
    const QStringList targets = allMatches(text, QStringLiteral("href=\"#([^\"]+)\""));
    QVERIFY(!targets.isEmpty());
    for (const QString &target : targets)
        QVERIFY2(ids.contains(target), qPrintable(target));
}

QTEST_APPLESS_MAIN(TestStagedFiles)
#include "TestStagedFiles.moc"
