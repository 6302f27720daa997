#include "app/ApplicationController.h"

#include "app/CameraObserver.h"
#include "app/InterfaceObserver.h"
#include "camera/CorvixCameraProvider.h"
#include "config/InstallRootResolver.h"
#include "desktop/StartTool.h"
#include "ui/MainWindow.h"

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QKeySequence>
#include <QMenu>
#include <QMessageBox>
#include <QStringList>
#include <QSystemTrayIcon>
#include <QThreadPool>
#include <QtConcurrent>
#include <QtDebug>

#include <exception>

using CvxCPP::CvxErrorSuccess;
using CvxCPP::CvxSystem;

namespace {

/// Returns the list of cameras. Logs a warning and returns an empty list if the SDK throws.
QVector<CameraInfo> scan(const CorvixCameraProvider *provider)
{
    try {
        return provider->listCameras();
    } catch (const std::exception &error) {
        qWarning("The camera scan failed: %s", error.what());
    } catch (...) {
        qWarning("The camera scan failed: unknown exception");
    }
    return {};
}

void clearOverrideCursors()
{
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
}

} // namespace

ApplicationController::ApplicationController(QObject *parent)
    : QObject(parent), window(std::make_unique<MainWindow>(nullptr))
{
    installRoot = InstallRootResolver::resolve();
    connect(window.get(), &MainWindow::requestRefreshCameras, this, &ApplicationController::refreshCameras);
    connect(window.get(), &MainWindow::requestLaunchTool, this, &ApplicationController::launchTool);
    connect(&watcher, &QFutureWatcherBase::finished, this, [this] { onCameraListReady(watcher.result()); });
    setupTray();
}

ApplicationController::~ApplicationController()
{
    // A scan in QtConcurrent::run() cannot be cancelled. The destructor waits for the scan, which must not
    // use an SDK that is shut down.
    watcher.cancel();
    watcher.waitForFinished();
    // Shutdown() also releases the observers. Its result is ignored, because nothing can be done about an
    // error here.
    CvxSystem::GetInstance().Shutdown();
}

bool ApplicationController::init()
{
    CvxSystem &system = CvxSystem::GetInstance();
    if (system.Startup() != CvxErrorSuccess)
        return false;

    cameraObserver = std::make_shared<CameraObserver>(&observerMutex);
    if (system.RegisterCameraListObserver(cameraObserver) == CvxErrorSuccess) {
        connect(cameraObserver.get(), &CameraObserver::updateDeviceList, this,
            &ApplicationController::refreshCameras);
    } else {
        QMessageBox::critical(nullptr, QStringLiteral("Error"),
            QStringLiteral("Unable to register camera list observer"), QMessageBox::Ok);
    }

    // Intended: the signal of the interface observer is not connected. Only camera-list changes cause a
    // refresh.
    interfaceObserver = std::make_shared<InterfaceObserver>(&observerMutex);
    if (system.RegisterInterfaceListObserver(interfaceObserver) != CvxErrorSuccess) {
        QMessageBox::critical(nullptr, QStringLiteral("Error"),
            QStringLiteral("Unable to register interface list observer"), QMessageBox::Ok);
    }

    cameraProvider = std::make_unique<CorvixCameraProvider>();
    window->loadConfig(installRoot);
    return true;
}

int ApplicationController::run()
{
    refreshCameras();
    window->show();
    return QApplication::exec();
}

void ApplicationController::refreshCameras()
{
    if (scanning)
        return; // Intended: a request during a scan is dropped and causes no second scan.
    if (!cameraProvider)
        // The SDK can report a camera while init() shows a message box. The first scan will find this camera.
        return;
    scanning = true;
    window->setRefreshEnabled(false);

    CameraInfo placeholder;
    placeholder.vendorName = tr("Scanning...");
    window->setCameras({placeholder});
    // This call redraws the table and selects the row of the placeholder, because both records have an empty
    // ID.
    window->setSelectedCamera(CameraInfo());

    watcher.setFuture(QtConcurrent::run(QThreadPool::globalInstance(), scan, cameraProvider.get()));
}

void ApplicationController::onCameraListReady(const QVector<CameraInfo> &list)
{
    cameras = list;
    window->setCameras(cameras);
    scanning.store(false, std::memory_order_release);
    window->setRefreshEnabled(true);
    window->setSelectedCamera(CameraInfo());
}

void ApplicationController::launchTool(const QString &toolPath)
{
    clearOverrideCursors();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const QString path = QDir::isRelativePath(toolPath) ? QDir(installRoot).filePath(toolPath) : toolPath;
    const bool launched = startTool(path, window->selectedCamera().cameraId);
    clearOverrideCursors();
    if (!launched) {
        QMessageBox::warning(
            window.get(), tr("Launch failed"), tr("Could not launch:\n%1").arg(toolPath), QMessageBox::Ok);
    }
}

void ApplicationController::setupTray()
{
    if (!QSystemTrayIcon::isSystemTrayAvailable())
        return;
    trayIcon = new QSystemTrayIcon(window->windowIcon(), this);
    trayIcon->setToolTip(tr("Corvix X - Application Launcher"));

    trayMenu = new QMenu(window.get());
    trayMenu->addAction(tr("Show"), this, &ApplicationController::showFromTray, QKeySequence());
    trayMenu->addSeparator();
    trayMenu->addAction(tr("Exit"), this, &ApplicationController::closeApp, QKeySequence());
    trayIcon->setContextMenu(trayMenu);

    connect(trayIcon, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::DoubleClick)
            showFromTray();
    });
    trayIcon->show();
}

void ApplicationController::minimizeToTray()
{
    if (trayIcon && trayIcon->isVisible())
        window->hide();
    else
        window->showMinimized();
}

void ApplicationController::closeApp()
{
    QCoreApplication::quit();
}

void ApplicationController::showFromTray()
{
    window->showNormal();
    window->activateWindow();
}
