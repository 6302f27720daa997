#pragma once

#include "tools/kit/camera/CallThread.h"
#include "tools/kit/camera/CameraEntry.h"

#include <QObject>
#include <QString>

#include <memory>

class QTimer;

/// The cameras of this computer. Starts the camera system, lists the cameras in the background, and follows
/// every camera that appears or disappears. A process has at most one object of this class. All functions are
/// called on the GUI thread.
class CameraFinder : public QObject
{
    Q_OBJECT

public:
    /// In the order in which they are reached.
    enum class State
    {
        Searching, ///< No list has arrived yet.
        Listed, ///< The cameras that answered at once are listed. GigE cameras may answer a second late.
        Settled, ///< Every camera has had the time to answer. A change is a camera that was plugged.
        Failed ///< The camera system cannot be used; see problem().
    };
    Q_ENUM(State)

    /// Starts the camera system and the search. Does not wait for any producer.
    explicit CameraFinder(QObject *parent = nullptr);

    /// Shuts the camera system down, which closes all devices and ends the calls that are blocked in other
    /// threads. Blocks for some milliseconds, or for at most 5 s if a producer hangs. An object that is
    /// destroyed before a CameraConnection ends a call of the connection that takes long.
    ~CameraFinder() override;

    State state() const { return m_state; }
    bool isComplete() const { return m_state == State::Listed || m_state == State::Settled; }
    bool hasSettled() const { return m_state == State::Settled; }
    QString problem() const { return m_problem; } ///< For people; empty unless the state is Failed.

    const CameraEntries &cameras() const { return m_cameras; }

    /// Returns the cameras that the text means; see matchCameras().
    CameraEntries matching(const QString &text) const { return matchEntries(m_cameras, text); }

    /// Searches again now. If the camera system could not be started, starts it.
    void refresh();

signals:
    /// The state or the cameras have changed.
    void changed();

private:
    class Observer;
    struct List;

    void start();
    void fail(const QString &problem);
    void search(State reached);
    void list(State reached);
    void take(State reached, const List &list);

    State m_state = State::Searching;
    QString m_problem;
    CameraEntries m_cameras;
    QTimer *m_lateAnswers; // Runs from the first list until the list has settled.
    QTimer *m_changes; // Turns several notifications into one list.
    CallThread m_calls; // The last member, because its calls use the others.
};
