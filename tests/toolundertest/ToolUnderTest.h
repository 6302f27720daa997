#pragma once

#include "tools/kit/start/ToolSettings.h"
#include "tools/kit/window/ConnectionBar.h"
#include "tools/kit/window/ToolWindow.h"

#include <QAction>
#include <QTemporaryDir>
#include <QVariant>

#include <functional>
#include <memory>

/// Processes events for this time.
void processEvents(int milliseconds);

/// Processes events until the condition is true. Ends the program after a minute, which only a hang takes.
void await(const std::function<bool()> &condition);

/// Sends a signal to the process of the camera, for example "KILL". A killed process may be back before the
/// function returns.
void signalCameraHost(const QString &signal);

/// Returns the controls of a window that can be seen and reached with the keyboard, but have no accessible
/// name, as text. Shows one dock after the other; `count` is the number of all controls that were seen.
QStringList unnamedControls(QMainWindow &window, int &count);

/// Waits until the window asks for the name of a result, and enters this path.
void chooseResultFile(QWidget &window, const QString &path);

/// Returns the action of the window with this text, which contains no "&".
QAction &actionOf(QWidget &window, const QString &text);

/// The window of a tool on the real SDK, with settings of its own, and how a person or a program uses it.
template <typename ToolWindowClass>
class ToolUnderTest
{
public:
    /// Makes the parts of a window public.
    class Window : public ToolWindowClass
    {
    public:
        using ToolWindow::connection;
        using ToolWindow::features;
        using ToolWindowClass::ToolWindowClass;
    };

    /// Opens the window.
    /// @param choices Settings that an earlier session has left.
    explicit ToolUnderTest(const QString &camera, const QVariantMap &choices = {})
        : m_settings(QStringLiteral("Tool"), m_folder.path())
    {
        for (auto choice = choices.begin(); choice != choices.end(); ++choice)
            m_settings.values().setValue(choice.key(), choice.value());
        m_window = std::make_unique<Window>(camera, m_settings);
        m_window->show();
    }

    Window &window() { return *m_window; }
    CameraConnection::State state() { return m_window->connection().state(); }
    QAction &action(const QString &text) { return actionOf(*m_window, text); }

    template <typename Object>
    Object *find()
    {
        return m_window->template findChild<Object *>();
    }

    /// Waits until the tool reports that another program uses the camera, and chooses to watch it.
    void watchOnly()
    {
        await([this] { return state() == CameraConnection::State::InUse; });
        emit find<ConnectionBar>()->watchRequested();
        await([this] { return state() == CameraConnection::State::Open; });
    }

    /// Makes a call of the SDK and waits for its success.
    void call(const CameraConnection::Call &call)
    {
        bool isDone = false;
        m_window->connection().run(call, m_window.get(), [&](const CvxCPP::CvxResult &result) {
            if (!result)
                qFatal("%s", result.text.c_str());
            isDone = true;
        });
        await([&] { return isDone; });
    }

    void write(const std::string &feature, const CvxCPP::NodeValue &value)
    {
        call([&](CvxCPP::Device &device) { return device.Write(feature, value); });
    }

    double readFloat(const std::string &feature)
    {
        double value = 0;
        call([&](CvxCPP::Device &device) { return device.ReadFloat(feature, value); });
        return value;
    }

private:
    const QTemporaryDir m_folder;
    ToolSettings m_settings;
    std::unique_ptr<Window> m_window;
};
