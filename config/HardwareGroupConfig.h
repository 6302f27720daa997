#pragma once

#include "config/ToolConfig.h"

#include <QVector>

/// One hardware group with its tools. An empty type means "no group".
struct HardwareGroupConfig
{
    QString type; ///< Group type, for example "areascan".
    QString name; ///< Display name, shown in the hint above the tiles.
    QString brand;
    QString description;
    QVector<ToolConfig> tools; ///< In file order.
};
