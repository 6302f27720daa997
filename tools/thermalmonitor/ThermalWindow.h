#pragma once

#include "tools/kit/assistant/AssistantWindow.h"
#include "tools/kit/measure/thermal/ThermalMonitor.h"
#include "tools/thermalmonitor/AlertNotifier.h"
#include "tools/thermalmonitor/ThermalSession.h"

class QAction;
class ThermalPanel;

/// Thermal Monitor: follows the temperatures of a camera.
class ThermalWindow : public AssistantWindow
{
    Q_OBJECT

public:
    /// @param camera The camera that was named at the start; empty if none was.
    /// @param settings Outlives the window.
    ThermalWindow(const QString &camera, ToolSettings &settings);
    ~ThermalWindow() override;

    ThermalSession &session() { return m_session; }
    ThermalPanel &panel() { return *m_panel; }

    /// Returns the files of the result: JSON, CSV and HTML.
    /// @param camera Describes the camera in the files.
    QVector<ResultSaver::File> resultFiles(const CameraRecord &camera) const;

private:
    static Plan plan(const QString &camera);

    void save();
    void takeAlert(const ThermalMonitor::AlertChange &change);

    ThermalSession m_session;
    AlertNotifier m_notifier;
    ThermalPanel *m_panel;
    QAction *m_save;
};
