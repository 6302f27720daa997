#pragma once

#include "camera/CameraInfo.h"

#include <QFutureWatcher>
#include <QMutex>
#include <QObject>
#include <QString>
#include <QVector>

#include <atomic>
#include <memory>

class CameraObserver;
class CorvixCameraProvider;
class InterfaceObserver;
class MainWindow;
class QMenu;
class QSystemTrayIcon;

/// Starts and shuts down the camera SDK, and owns the window, the tray icon and the running camera scan.
class ApplicationController : public QObject
{
    Q_OBJECT

public:
    explicit ApplicationController(QObject *parent = nullptr);

    /// Waits for a running scan and then shuts the SDK down, even if the SDK never started.
    ~ApplicationController() override;

    /// Starts the SDK, registers the observers and loads the configuration.
    /// Returns false only if the SDK does not start.
    bool init();

    /// Starts the first scan, shows the window and runs the event loop; returns the loop's exit code.
    int run();

public slots:
    /// Starts a scan on a pool thread. A request during a scan is dropped, not queued.
    void refreshCameras();

    /// Shows the cameras that the scan found, clears the selection and allows the next scan.
    void onCameraListReady(const QVector<CameraInfo> &list);

    /// Starts the tool as a detached process. The working directory is the directory of the tool. A relative
    /// path is resolved against the install root. The environment variable CORVIX_CAMERA of the tool is the
    /// ID of the selected camera, or empty. Shows a warning if the tool does not start.
    void launchTool(const QString &toolPath);

    /// Hides the window if there is a visible tray icon; otherwise minimises the window.
    void minimizeToTray();
    void closeApp();
    void showFromTray();

private:
    void setupTray();

    // Members are destroyed from the last to the first. The watcher has to be destroyed before the window,
    // which the handler of the watcher uses.
    QString installRoot;
    QVector<CameraInfo> cameras;
    std::unique_ptr<MainWindow> window;
    std::unique_ptr<CorvixCameraProvider> cameraProvider;
    QSystemTrayIcon *trayIcon = nullptr; // Null if the desktop has no tray.
    QMenu *trayMenu = nullptr;
    QMutex observerMutex; // Prevents the callbacks of the two observers from running at the same time.
    std::shared_ptr<CameraObserver> cameraObserver;
    std::shared_ptr<InterfaceObserver> interfaceObserver;
    std::atomic<bool> scanning{false};
    QFutureWatcher<QVector<CameraInfo>> watcher;
};
