#pragma once

#include "tools/kit/assistant/AssistantWindow.h"
#include "tools/pixelrepair/DefectOverlay.h"
#include "tools/pixelrepair/DefectResult.h"

#include <optional>

class Correction;
class QAction;
class RepairPanel;

/// Pixel Repair: finds the defect pixels of a camera, shows them, and saves a map of them.
class RepairWindow : public AssistantWindow
{
    Q_OBJECT

public:
    /// @param camera The camera that was named at the start; empty if none was.
    /// @param settings Outlives the window.
    RepairWindow(const QString &camera, ToolSettings &settings);
    ~RepairWindow() override;

    RepairPanel &panel() { return *m_panel; }
    const std::optional<DefectResult> &result() const { return m_result; }

    /// Returns the files of the result: JSON, CSV and HTML.
    QVector<ResultSaver::File> resultFiles() const;

public slots:
    void takeDarkImages();
    void takeBrightImages();
    void save();

private:
    static Plan plan(const QString &camera);

    void finishDark(const std::shared_ptr<DefectImages> &dark, const QString &problem);
    void finishBright(const std::shared_ptr<DefectResult> &result, const QString &problem);
    void forgetResult();
    void showResult();
    void applyThreshold(double threshold);
    void applyRepair();
    QString repairProblem(const Correction &correction);
    void showPixel(const QPoint &sensorPixel);
    void followCamera();
    void followJob();

    RepairPanel *m_panel;
    QAction *m_save;
    std::optional<DefectOverlay> m_overlay;
    QString m_cameraId; // The camera that the images and the result belong to.
    std::shared_ptr<const DefectImages> m_dark; // Null until the dark images were taken.
    std::optional<DefectResult> m_result;
};
