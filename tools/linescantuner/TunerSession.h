#pragma once

#include "tools/kit/camera/CameraConnection.h"
#include "tools/kit/camera/FeatureClient.h"
#include "tools/kit/editors/StreamPauser.h"
#include "tools/kit/measure/linescan/LineScanResult.h"

#include <QObject>
#include <QTimer>

#include <vector>

/// What the tool knows about the present camera, what it has planned, written and measured. Reads the camera
/// again whenever a feature has changed that the plan depends on.
class TunerSession : public QObject
{
    Q_OBJECT

public:
    TunerSession(CameraConnection &connection, FeatureClient &features, StreamPauser &pauser,
        QObject *parent = nullptr);
    ~TunerSession() override;

    /// Calculates the plan for these inputs.
    void setInputs(const LineScanInputs &inputs);

    const LineScanResult &result() const { return m_result; }
    const LineScanCamera &camera() const { return m_camera; }
    bool isRead() const { return m_isRead; } ///< The camera was read.
    bool isBusy() const { return m_isBusy; } ///< Settings are being written.

    /// Writes the plan. Stops the stream meanwhile if it locks one of the features.
    void apply();

    /// Puts back what the last apply() has changed.
    void undo();
    bool canUndo() const { return !m_undo.empty(); }

    /// Stores a measurement. The first one since the camera was opened, or since forgetMeasurements(), is
    /// the one before the correction.
    /// @param camera The camera at the time of the measurement.
    void addMeasurement(const Roundness &roundness, const LineScanCamera &camera);
    void forgetMeasurements();
    bool isMeasured() const { return m_result.before.has_value(); }

    /// Returns the last measurement; null if there is none, or if the rate of the lines was changed since.
    const Roundness *lastMeasurement() const;

    /// Returns what the last measurement means.
    const Sentence &measurementSentence() const { return m_sentence; }

    /// Forgets everything, because another camera is opened.
    void reset();

    /// Reads the camera soon.
    void readLater();

signals:
    /// The plan, or whether something can be written, measured or undone, has changed.
    void changed();

    /// Settings were written or put back; the text says why not, and is empty if they were.
    void applied(const QString &problem);

private:
    void read();
    void takeCamera(const CvxCPP::CvxResult &result, const LineScanCamera &camera);
    void write(const std::vector<PlannedSetting> &settings, bool isUndo);
    void takeWritten(const Sentence &problem, const std::vector<PlannedSetting> &settings, bool isUndo);

    CameraConnection &m_connection;
    FeatureClient &m_features;
    StreamPauser &m_pauser;
    QTimer m_readTimer; ///< Turns several changes into one read.
    LineScanCamera m_camera;
    LineScanResult m_result;
    LineScanCamera m_measuredCamera; ///< At the last measurement.
    Sentence m_sentence;
    std::vector<std::vector<PlannedSetting>> m_undo; ///< What was written, the last one at the end.
    bool m_isRead = false;
    bool m_isBusy = false;
};
