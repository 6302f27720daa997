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

    /// Reads everything from the camera object. Control characters and repeated blanks in the texts, but not
    /// in the IDs, become one blank.
    static CameraEntry read(const std::shared_ptr<CvxCPP::Camera> &camera);

    /// Returns the text by which a person knows the camera: the user's name, the display name, the model or
    /// the ID, whichever is the first that is not empty.
    QString title() const;

    /// Returns true if all texts are equal.
    bool hasSameTexts(const CameraEntry &other) const;
};

using CameraEntries = QVector<CameraEntry>;

/// Returns the cameras that the text means; see matchCameras().
CameraEntries matchEntries(const CameraEntries &cameras, const QString &text);

Q_DECLARE_METATYPE(CameraEntry)
Q_DECLARE_METATYPE(CameraEntries)
