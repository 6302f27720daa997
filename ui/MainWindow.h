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

/// The launcher's window: the connected cameras above, the tools below. Shows what it is given and asks for
/// refreshes and tool starts; decides nothing itself.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent);
    ~MainWindow() override;

    /// Loads the configuration and builds the tiles; to be called once. `installRoot` may be empty.
    void loadConfig(const QString &installRoot);

    void setRefreshEnabled(bool enabled);

    /// Stores the cameras to show. Draws nothing: follow it with setSelectedCamera().
    void setCameras(const QVector<CameraInfo> &cameras);

    /// Selects the camera (an empty record: none) and redraws the table, then the tiles.
    void setSelectedCamera(const CameraInfo &camera);

signals:
    void requestRefreshCameras();
    void requestLaunchTool(const QString &toolPath);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // The shell, in MainWindow.cpp.
    void applyStyle();
    void showMenu();
    void openDocumentation();

    // The tool tiles, in MainWindowTools.cpp.
    void initializeTools();
    void renderTools();

    // The camera table, in MainWindowCameraTable.cpp.
    void setUpCameraTable();
    void renderCameraTable();
    void resizeCameraTableColumns();
    void selectCurrentCamera();
    void showCameraMenu(const QPoint &position);

    // The transport-layer files, with loadConfig() in MainWindowConfig.cpp.
    QString resolveCtiPath(const QString &interfaceLabel);

    std::unique_ptr<Ui_MainWindow> ui;
    LauncherConfig m_config;
    QString m_installRoot;
    QStringList m_ctiSearchDirs; // Directories with transport-layer files, in order of search.
    QVector<CameraInfo> m_cameras; // One per table row.
    CameraInfo m_selectedCamera;
    HardwareGroupConfig m_selectedGroup; // Empty while no camera with an ID is selected.
    QList<ApplicationLauncher *> m_launchers;
    QList<ToolConfig> m_tools; // The tool of each tile, same index as m_launchers.
    QPoint m_dragPosition; // Cursor position relative to the window when the drag began.
    bool m_dragging = false;
    int m_hoveredRow = -1; // Row of the camera table under the mouse; -1 for none.
    QHash<QString, QString> m_ctiPathCache; // Interface label to file; empty where none was found.
    QString m_platform; // "linux_" and the processor architecture.
};
