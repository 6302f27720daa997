#pragma once

#include "tools/imageviewer/files/FileNamePattern.h"

#include <QString>

/// A file with a name that no file has had, so that nothing is ever replaced, also if two windows save at the
/// same time. The file is deleted again if nobody writes to it.
class NewFile
{
public:
    /// Creates the folder if only its last part is missing, and an empty file. If that is not possible, for
    /// example in a folder that is read-only, path() is the name, and writing to it will say why.
    /// @param first The first number to try.
    NewFile(const QString &folder, const FileNamePattern &pattern, const FileNameValues &values,
        const QString &extension, unsigned first = 1);
    ~NewFile();
    NewFile(const NewFile &) = delete;
    NewFile &operator=(const NewFile &) = delete;

    const QString &path() const { return m_path; }
    unsigned number() const { return m_number; }

private:
    bool isTaken(const QString &path);

    QString m_path;
    unsigned m_number = 0;
    bool m_isCreated = false;
};
