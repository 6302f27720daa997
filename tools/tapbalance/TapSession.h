#pragma once

#include "sdk/imagefile/CameraRecord.h"
#include "tools/kit/assistant/MeasureJob.h"
#include "tools/kit/measure/taps/TapResult.h"

#include <QObject>

#include <optional>
#include <vector>

/// What Tap Balance has measured and done with one camera, and the measurements that go on.
class TapSession : public QObject
{
    Q_OBJECT

public:
    explicit TapSession(MeasureJob &job, QObject *parent = nullptr);

    /// Layout, reference and number of images. A change of the layout forgets the result, but not what can be
    /// undone.
    const TapOptions &options() const { return m_options; }
    void setOptions(const TapOptions &options);

    // Each of these functions starts a measurement, unless one is running. The settings that it writes stay
    // in the camera if it succeeds.
    void measure();
    void balance(TapSetting setting);
    void undo();

    bool canUndo() const { return !m_balances.empty(); }
    bool isRunning() const { return m_job.isRunning(); }
    bool hasResult() const { return m_result.bright || m_result.dark; }
    const TapResult &result() const { return m_result; }
    const CameraRecord &camera() const { return m_camera; } ///< At the last measurement.

    /// Forgets everything, because another camera was chosen.
    void clear();

signals:
    /// A measurement has succeeded or the result was forgotten.
    void changed();

    /// A measurement was not successful; the camera is as it was before.
    void failed(const QString &problem);

private:
    /// Balancing that can be undone.
    struct Done
    {
        TapLayout layout;
        TapBalance balance;
    };

    void takeLayout(const TapLayout &layout);
    void restoreResult(const Done &undone);
    void finish(const QString &problem, const CameraRecord &camera);

    MeasureJob &m_job;
    TapOptions m_options;
    TapResult m_result;
    CameraRecord m_camera;
    std::vector<Done> m_balances; // What can be undone; the last one at the end.
};
