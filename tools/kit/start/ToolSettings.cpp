#include "tools/kit/start/ToolSettings.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTextCodec>

namespace {

/// Returns true if the file exists and is not what this class has written.
bool isDamaged(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false; // There is none, or it cannot be read, so it cannot be damaged either.
    const QByteArray content = file.readAll();
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(content.constData(), content.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0 || content.contains('\0'))
        return true;
    const QSettings settings(path, QSettings::IniFormat);
    settings.allKeys(); // Parses the file.
    return settings.status() == QSettings::FormatError;
}

QString userDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/corvix-x");
}

} // namespace

ToolSettings::ToolSettings(const QString &tool) : ToolSettings(tool, userDirectory()) { }

ToolSettings::ToolSettings(const QString &tool, const QString &directory)
{
    const QString path = QDir(directory).filePath(tool + QStringLiteral(".ini"));
    if (isDamaged(path)) {
        m_damagedFile = path + QStringLiteral(".damaged");
        QFile::remove(m_damagedFile);
        if (!QFile::rename(path, m_damagedFile))
            QFile::remove(path);
    }
    m_settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
    m_settings->setIniCodec("UTF-8");
}

bool ToolSettings::save()
{
    m_settings->sync();
    return m_settings->status() == QSettings::NoError;
}
