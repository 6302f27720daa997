#pragma once

#include "CvxCPP/Node.h"
#include "tools/kit/camera/CameraConnection.h"
#include "tools/kit/camera/FeatureOperations.h"
#include "tools/kit/camera/PollTimes.h"
#include "tools/kit/camera/ReadBatch.h"
#include "tools/kit/camera/ReadQueue.h"

#include <QHash>
#include <QMetaType>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>
#include <optional>
#include <string>
#include <vector>

Q_DECLARE_METATYPE(CvxCPP::NodeValue)

class QTimer;

/// The features of the connected camera for a user interface: answers at once with what was read last, and
/// reads, writes and executes in the background. Watched features are read after every change that the camera
/// reports, and as often as the camera's description asks, but at most five times per second. Features that
/// are newly watched are read before the others, and slow cameras are asked for few features at a time.
class FeatureClient : public QObject
{
    Q_OBJECT

public:
    explicit FeatureClient(CameraConnection &connection, QObject *parent = nullptr);

    CameraConnection &connection() { return m_connection; }

    /// Returns all features in the camera's order; empty before nodesLoaded() and after nodesGone().
    const QVector<CvxCPP::NodeInfo> &nodes() const { return m_nodes; }

    /// Returns null if the camera has no such feature or is not open. Valid until nodesGone().
    const CvxCPP::NodeInfo *info(const QString &name) const;

    /// Returns what was read last; null if nothing was read. Valid until the next event is processed.
    const CvxCPP::NodeState *state(const QString &name) const;

    /// Returns the first of the names that the camera has and implements; empty if there is none. Cameras
    /// name some features differently. Whether a feature is implemented is known once it was read, so watch
    /// all of the names.
    QString firstKnown(const QStringList &names) const;

    /// Keeps these features up to date until unwatch() is called as often as watch(). Names that the camera
    /// does not have are remembered for the next camera. The features of the last call are read first.
    void watch(const QStringList &names);
    void unwatch(const QStringList &names);

    /// Writes a value. Of several writes of one feature that wait, only the last one is made, so a slider
    /// can call this function as it moves. Writes and commands are made in the order of the calls. A failure
    /// is reported by failed(). In any case, the value is read again.
    void write(const QString &name, const CvxCPP::NodeValue &value);

    void execute(const QString &name);

    /// Returns true while a write of this feature is waiting or running.
    bool isWriting(const QString &name) const;

    /// Returns true if no write and no command is waiting or running.
    bool isIdle() const { return !m_running && m_operations.isEmpty(); }

    /// Returns true if the state was read before a selector of the feature was written, so it is the one for
    /// another value of the selector. It is being read again if it is watched.
    bool isOutdated(const QString &name) const { return m_outdated.contains(name); }

    /// Reports a change that was made with CameraConnection::run(), as if write() had made it: the feature is
    /// read again, and written() is emitted.
    void noteWritten(const QString &name, const CvxCPP::NodeValue &before, const CvxCPP::NodeValue &after);

    /// Reports a command that was executed with CameraConnection::run().
    void noteExecuted(const QString &name);

signals:
    /// The camera was opened, or is another one: all features are new. Usually, the watched features have a
    /// state. If the camera is slow, some of them do not: stateChanged() follows when they were read.
    void nodesLoaded();

    /// The camera is closed or lost: no feature has a state.
    void nodesGone();

    /// The state of the feature differs from the previous one.
    void stateChanged(const QString &name);

    /// A write has succeeded. `before` has no value if the feature had not been read since its selectors were
    /// written.
    void written(const QString &name, const CvxCPP::NodeValue &before, const CvxCPP::NodeValue &after);

    /// The camera has accepted a command; NodeState::isCommandDone says when it is done.
    void executed(const QString &name);

    /// A write or a command has failed; `text` is for people.
    void failed(const QString &name, const QString &text);

private:
    enum class Stage
    {
        Gone,
        Listing, ///< The list of nodes is being read.
        Loading, ///< The first states are being read.
        Loaded
    };

    /// One call that reads features.
    struct Read
    {
        QStringList names;
        std::vector<CvxCPP::NodeState> states;
        ReadBatch::Duration duration{}; ///< Without the time before the call has begun.
    };

    void followConnection();
    void load();
    void takeNodes(const CvxCPP::CvxResult &result, const std::vector<CvxCPP::NodeInfo> &nodes);
    void finishLoading();
    void forget();

    QStringList watchedOf(const QStringList &names) const;
    void readLater(const QStringList &names);
    void readSoon(const QStringList &names);
    void readWaiting();
    void read(const QStringList &names);
    void takeRead(const CvxCPP::CvxResult &result, const Read &read);
    void takeState(const CvxCPP::NodeState &state);
    void poll();
    void startPollTimer();

    void runNextOperation();
    void takeOperation(const CvxCPP::CvxResult &result);
    void takeWritten(const QString &name, const CvxCPP::NodeValue &value);
    void storeValue(const QString &name, const CvxCPP::NodeValue &value);
    QStringList selectedBy(const QString &name) const;
    void markOutdated(const QStringList &names);

    CameraConnection &m_connection;
    Stage m_stage = Stage::Gone;
    QVector<CvxCPP::NodeInfo> m_nodes;
    QHash<QString, int> m_indexes; // Into m_nodes.
    QHash<QString, CvxCPP::NodeState> m_states;
    QSet<QString> m_outdated; // See isOutdated().
    QHash<QString, int> m_watchCounts;

    ReadQueue m_waiting; // To be read.
    ReadBatch m_batch;
    bool m_isReading = false;
    QTimer *m_readTimer; // Turns several changes into one read.
    QTimer *m_loadTimer; // Bounds the stage Loading.
    PollTimes m_pollTimes;
    QTimer *m_pollTimer;

    FeatureOperations m_operations;
    std::optional<FeatureOperation> m_running;
};
