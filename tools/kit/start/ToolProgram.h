#pragma once

#include <QString>

/// What identifies a tool.
struct ToolProgram
{
    QString name; ///< Name of the executable, of the settings file and of the desktop entry, for example
                  ///< "ImageViewer".
    QString description; ///< One English sentence for --help.
    QString version; ///< For example "1.0.0".
};
