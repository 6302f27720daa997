#pragma once

#include "camera/CameraInfo.h"
#include "config/LauncherConfig.h"

#include <QHash>
#include <QList>
#include <QMainWindow>
#include <QPoint>
#include <QStringList>
#include <QVector>

#include <memory>

class ApplicationLauncher;
class Ui_MainWindow;

/// Shows the connected cameras and, below them, the tools. Emits signals to request a refresh of the cameras
/// or the start of a tool.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent);
    ~MainWindow() override;

    /// Loads the configuration and creates the tiles. Call this function once. If `installRoot` is empty,
    /// paths are relative to the current directory.
    void loadConfig(const QString &installRoot);

    void setRefreshEnabled(bool enabled);

    /// Stores the cameras to show. Call setSelectedCamera() afterwards to display them.
    void setCameras(const QVector<CameraInfo> &cameras);

    /// Selects the camera, redraws the table and updates the tiles. An empty record means that no camera is
    /// selected.
    void setSelectedCamera(const CameraInfo &camera);

    /// Returns the selected camera; an empty record means that no camera is selected.
    const CameraInfo &selectedCamera() const { return m_selectedCamera; }

signals:
    void requestRefreshCameras();

    /// `toolPath` is the path in the configuration. It is usually relative to the install root.
    void requestLaunchTool(const QString &toolPath);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // These functions are defined in MainWindow.cpp.
    void applyStyle();
    void showMenu();
    void openDocumentation();

    // These functions are defined in MainWindowTools.cpp.
    void initializeTools();
    void renderTools();

    // These functions are defined in MainWindowCameraTable.cpp.
    void setUpCameraTable();
    void renderCameraTable();
    void resizeCameraTableColumns();
    void selectCurrentCamera();
    void showCameraMenu(const QPoint &position);

    /// Returns the path of the GenTL producer file for the interface; empty if there is no producer file.
    QString resolveCtiPath(const QString &interfaceLabel); // Defined in MainWindowConfig.cpp.

    std::unique_ptr<Ui_MainWindow> ui;
    LauncherConfig m_config;
    QString m_installRoot;
    QStringList m_ctiSearchDirs; // Directories that are searched for producer files, in this order.
    QVector<CameraInfo> m_cameras; // The cameras to show, one per table row.
    CameraInfo m_selectedCamera;
    HardwareGroupConfig m_selectedGroup; // Empty while no camera with an ID is selected.
    QList<ApplicationLauncher *> m_launchers;
    QList<ToolConfig> m_tools; // The tool of each tile, with the same index as in m_launchers.
    QPoint m_dragPosition; // Cursor position relative to the window when the drag began.
    bool m_dragging = false;
    int m_hoveredRow = -1; // Row of the camera table under the mouse; -1 for none.
    // Maps interface labels to file paths; a path is empty if no file was found.
    QHash<QString, QString> m_ctiPathCache;
    QString m_platform; // "linux_", followed by the processor architecture.
};
