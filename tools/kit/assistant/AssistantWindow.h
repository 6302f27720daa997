#pragma once

#include "tools/kit/assistant/MeasureJob.h"
#include "tools/kit/assistant/ResultSaver.h"
#include "tools/kit/live/LiveStream.h"
#include "tools/kit/window/LivePauser.h"
#include "tools/kit/window/ToolWindow.h"

#include <QStringList>
#include <QVector>

class CameraSettings;
class ImageCanvas;
class LivePicture;
class QAction;
class QLabel;
class QMenu;
class QSplitter;
class QVBoxLayout;

/// The window of an assistant: the live picture on the left, a panel with the measurement and the next step
/// on the right, progress with cancel below. Starts the stream when the camera is open, and says which
/// feature the camera lacks. A tool derives from it and adds its panel and its actions.
class AssistantWindow : public ToolWindow
{
    Q_OBJECT

public:
    /// A feature that the tool cannot work without.
    struct Need
    {
        QStringList anyOf; ///< The camera has at least one of these features.
        QString sentence; ///< Says what is missing and what the person can do instead.
    };

    struct Plan
    {
        Setup setup;
        QVector<Need> needs;
        /// Features that can be changed in the panel if the camera has them, for example "ExposureTime".
        QStringList settings;
    };

    AssistantWindow(const Plan &plan, ToolSettings &settings);
    ~AssistantWindow() override;

    LiveStream &stream() { return m_stream; }
    MeasureJob &job() { return m_job; }

signals:
    /// The camera was opened, lost or closed, another one is being opened, or canMeasure() has changed: a
    /// tool enables its steps, and forgets what belongs to another camera if the ID of connection().camera()
    /// is another one.
    void cameraChanged();

protected:
    /// Shows the panel of the tool, which need not scroll by itself. The window takes the ownership. The
    /// panel is disabled while the camera lacks a feature. Call it once.
    void setPanel(QWidget *panel);

    /// Returns true if the camera is open for control and has everything that the tool needs. A running
    /// measurement is no obstacle here.
    bool canMeasure() const;

    ImageCanvas &canvas();
    LivePicture &picture() { return *m_picture; }
    ResultSaver &saver() { return m_saver; }
    LivePauser &pauser() { return m_pauser; }

    /// The menu for results: the tool adds its entries before those that every tool has.
    QMenu *resultMenu() { return m_resultMenu; }

    /// Adds the menus "Camera" and "Help" after those of the tool, and restores the layout. Call it at the
    /// end of the constructor.
    void finish(const ShortcutPage::Rows &otherKeys = {});

private:
    void createContent();
    void createActions();
    void followConnection();
    void followStream();
    void followJob();
    void checkNeeds();
    void setLive(bool isLive);
    void closeEvent(QCloseEvent *event) override;

    const Plan m_plan;
    LiveStream m_stream;
    LivePauser m_pauser;
    MeasureJob m_job;
    ResultSaver m_saver;
    LivePicture *m_picture = nullptr;
    QSplitter *m_splitter = nullptr;
    QVBoxLayout *m_panelLayout = nullptr;
    QWidget *m_panel = nullptr; // The tool's one.
    CameraSettings *m_cameraSettings = nullptr;
    QLabel *m_missing = nullptr; // Names the feature that the camera lacks.
    QAction *m_live = nullptr;
    QMenu *m_resultMenu = nullptr;
    bool m_startsWhenOpen = false; // The camera was chosen, and its stream was not started yet.
    bool m_hasNeeds = false; // The camera has everything that the tool needs.
};
