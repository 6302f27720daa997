#pragma once

#include "config/ToolConfig.h"

#include <QVector>

/// Describes one hardware group with its tools. An empty type means "no group".
struct HardwareGroupConfig
{
    QString type; ///< Group type, for example "areascan".
    QString name; ///< Display name, shown in the hint above the tiles.
    QString brand;
    QString description;
    QVector<ToolConfig> tools; ///< The tools in the order of the file.
};
