#pragma once

#include <QString>

class QDir;

/// Finds the root directory of the SDK installation from the location of the running program.
class InstallRootResolver
{
public:
    /// Returns the root as an absolute path without a trailing separator. The path is never empty.
    static QString resolve();

private:
    /// Returns whether the directory contains "api", "cti" or "bin", as a file or a directory.
    static bool hasCorvixStructure(const QDir &dir);
};
