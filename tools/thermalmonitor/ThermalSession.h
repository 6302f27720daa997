#pragma once

#include "tools/kit/assistant/LiveAnalysis.h"
#include "tools/kit/camera/FeatureClient.h"
#include "tools/kit/live/LiveStream.h"
#include "tools/kit/measure/thermal/TemperatureReader.h"
#include "tools/kit/measure/thermal/ThermalMonitor.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>

/// Reads the temperatures of the connected camera again and again and follows them. A lost camera leaves a
/// gap; another camera begins anew. All functions are called on the GUI thread.
class ThermalSession : public QObject
{
    Q_OBJECT

public:
    /// The objects must outlive the session.
    ThermalSession(FeatureClient &client, LiveStream &stream, QObject *parent = nullptr);
    ~ThermalSession() override;

    static constexpr double shortestInterval = 0.2;
    static constexpr double longestInterval = 3600;

    /// Sets the seconds between two readings.
    void setInterval(double seconds);

    void setThresholds(const Thresholds &thresholds);

    /// Forgets all readings. A running log goes on.
    void restart();

    /// Returns null until the camera was read for the first time.
    const ThermalMonitor *monitor() const { return m_monitor.get(); }

    /// Returns the seconds since the start.
    double now() const { return double(m_clock.elapsed()) / 1000; }

    /// Why the temperatures are not read, for people; empty if they are.
    QString problem() const { return m_problem; }

    /// Starts to append each reading to a file. Returns why that failed; empty if it succeeded.
    QString startLog(const QString &path);
    void stopLog();
    bool isLogging() const { return m_monitor && m_monitor->log().isOpen(); }
    QString logPath() const; ///< Empty without a log.
    QString logProblem() const; ///< Why the last line could not be written; empty if it was.

    /// Measures the dark level of the live pictures from now on, or no longer; the levels are kept. Starts
    /// the stream if it does not run.
    void setMeasuringDark(bool isMeasuring);
    bool isMeasuringDark() const { return m_isMeasuringDark; }
    void clearDark();

    /// Why the last picture has no usable dark level, or what hinders it; empty if there is nothing to say.
    QString darkMessage() const { return m_darkMessage; }

signals:
    /// There are new readings, or the camera, the log or the dark level has changed.
    void changed();

    /// A place has reached or left a threshold.
    void alerted(const ThermalMonitor::AlertChange &change);

private:
    struct DarkResult;

    void followConnection();
    void find();
    void takeSource(
        const CvxCPP::CvxResult &result, const TemperatureSource &source, const Sentence &problem);
    void begin();
    void poll();
    void takeReading(const TemperatureReading &reading);
    void addMissing();
    void add(const std::vector<std::optional<double>> &celsius);
    void takeDark(const DarkResult &result);
    void followFeature(const QString &name);

    FeatureClient &m_client;
    CameraConnection &m_connection;
    LiveStream &m_stream;
    QTimer m_timer;
    QElapsedTimer m_clock;
    QString m_cameraId;
    CvxCPP::CvxAccess m_access = CvxCPP::CvxAccessWatch;
    std::optional<TemperatureSource> m_source; // Where the present camera reports its temperatures.
    std::unique_ptr<ThermalMonitor> m_monitor;
    Thresholds m_thresholds;
    bool m_isReading = false;
    QString m_problem;
    bool m_isMeasuringDark = false;
    QString m_darkMessage;
    std::optional<DarkLevel> m_darkLevel; // Measured since the last reading.
    QHash<QString, CvxCPP::NodeValue> m_darkSettings; // Settings with which the dark levels were measured.
    LiveAnalysis m_darkAnalysis; // Destroyed first.
};
