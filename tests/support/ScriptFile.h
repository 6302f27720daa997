#pragma once

#include <QString>

/// Files made by tests, mostly in a QTemporaryDir. Missing directories are made.
namespace ScriptFile {

/// Writes an executable shell script (the body follows "#!/bin/sh") and returns its path.
QString writeExecutable(const QString &path, const QByteArray &body);

/// Writes a plain file and returns its path.
QString write(const QString &path, const QByteArray &content);

/// The content of a file; empty while there is none.
QByteArray read(const QString &path);

} // namespace ScriptFile
