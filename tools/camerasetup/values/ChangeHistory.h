#pragma once

#include "sdk/features/FeatureLoader.h"
#include "tools/camerasetup/values/CameraJobs.h"
#include "tools/camerasetup/values/FeatureEdit.h"
#include "tools/camerasetup/values/OpeningSnapshot.h"
#include "tools/camerasetup/values/PresentSelectors.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QVector>

#include <vector>

/// One step of the history.
struct HistoryEntry
{
    enum class Kind
    {
        Edit, ///< A person has changed one feature.
        Command, ///< A command was executed; cannot be undone.
        Load, ///< Several features were changed at once: a file, a user set, a copy of differences.
        Undo,
        Redo
    };

    QDateTime time;
    Kind kind = Kind::Edit;
    QString title; ///< For people, for example "Gain [GainSelector=All]" or "Load settings.txt".
    std::vector<FeatureEdit> edits;
    bool isUndone = false; ///< True while the changes are taken back.
};

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
    void addLoad(const QString &title, const LoadReport &report);
    void addEdits(const QString &title, const std::vector<FeatureEdit> &edits);

    bool canUndo() const;
    bool canRedo() const;
    QString undoTitle() const; ///< What undo() would take back, for people; empty if there is nothing.
    QString redoTitle() const;

    /// Returns a shell script that makes the changes again with cvxctl, in their order: commands too, but
    /// neither changes that were undone nor the undoing. The camera is the first argument of the script.
    QString script() const;

public slots:
    /// Writes the values from before the last change that is not undone, under its selectors, and restores
    /// the selectors. A single feature is written at once, without stopping the stream unless that is
    /// necessary; several features are written as a file is loaded.
    void undo();
    void redo();

signals:
    void changed();

    /// Undo or redo has failed, completely or for some features; for people.
    void failed(const QString &text);

private:
    FeatureClient &m_client;
    CameraJobs &m_jobs;
    const PresentSelectors &m_selectors;
    OpeningSnapshot &m_opening;
    QVector<HistoryEntry> m_entries;
};
