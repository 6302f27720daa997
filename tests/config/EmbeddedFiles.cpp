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
    QPixmapCache::clear(); // Its key is the path and the time stamp, which two bundles may share.
}

EmbeddedFiles::~EmbeddedFiles()
{
    QResource::unregisterResource(m_bundle); // Does nothing if there were no files.
}
