#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QTemporaryDir>

/// Embeds files below ":/" during its lifetime. They replace the shipped ones, so the test must not link
/// those.
class EmbeddedFiles
{
public:
    /// Contents by path, for example "config/launcher_config.json".
    explicit EmbeddedFiles(const QMap<QString, QByteArray> &files);
    ~EmbeddedFiles();

    EmbeddedFiles(const EmbeddedFiles &) = delete;
    EmbeddedFiles &operator=(const EmbeddedFiles &) = delete;

private:
    QTemporaryDir m_directory;
    QString m_bundle;
};
