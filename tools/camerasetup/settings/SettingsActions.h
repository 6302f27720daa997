#pragma once

#include "tools/camerasetup/values/CameraJobs.h"
#include "tools/camerasetup/values/ChangeHistory.h"
#include "tools/camerasetup/values/OpeningSnapshot.h"

#include <QObject>

class FeatureClient;
class QAction;
class QFileDialog;
class QMenu;
class QWidget;
class SettingsSave;
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
    /// @param title What is loaded, for people, for example the name of the file.
    void loadSettings(const QString &title, const FeatureFile &file);

    /// Reads the file and shows the dialog; shows a message if that is not possible, or if the camera cannot
    /// be changed. For a file that is dropped on the window, too.
    void loadFile(const QString &path);

    /// Shows the dialog with the settings from the opening. Does nothing while `restore` is disabled.
    void restoreOpening();

    /// Reads the settings and writes the file, which is replaced as a whole or not at all.
    void saveFile(const QString &path);

signals:
    /// Something has succeeded that needs no answer, for a status line.
    void reported(const QString &text);

private:
    CameraConnection &connection() const;
    QString lockReason() const;
    void update();
    QFileDialog *createFileDialog(const QString &title);
    void rememberDirectory(const QString &path);
    void chooseFileToSave();
    void chooseFileToLoad();
    void reportSaved(const QString &path, int count, const std::vector<FeatureNote> &notes);
    void reportNotSaved(const QString &text);

    const Parts m_parts;
    QWidget *const m_window;
    SettingsSave *const m_save;
};
