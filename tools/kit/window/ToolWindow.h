#pragma once

#include "tools/kit/camera/CameraConnection.h"
#include "tools/kit/camera/CameraFinder.h"
#include "tools/kit/camera/FeatureClient.h"
#include "tools/kit/window/ShortcutPage.h"

#include <QMainWindow>
#include <QString>

class CameraChooser;
class ConnectionBar;
class NoCameraPage;
class QLabel;
class QMenu;
class ToolSettings;
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
        QString guideChapter; ///< Anchor of the guide's chapter about the tool.
    };

    /// Starts to search for cameras.
    /// @param settings Where geometry and docks are kept; outlives the window.
    ToolWindow(const Setup &setup, ToolSettings &settings);
    ~ToolWindow() override;

public slots:
    /// Shows the list of the cameras. The present camera stays open until another one is chosen.
    void chooseCamera();

protected:
    /// Sets what is shown while there is a camera. The window takes the ownership.
    void setContent(QWidget *content);

    ConnectionBar &connectionBar() { return *m_bar; }

    // These functions add the entries that every tool has.
    void addCameraEntries(QMenu *menu);
    void addQuitEntry(QMenu *menu);
    void addHelpMenu(const ShortcutPage::Rows &otherKeys);

    CameraFinder &finder() { return m_finder; }
    CameraConnection &connection() { return m_connection; }
    const CameraConnection &connection() const { return m_connection; }
    FeatureClient &features() { return m_features; }
    ToolSettings &settings() { return m_settings; }

    /// Restores geometry and docks. Call it at the end of the constructor, when all docks exist.
    void restoreLayout();

    /// Shows a message box unless the text is empty.
    void showProblem(const QString &text);

    /// Deletes all widgets of the window. The destructor of a tool calls this function first if its widgets
    /// use other members of the tool.
    void deleteWidgets();

    /// Saves geometry and docks.
    void closeEvent(QCloseEvent *event) override;

private:
    void showCameras();
    void decide();
    void openCamera(const CameraEntry &camera);
    bool isOpen(const CameraEntry &camera) const; // For control.
    void reopen(CvxCPP::CvxAccess access);
    void openIfPluggedAgain();
    void onConnectionChanged();
    void showHelp(const ShortcutPage::Rows &otherKeys);
    void openGuide();
    void showAbout();

    const Setup m_setup;
    ToolSettings &m_settings;
    QString m_wanted; // The camera to open as soon as it is found; empty if none was named.
    bool m_isDecided = false; // A camera was opened, or a person has been asked.
    CameraConnection m_connection;
    FeatureClient m_features;
    CameraFinder m_finder; // Destroyed before the connection, which ends the connection's blocked calls.
    QStackedWidget *m_pages;
    QLabel *m_searching;
    CameraChooser *m_chooser;
    NoCameraPage *m_noCamera;
    QWidget *m_content;
    ConnectionBar *m_bar; // Above the content.
};
