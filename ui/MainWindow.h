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

/// The launcher's window: the connected cameras above, the tools below. Shows the cameras that it is given
/// and requests refreshes and tool starts by signals.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent);
    ~MainWindow() override;

    /// Loads the configuration and builds the tiles. Call it once. `installRoot` may be empty.
    void loadConfig(const QString &installRoot);

    void setRefreshEnabled(bool enabled);

    /// Stores the cameras to show. Call setSelectedCamera() afterwards to draw them.
    void setCameras(const QVector<CameraInfo> &cameras);

    /// Selects the camera and redraws the table, then the tiles. An empty record means no camera.
    void setSelectedCamera(const CameraInfo &camera);

signals:
    void requestRefreshCameras();

    /// `toolPath` is relative to the install root, as the configuration contains it.
    void requestLaunchTool(const QString &toolPath);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // In MainWindow.cpp.
    void applyStyle();
    void showMenu();
    void openDocumentation();

    // In MainWindowTools.cpp.
    void initializeTools();
    void renderTools();

    // In MainWindowCameraTable.cpp.
    void setUpCameraTable();
    void renderCameraTable();
    void resizeCameraTableColumns();
    void selectCurrentCamera();
    void showCameraMenu(const QPoint &position);

    /// Returns the path of the GenTL producer file for the interface; empty if there is no producer file.
    QString resolveCtiPath(const QString &interfaceLabel); // In MainWindowConfig.cpp.

    std::unique_ptr<Ui_MainWindow> ui;
    LauncherConfig m_config;
    QString m_installRoot;
    QStringList m_ctiSearchDirs; // Directories that are searched for producer files, in this order.
    QVector<CameraInfo> m_cameras; // One per table row.
    CameraInfo m_selectedCamera;
    HardwareGroupConfig m_selectedGroup; // Empty while no camera with an ID is selected.
    QList<ApplicationLauncher *> m_launchers;
    QList<ToolConfig> m_tools; // The tool of each tile, same index as m_launchers.
    QPoint m_dragPosition; // Cursor position relative to the window when the drag began.
    bool m_dragging = false;
    int m_hoveredRow = -1; // Row of the camera table under the mouse; -1 for none.
    QHash<QString, QString> m_ctiPathCache; // Interface label to file path; empty if no file was found.
    QString m_platform; // "linux_" and the processor architecture.
};
