#include <QFile>
#include <QTest>
#include <QXmlStreamReader>

namespace {

QString fileText(const QString &path)
{
    QFile file(QStringLiteral(STAGE) + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

/// The files beside the programs, as they lie in the build tree and in an installation.
class TestStagedFiles : public QObject
{
    Q_OBJECT

private slots:
    void producersAreSearchedInCtiAndOursForAnyMakerLast();
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

QTEST_APPLESS_MAIN(TestStagedFiles)
#include "TestStagedFiles.moc"
