#pragma once

#include "sdk/features/FeatureComparison.h"
#include "tools/camerasetup/compare/SettingsSource.h"
#include "tools/camerasetup/compare/SideChoice.h"
#include "tools/kit/camera/CameraConnection.h"

#include <QObject>

#include <array>
#include <deque>
#include <memory>

class CameraFinder;
class CameraJobs;
class ChangeHistory;
class FeatureClient;
class OpeningSnapshot;

/// The two sides of a comparison: reads them in the background, compares them, and copies settings from the
/// left one to the right one. Shows nothing and asks nobody.
class CompareSession : public QObject
{
    Q_OBJECT

public:
    enum Side
    {
        Left,
        Right
    };

    /// Which sides are read.
    enum class Reread
    {
        Changed,
        Both
    };

    /// What the session works with; everything outlives it.
    struct Parts
    {
        FeatureClient &client;
        CameraFinder &finder;
        CameraJobs &jobs;
        ChangeHistory &history;
        OpeningSnapshot &opening;
    };

    explicit CompareSession(const Parts &parts, QObject *parent = nullptr);
    ~CompareSession() override;

    const SideChoice &choice(Side side) const { return m_sides[side].choice; }
    const SettingsSource &source(Side side) const { return *m_sides[side].source; }
    QString problem(Side side) const { return m_sides[side].problem; } ///< Why it could not be read.
    bool isRead(Side side) const { return m_sides[side].isRead; }
    const SettingsSnapshot &snapshot(Side side) const { return m_sides[side].snapshot; }

    /// Returns what has to be asked before choose(), or refresh() if both sides are read again; empty if
    /// nothing.
    QString readQuestion(const SideChoice &left, const SideChoice &right, Reread reread) const;

    /// Chooses both sides and reads those that are new, and this camera now. Has no effect while the session
    /// is busy.
    void choose(const SideChoice &left, const SideChoice &right);

    /// Reads the sides that nobody has tried to read, except user sets, and the opening as soon as it is
    /// known. Has no effect while the session is busy.
    void readNew();

    void refresh(); ///< Reads both sides again.
    void swapSides(); ///< Reads nothing.

    /// Writes settings to the right side and reads it again.
    void copy(const std::vector<FeatureSetting> &settings);

    bool isBusy() const { return m_isBusy; }
    QString activity() const { return m_activity; } ///< What is being done, for people.
    void cancel();

    /// Returns all features of both sides; empty unless both were read.
    const std::vector<ComparedFeature> &features() const { return m_features; }

signals:
    void changed(); ///< The choice, the activity, or a problem.
    void compared(); ///< The features.
    void copied(const SourceWriting &writing);

private:
    struct SideState
    {
        SideChoice choice;
        std::unique_ptr<SettingsSource> source;
        SettingsSnapshot snapshot;
        QString problem;
        bool isRead = false;
    };

    std::unique_ptr<SettingsSource> makeSource(const SideChoice &choice);
    std::unique_ptr<SettingsSource> makeOtherCamera(const QString &id);
    std::unique_ptr<SettingsSource> makeUserSet(const QString &name) const;
    bool isKnown(const SideChoice &choice) const;
    FeatureDirectory cameraDirectory() const;
    void setChoice(Side side, const SideChoice &choice);
    void addStaleSides();
    void startReading();
    void readNext();
    std::vector<FeatureSetting> othersFor(Side side) const;
    void take(Side side, const SourceReading &reading);
    void takeWriting(const SourceWriting &writing);
    void compare();
    void setActivity(const QString &activity);
    void followConnection();
    void endWork();
    void followOpening();

    const Parts m_parts;
    CameraConnection m_otherConnection; // Outlives the sources.
    std::array<SideState, 2> m_sides;
    SettingsSource *m_active = nullptr; // The source that is being read or written.
    std::deque<Side> m_toRead;
    bool m_isBusy = false;
    QString m_activity;
    std::vector<ComparedFeature> m_features;
};
