#pragma once

#include "tools/focusassistant/FocusOverlay.h"
#include "tools/focusassistant/FocusSession.h"
#include "tools/kit/assistant/AssistantWindow.h"
#include "tools/kit/measure/focus/FocusResult.h"

#include <optional>

class FocusPanel;
class QAction;

/// Focus Assistant: shows how sharp each region of the picture is, and finds the best focus and its tilt.
class FocusWindow : public AssistantWindow
{
    Q_OBJECT

public:
    /// @param camera The camera that was named at the start; empty if none was.
    /// @param settings Outlives the window.
    FocusWindow(const QString &camera, ToolSettings &settings);
    ~FocusWindow() override;

    const FocusSession &session() const { return m_session; }

    /// Returns the result of the last search or turn; nothing if there is none.
    const std::optional<FocusResult> &result() const { return m_result; }

    /// Returns the files of the present state and of the result: JSON, CSV and HTML.
    /// @param camera Describes the camera in the files.
    QVector<ResultSaver::File> resultFiles(const CameraRecord &camera);

private:
    /// What a search on the thread of the job leaves.
    struct Search;

    static Plan plan(const QString &camera);

    void followCamera();
    void followJob();
    void search();
    void takeSearch(const QString &problem, const Search &search);
    void readTilt();
    void forget();
    void setResult(const std::optional<FocusResult> &result);
    FocusResult presentResult() const;
    void save();

    FocusSession m_session;
    FocusOverlay m_overlay;
    std::optional<FocusResult> m_result;
    QString m_cameraId; // The camera to which peaks and result belong.
    FocusPanel *m_panel;
    QAction *m_save;
};
