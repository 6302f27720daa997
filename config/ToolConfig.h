#pragma once

#include <QString>
#include <QStringList>

/// Describes one tool that the launcher can start.
struct ToolConfig
{
    QString id; ///< Recommendations and the compatibility table contain this id.
    QString name; ///< Shown on the tile.
    QString executable; ///< Path relative to the install root, for example "bin/ImageViewer".
    QString description; ///< Shown on the tile, below the name.
    QStringList platforms; ///< Platforms on which the tool exists; empty means every platform.
    QStringList transports; ///< Transports for which the tool is recommended; empty means every transport.
};
