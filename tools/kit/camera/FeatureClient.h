#pragma once

#include "CvxCPP/Node.h"
#include "tools/kit/camera/CameraConnection.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

/// The features of the connected camera for a user interface: answers at once with what was read last, and
/// reads, writes and executes in the background. Watched features are read after every change that the camera
/// reports, and as often as the camera's description asks.
class FeatureClient : public QObject
{
    Q_OBJECT

public:
    explicit FeatureClient(CameraConnection &connection, QObject *parent = nullptr);

    CameraConnection &connection() { return m_connection; }

    /// Returns all features in the camera's order; empty before nodesLoaded().
    const QVector<CvxCPP::NodeInfo> &nodes() const;

    /// Returns null if the camera has no such feature or is not open.
    const CvxCPP::NodeInfo *info(const QString &name) const;

    /// Returns what was read last; null if nothing was read.
    const CvxCPP::NodeState *state(const QString &name) const;

    /// Returns the first of the names that the camera has and implements. Cameras name some features
    /// differently.
    QString firstKnown(const QStringList &names) const;

    /// Keeps these features up to date until unwatch() is called as often as watch(). Names that the camera
    /// does not have are remembered for the next camera.
    void watch(const QStringList &names);
    void unwatch(const QStringList &names);

    /// Writes a value. Of several writes of one feature that wait, only the last one is made, so a slider
    /// can call this function as it moves. A failure is reported by failed(), and the value is read again.
    void write(const QString &name, const CvxCPP::NodeValue &value);

    void execute(const QString &name);

    /// Returns true while a write of this feature is waiting or running.
    bool isWriting(const QString &name) const;

signals:
    /// The camera was opened, or is another one: all features are new.
    void nodesLoaded();

    /// The camera is closed or lost: no feature has a state.
    void nodesGone();

    void stateChanged(const QString &name);

    /// A write has succeeded. `before` has no value if the feature had not been read.
    void written(
        const QString &name, const CvxCPP::NodeValue &before, const CvxCPP::NodeValue &after);

    /// A write or a command has failed; `text` is for people.
    void failed(const QString &name, const QString &text);

private:
    CameraConnection &m_connection;
};
