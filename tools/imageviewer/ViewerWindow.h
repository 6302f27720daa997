#pragma once

#include "tools/imageviewer/files/CameraRecordReader.h"
#include "tools/imageviewer/files/PictureCorrection.h"
#include "tools/imageviewer/files/RecordingControl.h"
#include "tools/imageviewer/files/SnapshotSaver.h"
#include "tools/imageviewer/numbers/StreamMonitor.h"
#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/kit/live/LiveStream.h"
#include "tools/kit/live/Measurer.h"
#include "tools/kit/live/PictureFeed.h"
#include "tools/kit/window/LivePauser.h"
#include "tools/kit/window/ToolWindow.h"

#include <QTimer>

class CameraPanel;
class CorrectionDialog;
class DetailsPage;
class FilesPanel;
class MeasuringPanel;
class QDockWidget;
class QLabel;
class ThumbnailStrip;
class ViewerActions;

/// The Image Viewer: the live picture of one camera, with panels for the camera, for measuring, for files and
/// for the numbers of the stream. This class only connects its parts.
class ViewerWindow : public ToolWindow
{
    Q_OBJECT

public:
    /// @param camera The camera that was named at the start; empty if none was.
    ViewerWindow(const QString &camera, ToolSettings &settings);
    ~ViewerWindow() override;

    /// Enough for the image that is shown, those that are measured, and some tenths of a second of a fast
    /// camera.
    static constexpr unsigned streamBuffers = 16;

    LiveStream &stream() { return m_stream; }

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void createDocks();
    void createMenus();
    void createStatusBar();
    QDockWidget *addPanel(const QString &name, const QString &title, QWidget *panel, Qt::DockWidgetArea area);
    void connectStream();
    void connectCanvas();
    void connectPanels();
    void connectActions();
    void connectCorrection();
    void restoreChoices();

    void onConnectionChanged();
    void onStreamChanged();
    void startStream();
    void setFrozen(bool isFrozen);
    void setFullScreen(bool isFullScreen);
    void showFiles();
    void drawRegion();
    void endRegionDrawing();
    void removeRegion();
    void onDrawingFinished();
    void setPicking(bool isPicking);
    void onPicked(const QPoint &pixel);
    void showPointer(const QPoint &pixel);
    void updateReadout();
    void updateHint();
    void openCameraSetup();
    void openCorrections();
    void applyCorrection();
    void updateDisplay();

    LiveStream m_stream;
    PictureFeed m_feed;
    Measurer m_measurer;
    StreamMonitor m_monitor;
    CameraRecordReader m_records;
    SnapshotSaver m_saver;
    RecordingControl m_recording;
    PictureCorrection m_correction;
    LivePauser m_pauser;
    ImageCanvas *const m_canvas;
    ViewerActions *const m_actions;
    CameraPanel *const m_cameraPanel;
    MeasuringPanel *const m_measuringPanel;
    FilesPanel *m_filesPanel = nullptr;
    ThumbnailStrip *m_thumbnails = nullptr;
    QList<QDockWidget *> m_docks; // In the order of their menu.
    QDockWidget *m_files = nullptr;
    QDockWidget *m_details = nullptr;
    CorrectionDialog *m_corrections = nullptr; // Created when it is opened first.
    QLabel *m_readout = nullptr;
    QLabel *m_correctionState = nullptr;
    QPoint m_pointer{-1, -1}; // The pixel under the pointer.
    bool m_startsWhenOpen = false; // The camera was chosen, and its stream was not started yet.
    bool m_isDrawingCameraRegion = false; // The next drawn region goes to the camera.
    QByteArray m_layoutBeforeFullScreen;
    QTimer m_hintTimer;
};
