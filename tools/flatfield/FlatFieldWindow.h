#pragma once

#include "tools/kit/assistant/AssistantWindow.h"
#include "tools/kit/assistant/LiveAnalysis.h"
#include "tools/kit/measure/flatfield/FlatFieldMeasurement.h"

#include <memory>

class FlatFieldPanel;

/// Flat Field: measures the shading and the differences between the pixels of a camera, and saves their
/// correction.
class FlatFieldWindow : public AssistantWindow
{
    Q_OBJECT

public:
    /// @param camera The camera that was named at the start; empty if none was.
    FlatFieldWindow(const QString &camera, ToolSettings &settings);
    ~FlatFieldWindow() override;

private:
    /// What the thread of the measurement works with.
    struct Session
    {
        FlatFieldMeasurement measurement{FlatFieldOptions()};
        CameraRecord camera;
    };

    void createMenu();
    void followCamera();
    void followJob();
    void takeDark();
    void takeBright();
    void showDark(const QString &problem);
    void showBright(const QString &problem);
    void showCorrected(bool isCorrected);
    void save();
    QStringList warnings() const;
    LiveAnalysis::Deliver measureLevel(const CvxCPP::Image &image);

    ImageConverter m_levelConverter; // Used on the thread of m_levels.
    std::shared_ptr<Session> m_session;
    QString m_cameraId; // The camera that m_session belongs to.
    FlatFieldPanel *m_panel;
    QAction *m_save = nullptr;
    std::unique_ptr<LiveAnalysis> m_levels;
};
