#include "tests/config/EmbeddedFiles.h"

#include "tests/support/ScriptFile.h"

#include <QPixmapCache>
#include <QProcess>
#include <QResource>

EmbeddedFiles::EmbeddedFiles(const QMap<QString, QByteArray> &files)
    : m_bundle(m_directory.filePath(QStringLiteral("bundle.rcc")))
{
    if (files.isEmpty())
        return;
    QByteArray list = "<RCC><qresource prefix=\"/\">";
    for (auto file = files.begin(); file != files.end(); ++file) {
        ScriptFile::write(m_directory.filePath(file.key()), file.value());
        list += "<file>" + file.key().toUtf8() + "</file>";
    }
    const QString collection
        = ScriptFile::write(m_directory.filePath(QStringLiteral("bundle.qrc")), list + "</qresource></RCC>");
    const int result = QProcess::execute(QStringLiteral(CORVIX_RCC),
        {QStringLiteral("--binary"), QStringLiteral("--output"), m_bundle, collection});
    if (result != 0 || !QResource::registerResource(m_bundle))
        qFatal("Cannot embed %s", qUtf8Printable(collection));
    // The cache identifies a picture by its path and time stamp, which can be equal in two bundles.
    QPixmapCache::clear();
}

EmbeddedFiles::~EmbeddedFiles()
{
    QResource::unregisterResource(m_bundle); // This call does nothing if there were no files.
}
