#pragma once

#include "sdk/features/UserSets.h"
#include "tools/camerasetup/values/CameraJobs.h"
#include "tools/camerasetup/values/ChangeHistory.h"
#include "tools/camerasetup/values/OpeningSnapshot.h"

#include <QWidget>

class FeatureClient;

/// The settings that the camera keeps in itself: a list of the user sets (UserSetSelector) with buttons to
/// load and save one, and to make one the default at power-on (UserSetDefault, or UserSetDefaultSelector of
/// older cameras). Asks before anything is overwritten. Loading is recorded in the history with every feature
/// that it has changed, so it can be undone.
class UserSetPanel : public QWidget
{
    Q_OBJECT

public:
    /// What the panel works with; everything outlives it.
    struct Parts
    {
        FeatureClient &client;
        CameraJobs &jobs;
        ChangeHistory &history;
        OpeningSnapshot &opening; ///< Tells how many settings a load would overwrite.
    };

    explicit UserSetPanel(const Parts &parts, QWidget *parent = nullptr);

signals:
    /// A person wants to compare the camera with this set.
    void compareRequested(const QString &userSet);

private:
    const Parts m_parts;
};
