#pragma once

#include "tools/camerasetup/settings/LoadTable.h"
#include "tools/camerasetup/settings/SettingsLoad.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QTreeView;

/// Shows what a load would change while a person decides, what it has done afterwards, and why settings have
/// failed. A load can be cancelled and undone. The dialog stays open while the camera is being written.
class LoadDialog : public QDialog
{
    Q_OBJECT

public:
    /// Starts to plan.
    LoadDialog(const QString &title, const FeatureFile &file, CameraJobs &jobs, ChangeHistory &history,
        QWidget *parent);

    const SettingsLoad &settingsLoad() const { return m_load; }

    /// Returns the summary and the table as text.
    QString report() const;

    /// Cancels the running work; closes the dialog if there is none. Asks before the only way to undo a load
    /// is lost.
    void reject() override;

private:
    QWidget *createTable();
    QWidget *createModes();
    QWidget *createButtons();
    void askToClose();
    void copyReport();
    void startLoad();
    void showLoad();
    void showProgress();
    void showButtons();
    void showCurrentRow();

    CameraJobs &m_jobs;
    SettingsLoad m_load;
    LoadTable m_model;
    QLabel *m_summary;
    QProgressBar *m_progress;
    QCheckBox *m_onlyChanges;
    QTreeView *m_table;
    QLabel *m_current;
    QWidget *m_modes;
    QRadioButton *m_whatFits;
    QRadioButton *m_allOrNothing;
    QPushButton *m_loadButton;
    QPushButton *m_undo;
    QPushButton *m_copy;
    QPushButton *m_close;
};
