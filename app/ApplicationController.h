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

/// Owns everything: the camera SDK's start and end, the window, the tray, the running camera scan.
class ApplicationController : public QObject
{
    Q_OBJECT

public:
    explicit ApplicationController(QObject *parent = nullptr);

    /// Waits for a running scan, then shuts the SDK down, also when it never started.
    ~ApplicationController() override;

    /// Starts the SDK and wires everything up; false only when the SDK does not start.
    bool init();

    /// Starts the first scan, shows the window and runs the event loop; returns the loop's exit code.
    int run();

public slots:
    /// Starts a scan in the background. A request during a scan is dropped, not remembered.
    void refreshCameras();
    void onCameraListReady(const QVector<CameraInfo> &list);

    /// Starts the tool detached, in its own directory; a relative path counts from the install root.
    void launchTool(const QString &toolPath);
    void minimizeToTray();
    void closeApp();
    void showFromTray();

private:
    void setupTray();

    // Destroyed from the bottom up: the watcher goes before the window that its handler talks to.
    QString installRoot;
    QVector<CameraInfo> cameras;
    std::unique_ptr<MainWindow> window;
    std::unique_ptr<CorvixCameraProvider> cameraProvider;
    QSystemTrayIcon *trayIcon = nullptr; // Null on a desktop without a tray.
    QMenu *trayMenu = nullptr;
    QMutex observerMutex; // Serialises the two observers' callbacks against each other.
    std::shared_ptr<CameraObserver> cameraObserver;
    std::shared_ptr<InterfaceObserver> interfaceObserver;
    std::atomic<bool> scanning{false};
    QFutureWatcher<QVector<CameraInfo>> watcher;
};
