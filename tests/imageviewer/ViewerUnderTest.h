#pragma once

#include "tools/imageviewer/ViewerWindow.h"
#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/kit/start/ToolSettings.h"

#include <QAction>
#include <QTemporaryDir>
#include <QVariant>

#include <functional>

/// The window of the Image Viewer on the real SDK, with settings of its own, and how a person or a program
/// uses it. Functions that wait end the program if they wait for a minute, which only a hang takes.
class ViewerUnderTest
{
public:
    /// Opens the window.
    /// @param choices Settings that an earlier session has left.
    explicit ViewerUnderTest(const QString &camera, const QVariantMap &choices = {});

    class Window : public ViewerWindow
    {
    public:
        using ToolWindow::connection;
        using ToolWindow::features;
        using ViewerWindow::ViewerWindow;
    };

    Window &window() { return *m_window; }
    ImageCanvas &canvas() { return *find<ImageCanvas>(); }

    template <typename Object>
    Object *find()
    {
        return m_window->findChild<Object *>();
    }

    /// Returns the action with this text, which contains no "&".
    QAction &action(const QString &text);

    /// Processes events for this time.
    static void processEvents(int milliseconds);

    /// Processes events until the condition is true.
    static void await(const std::function<bool()> &condition);

    /// Waits until the viewer reports that another program uses the camera, and chooses to watch it.
    void watchOnly();

    void awaitPicture();

    /// Waits until a picture is shown that was exposed after this call.
    void awaitNewPicture();

    /// Sends a signal to the process of the camera, for example "KILL". A killed process may be back before
    /// the function returns.
    static void signalCameraHost(const QString &signal);

    /// Makes a call of the SDK and waits for its success.
    void call(const CameraConnection::Call &call);

    void write(const std::string &feature, const CvxCPP::NodeValue &value);
    double readFloat(const std::string &feature);

    /// Returns the mean of all values of a picture that was exposed after this call.
    double meanOfNewPicture();

private:
    const QTemporaryDir m_folder;
    ToolSettings m_settings;
    std::unique_ptr<Window> m_window;
};
