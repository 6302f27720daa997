#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

/// Stands in for the desktop's "xdg-open" while it lives: the first of that name in PATH, it writes down how
/// it was called.
class OpenedDirectories
{
public:
    OpenedDirectories();
    ~OpenedDirectories();

    OpenedDirectories(const OpenedDirectories &) = delete;
    OpenedDirectories &operator=(const OpenedDirectories &) = delete;

    /// The arguments of all calls so far, one per line.
    QString arguments() const;

private:
    QTemporaryDir m_directory;
    QByteArray m_path;
};
