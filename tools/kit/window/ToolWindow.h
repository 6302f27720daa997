#pragma once

#include "tools/kit/camera/CameraConnection.h"
#include "tools/kit/camera/CameraEntry.h"
#include "tools/kit/camera/CameraList.h"
#include "tools/kit/camera/FeatureClient.h"
#include "tools/kit/window/ShortcutPage.h"

#include <QMainWindow>
#include <QSettings>
#include <QString>

class CameraChooser;
class QLabel;
class QMenu;
class QStackedWidget;

/// The main window of a camera tool. Finds the camera or lets a person choose one, keeps the connection, says
/// what keeps the tool from working, and remembers its geometry. A tool derives from it and adds its content.
class ToolWindow : public QMainWindow
{
    Q_OBJECT

public:
    struct Setup
    {
        QString title; ///< Name of the tool for people.
        QString camera; ///< The camera that was named at the start; empty if none was.
        QString guideAnchor; ///< Where the guide's chapter about the tool begins.
    };

    /// @param settings Where geometry and choices are kept.
    ToolWindow(const Setup &setup, QSettings &settings);
    ~ToolWindow() override;

    /// Starts to search for cameras.
    void start();

    CameraConnection &connection() { return m_connection; }

public slots:
    void chooseCamera();

protected:
    /// The content is shown while there is a camera.
    void setContent(QWidget *content);

    /// Adds the entries that every tool has: "Camera" and "Help". Call it where the menus belong.
    void addCameraEntries(QMenu *menu);
    void addHelpMenu(const ShortcutPage::Rows &otherKeys);

    FeatureClient &features() { return m_features; }
    QSettings &settings() { return m_settings; }

    /// Restores the geometry. Call it at the end of the constructor, when all docks exist.
    void restoreGeometryAndDocks();

    void closeEvent(QCloseEvent *event) override;

private:
    void decide();
    void openCamera(const CameraEntry &camera);
    void reopen(CvxCPP::CvxAccess access);
    void onConnectionChanged();
    void showPage(QWidget *page);
    void openGuide();
    void updateTitle();

    const Setup m_setup;
    QSettings &m_settings;
    CameraList m_list;
    CameraConnection m_connection;
    FeatureClient m_features;
    QString m_wanted; // The camera to open as soon as it is found; empty if a person shall choose.
    bool m_isChoosing = false; // A person has asked for the chooser, so nothing is opened by itself.
    QStackedWidget *m_pages;
    QLabel *m_searching;
    CameraChooser *m_chooser;
    QWidget *m_noCamera;
    QWidget *m_content = nullptr;
};
