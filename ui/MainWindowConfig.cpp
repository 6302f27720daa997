// Loads the window's configuration, reads the search directories from bin/CvxC.xml, and chooses a GenTL
// producer file for each interface.

#include "ui/MainWindow.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

#include <algorithm>
#include <limits>

namespace {

/// Returns whether the reader is at an element of that name, whatever its letter case and namespace prefix.
bool isNamed(const QXmlStreamReader &xml, QLatin1String name)
{
    return xml.name().compare(name, Qt::CaseInsensitive) == 0; // name() is the name without the prefix.
}

/// Returns the texts of the Path elements inside CtiPaths, up to the first error of the document.
QStringList readCtiPaths(QIODevice &document)
{
    QXmlStreamReader xml(&document);
    QStringList paths;
    bool inside = false;
    while (!xml.hasError() && xml.readNext() != QXmlStreamReader::EndDocument) {
        if ((xml.isStartElement() || xml.isEndElement()) && isNamed(xml, QLatin1String("CtiPaths"))) {
            // Intended: the depth is not counted, so an inner end tag also ends the outer element.
            inside = xml.isStartElement();
        } else if (inside && xml.isStartElement() && isNamed(xml, QLatin1String("Path"))) {
            // The text before an error still counts, for example before a child element.
            paths.append(xml.readElementText().trimmed());
        }
    }
    paths.removeAll(QString());
    return paths;
}

/// Returns the directory that the text of a Path element names; empty if it is relative and does not exist.
QString searchDirectory(const QString &path, const QDir &installRoot, const QDir &xmlDirectory)
{
    if (QDir::isAbsolutePath(path))
        return path; // Not checked: a missing directory is skipped when it is searched.
    for (const QDir &base : {installRoot, xmlDirectory}) {
        const QString candidate = base.filePath(path);
        if (QFileInfo(candidate).isDir())
            return candidate;
    }
    return {};
}

/// Returns the directories that bin/CvxC.xml names, without duplicates; "cti" if it names none.
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
    QStringList labels; // The row applies if the interface label contains one of these.
    QStringList keywords;
};

/// Returns what the name of a producer file for the interface is likely to contain; empty for most labels.
QStringList ctiKeywordsForInterface(const QString &interfaceLabel)
{
    const auto l = [](const char *list) { return QString::fromLatin1(list).split(QLatin1Char(' ')); };
    // The order matters: "cameralinkhs" also contains "cameralink". Intended: "usbt" is listed twice and
    // "usbtL" has a capital, so a file name with "usbt" outweighs one with only "usb".
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

/// Returns 100 for each keyword in the file name, and 5 more for "corvix".
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

/// Returns the producer files of all directories, directory by directory, each sorted by name.
QFileInfoList ctiFiles(const QStringList &directories)
{
    QFileInfoList files;
    for (const QString &directory : directories)
        files += QDir(directory).entryInfoList({QStringLiteral("*.cti")}, QDir::Files, QDir::Name);
    return files;
}

/// Returns the path of the file with the highest score; the first name wins among equal scores. Empty only
/// without files.
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

/// Returns the path that sorts first; empty only without files.
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
    // Intended: the cache lives until the next loadConfig(), so a refresh does not find new files.
    const auto cached = m_ctiPathCache.constFind(interfaceLabel);
    if (cached != m_ctiPathCache.constEnd())
        return *cached;
    const QFileInfoList files = ctiFiles(m_ctiSearchDirs);
    const QStringList keywords = ctiKeywordsForInterface(interfaceLabel);
    QString path = keywords.isEmpty() ? firstCtiFile(files) : bestCtiFile(files, keywords);
    m_ctiPathCache.insert(interfaceLabel, path);
    return path;
}
