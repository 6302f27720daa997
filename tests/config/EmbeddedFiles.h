#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QTemporaryDir>

/// Puts files of the test's own below ":/" while it lives, in place of the shipped ones, which a test that
/// uses it does not link.
class EmbeddedFiles
{
public:
    /// Contents by path, for example "config/launcher_config.json"; none at all is the quickest.
    explicit EmbeddedFiles(const QMap<QString, QByteArray> &files);
    ~EmbeddedFiles();

    EmbeddedFiles(const EmbeddedFiles &) = delete;
    EmbeddedFiles &operator=(const EmbeddedFiles &) = delete;

private:
    QTemporaryDir m_directory;
    QString m_bundle;
};
