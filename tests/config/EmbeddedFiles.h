#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QTemporaryDir>

/// Embeds files below ":/" during its lifetime. A test that embeds files must not link the shipped files,
/// which have the same paths.
class EmbeddedFiles
{
public:
    /// `files` maps a path, for example "config/launcher_config.json", to the content of the file.
    explicit EmbeddedFiles(const QMap<QString, QByteArray> &files);
    ~EmbeddedFiles();

    EmbeddedFiles(const EmbeddedFiles &) = delete;
    EmbeddedFiles &operator=(const EmbeddedFiles &) = delete;

private:
    QTemporaryDir m_directory;
    QString m_bundle;
};
