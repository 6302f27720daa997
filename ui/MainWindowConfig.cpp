// The functions in this file load the window's configuration, read the search directories from bin/CvxC.xml,
// and choose a GenTL producer file for each interface.

#include "ui/MainWindow.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

#include <algorithm>
#include <limits>

namespace {

/// Returns true if the reader's current element has this name. Letter case and namespace prefix do not
/// matter.
bool isNamed(const QXmlStreamReader &xml, QLatin1String name)
{
    return xml.name().compare(name, Qt::CaseInsensitive) == 0; // name() does not contain the prefix.
}

/// Returns the contents of the Path elements inside CtiPaths, up to the first error in the document.
QStringList readCtiPaths(QIODevice &document)
{
    QXmlStreamReader xml(&document);
    QStringList paths;
    bool inside = false;
    while (!xml.hasError() && xml.readNext() != QXmlStreamReader::EndDocument) {
        if ((xml.isStartElement() || xml.isEndElement()) && isNamed(xml, QLatin1String("CtiPaths"))) {
            // Intended: the end tag of a nested CtiPaths element also ends the outer CtiPaths element.
            inside = xml.isStartElement();
        } else if (inside && xml.isStartElement() && isNamed(xml, QLatin1String("Path"))) {
            // A child element is an error, but the text before the error still counts.
            paths.append(xml.readElementText().trimmed());
        }
    }
    paths.removeAll(QString());
    return paths;
}

/// Returns the directory for the content of a Path element; empty if the path is relative and no such
/// directory exists.
QString searchDirectory(const QString &path, const QDir &installRoot, const QDir &xmlDirectory)
{
    if (QDir::isAbsolutePath(path))
        return path; // An absolute path is not checked: a search of a missing directory finds no files.
    for (const QDir &base : {installRoot, xmlDirectory}) {
        const QString candidate = base.filePath(path);
        if (QFileInfo(candidate).isDir())
            return candidate;
    }
    return {};
}

/// Returns the directories in bin/CvxC.xml without duplicates, or "cti" if the file contains no directory.
QStringList ctiSearchDirsFromCvxCXml(const QString &installRoot)
{
    const QDir root(installRoot);
    const QString defaultDirectory = root.filePath(QStringLiteral("cti"));
    QFile document(root.filePath(QStringLiteral("bin/CvxC.xml")));
    if (!document.open(QIODevice::ReadOnly | QIODevice::Text))
        return {defaultDirectory};

    const QDir xmlDirectory = QFileInfo(document).absoluteDir();
    QStringList directories;
    const QStringList paths = readCtiPaths(document);
    for (const QString &path : paths) {
        const QString directory = searchDirectory(path, root, xmlDirectory);
        if (!directory.isEmpty())
            directories.append(directory);
    }
    directories.removeDuplicates();
    return directories.isEmpty() ? QStringList{defaultDirectory} : directories;
}

struct KeywordRow
{
    QStringList labels; // The row applies if the interface label contains one of these strings.
    QStringList keywords;
};

/// Returns the keywords that the name of a producer file for this interface is likely to contain; empty if
/// the label matches no row.
QStringList ctiKeywordsForInterface(const QString &interfaceLabel)
{
    const auto l = [](const char *list) { return QString::fromLatin1(list).split(QLatin1Char(' ')); };
    // The order matters: "cameralinkhs" also contains "cameralink". Intended: "usbt" appears twice, and
    // "usbtL" equals "usbtl" in lower case. A file name with "usbt" therefore scores higher than a name with
    // only "usb".
    static const KeywordRow rows[] = {
        {l("simulator"), l("simulator camerasimulator")},
        {l("gige gig"), l("gige gig gev gevt gigeetl gigetl")},
        {l("usb u3v"), l("usb u3v usbt usbtL usbtl usbt")},
        {l("coaxpress cxp"), l("cxp coaxpress")},
        {l("cameralinkhs clhs"), l("clhs cameralinkhs cl-hs")},
        {l("cameralink cl"), l("cameralink cl cltl")},
        {l("firewire iidc"), l("iidc firewire")},
    };
    const QString key = interfaceLabel.trimmed().toLower();
    for (const KeywordRow &row : rows) {
        const auto inKey = [&key](const QString &label) { return key.contains(label); };
        if (std::any_of(row.labels.begin(), row.labels.end(), inKey))
            return row.keywords;
    }
    return {};
}

/// Returns 100 points for each keyword in the file name, plus 5 points if the name contains "corvix".
int ctiScore(const QString &fileName, const QStringList &keywords)
{
    const QString name = fileName.toLower();
    int score = name.contains(QLatin1String("corvix")) ? 5 : 0;
    for (const QString &keyword : keywords) {
        if (name.contains(keyword.toLower()))
            score += 100;
    }
    return score;
}

/// Returns the producer files in the order of the directories. The files of each directory are sorted by
/// name.
QFileInfoList ctiFiles(const QStringList &directories)
{
    QFileInfoList files;
    for (const QString &directory : directories)
        files += QDir(directory).entryInfoList({QStringLiteral("*.cti")}, QDir::Files, QDir::Name);
    return files;
}

/// Returns the path of the file with the highest score. Among files with equal scores, the first name in the
/// sort order is chosen. The path is empty only if there are no files.
QString bestCtiFile(const QFileInfoList &files, const QStringList &keywords)
{
    QString bestPath;
    QString bestName;
    int bestScore = std::numeric_limits<int>::min();
    for (const QFileInfo &file : files) {
        const int score = ctiScore(file.fileName(), keywords);
        if (score > bestScore || (score == bestScore && file.fileName() < bestName)) {
            bestScore = score;
            bestName = file.fileName();
            bestPath = file.absoluteFilePath();
        }
    }
    return bestPath;
}

/// Returns the first path in the sort order; empty only if there are no files.
QString firstCtiFile(const QFileInfoList &files)
{
    QStringList paths;
    for (const QFileInfo &file : files)
        paths.append(file.absoluteFilePath());
    std::sort(paths.begin(), paths.end());
    return paths.value(0);
}

} // namespace

void MainWindow::loadConfig(const QString &installRoot)
{
    m_installRoot = installRoot;
    m_ctiPathCache = {};
    m_config.load();
    m_ctiSearchDirs
        = installRoot.isEmpty() ? QStringList{QStringLiteral("cti")} : ctiSearchDirsFromCvxCXml(installRoot);
    initializeTools();
    renderTools();
}

QString MainWindow::resolveCtiPath(const QString &interfaceLabel)
{
    // Intended: the cache is kept until the next loadConfig(), so a refresh does not find new files.
    const auto cached = m_ctiPathCache.constFind(interfaceLabel);
    if (cached != m_ctiPathCache.constEnd())
        return *cached;
    const QFileInfoList files = ctiFiles(m_ctiSearchDirs);
    const QStringList keywords = ctiKeywordsForInterface(interfaceLabel);
    QString path = keywords.isEmpty() ? firstCtiFile(files) : bestCtiFile(files, keywords);
    m_ctiPathCache.insert(interfaceLabel, path);
    return path;
}
