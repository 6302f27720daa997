#pragma once

#include "CvxCPP/CvxCPP.h"

#include <QMetaType>
#include <QString>
#include <QVector>

#include <memory>

/// One camera as a person chooses it. All texts except the ID may be empty.
struct CameraEntry
{
    QString id; ///< The extended ID, which is unique.
    QString deviceId; ///< The producer's ID of the camera; the launcher passes this one.
    QString name; ///< Display name.
    QString model;
    QString serialNumber;
    QString userName; ///< The name that a user has stored in the camera.
    QString connection; ///< Technology, for example "GigE".
    std::shared_ptr<CvxCPP::Camera> camera; ///< Never null in a list.
};

using CameraEntries = QVector<CameraEntry>;

Q_DECLARE_METATYPE(CameraEntries)
