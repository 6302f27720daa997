#pragma once

#include "tools/kit/assistant/AssistantWindow.h"
#include "tools/tapbalance/TapBordersOverlay.h"
#include "tools/tapbalance/TapSession.h"

class QAction;
class TapPanel;

/// Tap Balance: measures how the taps of a sensor differ, and sets them so that they agree.
class TapWindow : public AssistantWindow
{
    Q_OBJECT

public:
    /// @param camera The camera that was named at the start; empty if none was.
    /// @param settings Outlives the window.
    TapWindow(const QString &camera, ToolSettings &settings);
    ~TapWindow() override;

    TapSession &session() { return m_session; }
    TapPanel &panel() { return *m_panel; }

    /// Returns the files of the result: JSON, CSV and HTML.
    QVector<ResultSaver::File> resultFiles();

private:
    static Plan plan(const QString &camera);

    void addActions();
    void followCamera();
    void followGeometry();
    void showResult();
    void save();

    TapSession m_session;
    TapBordersOverlay m_borders;
    TapPanel *m_panel;
    QAction *m_save;
    QAction *m_undo;
    QString m_camera; // ID of the camera to which the result belongs.
};
