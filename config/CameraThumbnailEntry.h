#pragma once

#include <QString>

/// Describes one reference camera model with its group and its picture.
struct CameraThumbnailEntry
{
    QString model; ///< Model name or family prefix as written in the file, for example "Kx200 Pro".
    QString type; ///< Group type as written in the file, for example "areascan".
    QString thumbnail; ///< Resource path of the picture, below ":/images/".
};
