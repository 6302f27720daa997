// The window's configuration: the loading of it, and the transport-layer files that it leads to.

#include "ui/MainWindow.h"

#include "ui/CtiSearchDirectories.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <limits>

namespace {

struct KeywordRow
{
    QStringList labels; // The row serves an interface label that contains one of these.
    QStringList keywords;
};

/// What the name of a transport-layer file for the interface is likely to contain; empty for most labels.
QStringList ctiKeywordsForInterface(const QString &interfaceLabel)
{
    const auto l = [](const char *words) { return QString::fromLatin1(words).split(QLatin1Char(' ')); };
    // The order decides: "cameralinkhs" contains "cameralink" as well. "usbt" stands twice and "usbtL" keeps
    // its capital on purpose: a file name with "usbt" has to outweigh one that only says "usb".
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

/// All transport-layer files of the directories, directory by directory, sorted by name in each.
QFileInfoList ctiFiles(const QStringList &directories)
{
    QFileInfoList files;
    for (const QString &directory : directories)
        files += QDir(directory).entryInfoList({QStringLiteral("*.cti")}, QDir::Files, QDir::Name);
    return files;
}

/// The file that suits the keywords best; some file whenever there is one.
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

/// Where no keyword speaks for a file, the path that sorts first.
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
    // Kept until the next loadConfig(), on purpose: a refresh does not look for new files.
    const auto cached = m_ctiPathCache.constFind(interfaceLabel);
    if (cached != m_ctiPathCache.constEnd())
        return *cached;
    const QFileInfoList files = ctiFiles(m_ctiSearchDirs);
    const QStringList keywords = ctiKeywordsForInterface(interfaceLabel);
    QString path = keywords.isEmpty() ? firstCtiFile(files) : bestCtiFile(files, keywords);
    m_ctiPathCache.insert(interfaceLabel, path);
    return path;
}
