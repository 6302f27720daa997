#include "ui/CtiSearchDirectories.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

namespace {

constexpr qint64 LargestDocument = 256 << 10; // Bytes, as in the SDK library. Some XML takes quadratic time.
constexpr int MostEntities = 256; // As in the SDK library, which nests them on the stack.
constexpr int LongestExpansion = 4096; // Characters that one reference may add; the reader's own default.
constexpr int LargestExpansion = 16 << 20; // Characters that all references together may add.

/// UTF-16 or UTF-32, by a byte order mark or by the NUL bytes around the first characters.
bool hasWideCharacters(const QByteArray &start)
{
    return start.contains('\0') || start.startsWith("\xFF\xFE") || start.startsWith("\xFE\xFF");
}

QByteArray readDocument(const QString &path)
{
    QFile file(path);
    // Only a regular file: a FIFO in its place would hold us up for ever.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    // Text mode drops carriage returns, bytes that are half of a wide character.
    file.setTextModeEnabled(!hasWideCharacters(file.peek(4)));
    return file.read(LargestDocument);
}

/// The reader limits each reference, not how many there are. One takes three bytes at the least.
int expansionLimit(const QByteArray &document)
{
    return qMin(LongestExpansion, LargestExpansion / (document.size() / 3 + 1));
}

/// Whether the reader is at an element of that name, whatever its prefix and its letter case.
bool isNamed(const QXmlStreamReader &xml, QLatin1String name)
{
    const QString elementName = xml.name().toString();
    return elementName.midRef(elementName.lastIndexOf(QLatin1Char(':')) + 1)
               .compare(name, Qt::CaseInsensitive)
        == 0;
}

/// The texts of the Path elements inside CtiPaths, up to the end or the first error of the document.
QStringList readCtiPaths(QXmlStreamReader &xml)
{
    QStringList paths;
    bool inside = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.hasError() || xml.entityDeclarations().size() > MostEntities)
            break;
        if ((xml.isStartElement() || xml.isEndElement()) && isNamed(xml, QLatin1String("CtiPaths"))) {
            inside = xml.isStartElement();
        } else if (inside && xml.isStartElement() && isNamed(xml, QLatin1String("Path"))) {
            const QString path = xml.readElementText().trimmed();
            if (xml.hasError())
                break; // A child element, for example: this Path contributes nothing.
            if (!path.isEmpty())
                paths.append(path);
        }
    }
    return paths;
}

/// The directory that a Path element means; empty when it means none.
QString searchDirectory(const QString &path, const QDir &installRoot, const QDir &xmlDirectory)
{
    if (path.startsWith(QLatin1Char('/')))
        return path; // Taken unchecked: a missing directory is skipped when it is searched.
    for (const QDir &base : {installRoot, xmlDirectory}) {
        // Not filePath(), which takes a name with a colon in front for a resource of ours.
        QString candidate = base.path();
        if (!candidate.endsWith(QLatin1Char('/'))) // As "/" does.
            candidate += QLatin1Char('/');
        candidate += path;
        if (QFileInfo(candidate).isDir())
            return candidate;
    }
    return {};
}

} // namespace

QStringList ctiSearchDirsFromCvxCXml(const QString &installRoot)
{
    const QDir root(installRoot);
    const QString xmlPath = root.filePath(QStringLiteral("bin/CvxC.xml"));
    const QByteArray document = readDocument(xmlPath);
    QXmlStreamReader xml(document);
    xml.setEntityExpansionLimit(expansionLimit(document));
    QStringList directories;
    const QStringList paths = readCtiPaths(xml);
    for (const QString &path : paths) {
        const QString directory = searchDirectory(path, root, QFileInfo(xmlPath).absoluteDir());
        if (!directory.isEmpty())
            directories.append(directory);
    }
    directories.removeDuplicates();
    if (directories.isEmpty())
        directories.append(root.filePath(QStringLiteral("cti")));
    return directories;
}
