#pragma once

#include "tools/camerasetup/values/CameraJobs.h"
#include "tools/camerasetup/values/ChangeHistory.h"
#include "tools/camerasetup/values/Favourites.h"
#include "tools/camerasetup/values/OpeningSnapshot.h"
#include "tools/camerasetup/values/PresentSelectors.h"
#include "tools/kit/live/LiveStream.h"
#include "tools/kit/window/LivePauser.h"
#include "tools/kit/window/ToolWindow.h"

#include <QList>

class ComparePanel;
class DetailsPane;
class HistoryPanel;
class LivePicture;
class QDockWidget;
class QLabel;
class QTabWidget;
class SelectorTable;
class SettingsActions;
class TreePanel;
class UserSetPanel;

/// Camera Setup: every feature of one camera, with search, undo, comparison and files. This class only
/// connects its parts.
class SetupWindow : public ToolWindow
{
    Q_OBJECT

public:
    /// @param camera The camera that was named at the start; empty if none was.
    SetupWindow(const QString &camera, ToolSettings &settings);
    ~SetupWindow() override;

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void createContent();
    void createDocks();
    void createMenus();
    void createStatusBar();
    void connectParts();
    QDockWidget *addPanel(const QString &name, const QString &title, QWidget *panel, Qt::DockWidgetArea area);

    void onConnectionChanged();
    void followPicture();
    void retryPicture();
    void onPictureVisible(bool isVisible);
    void showFailure(const QString &name, const QString &text);
    void showFeature(const QString &name);
    void showTable(const QString &name);
    void showCompare();
    void showCounts();
    void restoreOpening();

    PresentSelectors m_selectors;
    OpeningSnapshot m_opening;
    CameraJobs m_jobs;
    ChangeHistory m_history;
    Favourites m_favourites;
    LiveStream m_stream;
    LivePauser m_pauser;
    TreePanel *m_tree = nullptr;
    ComparePanel *m_compare = nullptr;
    QTabWidget *m_tabs = nullptr;
    DetailsPane *m_details = nullptr;
    SelectorTable *m_table = nullptr;
    LivePicture *m_picture = nullptr;
    SettingsActions *m_settingsActions = nullptr;
    QList<QDockWidget *> m_docks; // In the order of their menu.
    QDockWidget *m_detailsDock = nullptr;
    QDockWidget *m_tableDock = nullptr;
    QDockWidget *m_pictureDock = nullptr;
    QLabel *m_counts = nullptr;
    bool m_isControlled = false;
};
