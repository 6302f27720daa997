#pragma once

#include "sdk/features/FeatureLoader.h"
#include "tools/camerasetup/values/CameraJobs.h"
#include "tools/camerasetup/values/EditSequence.h"
#include "tools/camerasetup/values/HistoryEntry.h"
#include "tools/camerasetup/values/OpeningSnapshot.h"
#include "tools/camerasetup/values/PresentSelectors.h"
#include "tools/camerasetup/values/SettingWriter.h"

#include <QObject>
#include <QString>
#include <QVector>

#include <memory>
#include <vector>

/// The changes of features since the camera was opened, in their order, with undo and redo. Records what is
/// written through the FeatureClient by itself. Several changes of one feature within a second, as a slider
/// makes them, are one entry. Selectors are recorded too, but undo passes over them, because they only choose
/// what is shown. The history is forgotten when another camera is opened.
class ChangeHistory : public QObject
{
    Q_OBJECT

public:
    ChangeHistory(FeatureClient &client, CameraJobs &jobs, const PresentSelectors &selectors,
        OpeningSnapshot &opening, QObject *parent = nullptr);

    const QVector<HistoryEntry> &entries() const { return m_entries; }

    /// Records changes that were not made through the FeatureClient; see HistoryEntry::Kind::Load. Has no
    /// effect without changes.
    void addEdits(const QString &title, const std::vector<FeatureEdit> &edits);

    /// Undo and redo wait for all other work, which may change the same features.
    bool canUndo() const;
    bool canRedo() const;
    QString undoTitle() const; ///< What undo() would take back, for people; empty if there is nothing.
    QString redoTitle() const;

    /// Returns a shell script that makes the changes again with cvxctl, in their order: commands too, but
    /// neither changes that were undone nor the undoing. The camera is the first argument of the script.
    QString script() const;

    /// Returns the features of the camera, also while it is lost; null while there is none.
    std::shared_ptr<const FeatureDirectory> directory() const { return m_opening.directory(); }

public slots:
    /// Writes the values from before the last change that is not undone, under its selectors, and restores
    /// the selectors. A single feature is written at once, without stopping the stream unless that is
    /// necessary; several features are written as a file is loaded. A change that the camera refuses to take
    /// back stays the next one to undo, so that a person can remove the reason. If a part of it was taken
    /// back, it counts as undone. A change whose values are unknown, or whose feature the camera does not
    /// have any more, is passed over from then on.
    void undo();

    /// Makes the change again that was undone last. A refused change stays the next one to redo.
    void redo();

signals:
    void changed();

    /// Undo or redo has failed, completely or for some features; for people.
    void failed(const QString &text);

private:
    /// Undoing or redoing one entry.
    struct Run;

    void followConnection();
    void checkJobs();
    bool isFree() const;
    void takeWritten(const QString &name, const CvxCPP::NodeValue &before, const CvxCPP::NodeValue &after);
    void takeExecuted(const QString &name);
    void addEdit(const FeatureEdit &edit);
    bool mergeEdit(const FeatureEdit &edit);
    void addStep(HistoryEntry::Kind kind, const QString &title, const std::vector<FeatureEdit> &edits);
    void addEntry(HistoryEntry::Kind kind, const QString &title, const std::vector<FeatureEdit> &edits);

    void start(const std::shared_ptr<Run> &run);
    void writeOne(const std::shared_ptr<Run> &run, CameraJobs::StreamUse stream);
    void takeOne(const std::shared_ptr<Run> &run, CameraJobs::StreamUse stream, const WrittenSetting &written,
        const CvxCPP::CvxResult &result);
    void writeSeveral(const std::shared_ptr<Run> &run);
    void takeSeveral(const std::shared_ptr<Run> &run, const CvxCPP::CvxResult &result);
    void finish(const std::shared_ptr<Run> &run);
    void passOver(const std::shared_ptr<Run> &run);
    void noteEdits(const std::vector<FeatureEdit> &edits);

    FeatureClient &m_client;
    CameraJobs &m_jobs;
    const PresentSelectors &m_selectors;
    OpeningSnapshot &m_opening;
    QVector<HistoryEntry> m_entries;
    std::vector<int> m_done; // Entries that can be undone, the last one first to undo.
    std::vector<int> m_undone; // Entries that can be redone, the last one first to redo.
    EditSequence m_sequence;
    std::shared_ptr<Run> m_run; // Null unless undo or redo is running.
    bool m_isBusy = false; // Whether a job was running when changed() was emitted last.
    bool m_isNoting = false; // The signals of the FeatureClient come from this object.
};
