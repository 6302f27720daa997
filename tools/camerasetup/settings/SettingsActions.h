#pragma once

#include "tools/camerasetup/values/CameraJobs.h"
#include "tools/camerasetup/values/ChangeHistory.h"
#include "tools/camerasetup/values/OpeningSnapshot.h"

#include <QObject>

class FeatureClient;
class QAction;
class QMenu;
class QWidget;
class ToolSettings;

/// Saving the settings of the camera to a file, loading a file, and restoring the settings from the opening.
/// A load shows first what would change, and afterwards what has failed and why; see LoadDialog.
class SettingsActions : public QObject
{
    Q_OBJECT

public:
    /// What the actions work with; everything outlives them.
    struct Parts
    {
        FeatureClient &client;
        CameraJobs &jobs;
        ChangeHistory &history;
        OpeningSnapshot &opening;
        ToolSettings &settings; ///< Remembers the directory of the files.
    };

    /// @param window Parent of the dialogs.
    SettingsActions(const Parts &parts, QWidget *window);

    void addToMenu(QMenu *menu);

    QAction *const save;
    QAction *const load;
    QAction *const restore; ///< "As it was when I opened it".

    /// Plans to load these settings and shows the dialog.
    void loadSettings(const QString &title, const FeatureFile &file);
};
