#pragma once

#include "tools/kit/assistant/LiveAnalysis.h"
#include "tools/kit/camera/FeatureClient.h"
#include "tools/kit/live/LiveStream.h"
#include "tools/kit/measure/focus/FocusHistory.h"
#include "tools/kit/measure/focus/FocusMeter.h"

#include <QObject>

#include <memory>
#include <mutex>
#include <optional>

/// Measures the sharpness of the live picture and keeps its history.
class FocusSession : public QObject
{
    Q_OBJECT

public:
    static constexpr double maxRate = 10; ///< Measurements per second.

    /// The objects must outlive the session.
    FocusSession(FeatureClient &features, LiveStream &stream);
    ~FocusSession() override;

    /// Sets the number of regions in each direction; line scan cameras have one row. Begins a new history.
    void setGridSize(int size);

    /// Forgets the peaks and the history.
    void clear();

    /// Forgets everything, because another camera is used.
    void reset();

    const FocusHistory &history() const { return m_history; }

    /// Returns the last measurement; nothing if there is none.
    const std::optional<FocusMeasurement> &measurement() const { return m_measurement; }

    /// Returns why the last picture says nothing; empty if it does.
    const Sentence &problem() const { return m_problem; }

    /// Returns how pictures are measured now.
    FocusOptions options() const;

    /// Returns true if the camera has a feature that moves the lens.
    bool hasMotor() const;

    /// Returns where the lens is; nothing if the camera does not tell it.
    std::optional<double> position() const;

signals:
    void changed();

private:
    /// What the thread of the analysis reads.
    struct SharedOptions
    {
        std::mutex mutex; // Protects the options.
        FocusOptions options;
    };

    LiveAnalysis::Analyse analysis();
    void takeFeature(const QString &name);
    void readOptions();
    void take(std::uint64_t receivedAt, const Sentence &problem, const FocusMeasurement &measurement);
    QString motorName() const;

    FeatureClient &m_features;
    LiveStream &m_stream;
    const QStringList m_motorNames;
    const std::shared_ptr<SharedOptions> m_options = std::make_shared<SharedOptions>();
    int m_gridSize = 5;
    FocusHistory m_history;
    std::optional<FocusMeasurement> m_measurement;
    Sentence m_problem;
    std::uint64_t m_firstTime = 0; // Time at which the history begins; 0 if it is empty.
    LiveAnalysis m_analysis; // The last member: its results use the others.
};
