#pragma once

#include <QString>

class QDir;

/// Finds the root directory of the SDK installation from the place of the running program.
class InstallRootResolver
{
public:
    /// Absolute path without a trailing separator; never empty, never fails.
    static QString resolve();

private:
    static bool hasCorvixStructure(const QDir &dir);
};
