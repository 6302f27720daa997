#include "tools/imageviewer/files/NewFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

/// Returns true if there is something of this name, also a link that leads nowhere.
bool isNameUsed(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

} // namespace

NewFile::NewFile(const QString &folder, const FileNamePattern &pattern, const FileNameValues &values,
    const QString &extension, unsigned first)
{
    QDir().mkdir(folder);
    const auto pathOf = [&](const QString &name) {
        return folder + QLatin1Char('/') + name + QLatin1Char('.') + extension;
    };
    m_number = pattern.freeNumber(values, first, [&](const QString &name) { return isTaken(pathOf(name)); });
    m_path = pathOf(pattern.name(values, m_number));
}

NewFile::~NewFile()
{
    if (m_isCreated && QFileInfo(m_path).size() == 0)
        QFile::remove(m_path);
}

bool NewFile::isTaken(const QString &path)
{
    for (const char *const extension : {"", ".json", ".csv"}) {
        if (isNameUsed(path + QLatin1String(extension)))
            return true;
    }
    QFile file(path);
    m_isCreated = file.open(QIODevice::WriteOnly | QIODevice::NewOnly);
    return !m_isCreated && isNameUsed(path); // Somebody else was faster.
}
