#include "tools/camerasetup/compare/CompareSession.h"

#include "tools/camerasetup/compare/CameraSource.h"
#include "tools/camerasetup/compare/FileSource.h"
#include "tools/camerasetup/compare/OpeningSource.h"
#include "tools/camerasetup/compare/OtherCameraSource.h"
#include "tools/camerasetup/compare/UserSetSource.h"
#include "tools/camerasetup/values/OpeningSnapshot.h"
#include "tools/kit/camera/CameraFinder.h"
#include "tools/kit/camera/FeatureClient.h"

#include <algorithm>
#include <utility>

using Kind = SideChoice::Kind;

CompareSession::CompareSession(const Parts &parts, QObject *parent) : QObject(parent), m_parts(parts)
{
    setChoice(Left, {Kind::Opening, {}});
    setChoice(Right, {Kind::Now, {}});
    connect(
        &parts.client.connection(), &CameraConnection::stateChanged, this, &CompareSession::followConnection);
    connect(&parts.opening, &OpeningSnapshot::stateChanged, this, &CompareSession::followOpening);
}

CompareSession::~CompareSession() = default;

QString CompareSession::readQuestion(const SideChoice &left, const SideChoice &right, Reread reread) const
{
    const SideChoice choices[] = {left, right};
    for (const Side side : {Left, Right}) {
        const bool isKept = reread == Reread::Changed && isKnown(choices[side]);
        if (choices[side].kind == Kind::UserSet && !isKept)
            return makeUserSet(choices[side].name)->readQuestion();
    }
    return {};
}

/// Returns true if one of the sides shows this choice already.
bool CompareSession::isKnown(const SideChoice &choice) const
{
    return std::any_of(m_sides.begin(), m_sides.end(),
        [&choice](const SideState &side) { return side.isRead && side.choice == choice; });
}

void CompareSession::choose(const SideChoice &left, const SideChoice &right)
{
    if (m_isBusy)
        return;
    if (left == m_sides[Right].choice || right == m_sides[Left].choice)
        std::swap(m_sides[Left], m_sides[Right]);
    const SideChoice choices[] = {left, right};
    for (const Side side : {Left, Right}) {
        if (m_sides[side].choice != choices[side])
            setChoice(side, choices[side]);
        if (!m_sides[side].isRead || choices[side].kind == Kind::Now)
            m_toRead.push_back(side);
    }
    addStaleSides();
    startReading();
}

void CompareSession::readNew()
{
    if (m_isBusy)
        return;
    for (const Side side : {Left, Right}) {
        const SideState &state = m_sides[side];
        const bool isUntried = state.problem.isEmpty() && state.choice.kind != Kind::UserSet;
        if (!state.isRead && (isUntried || state.choice.kind == Kind::Opening))
            m_toRead.push_back(side);
    }
    if (!m_toRead.empty())
        startReading();
}

/// Reads another camera again for a new file, which may contain features that were not read before.
void CompareSession::addStaleSides()
{
    const std::deque<Side> added = m_toRead;
    for (const Side side : added) {
        const Side other = side == Left ? Right : Left;
        const bool isCamera = m_sides[other].choice.kind == Kind::OtherCamera;
        if (m_sides[side].choice.kind == Kind::File && isCamera && added.size() == 1)
            m_toRead.push_back(other);
    }
}

void CompareSession::refresh()
{
    if (m_isBusy)
        return;
    m_toRead = {Left, Right};
    startReading();
}

void CompareSession::swapSides()
{
    if (m_isBusy)
        return;
    std::swap(m_sides[Left], m_sides[Right]);
    emit changed();
    compare();
}

void CompareSession::setChoice(Side side, const SideChoice &choice)
{
    SideState state;
    state.choice = choice;
    state.source = makeSource(choice);
    m_sides[side] = std::move(state);
}

std::unique_ptr<SettingsSource> CompareSession::makeSource(const SideChoice &choice)
{
    switch (choice.kind) {
    case Kind::Now:
        return std::make_unique<CameraSource>(m_parts.client.connection(), m_parts.jobs, m_parts.history);
    case Kind::Opening:
        return std::make_unique<OpeningSource>(m_parts.opening);
    case Kind::OtherCamera:
        return makeOtherCamera(choice.name);
    case Kind::File:
        return std::make_unique<FileSource>(choice.name, [this] { return cameraDirectory(); });
    case Kind::UserSet:
        break;
    }
    return makeUserSet(choice.name);
}

std::unique_ptr<SettingsSource> CompareSession::makeOtherCamera(const QString &id)
{
    const CameraEntries &cameras = m_parts.finder.cameras();
    const auto found = std::find_if(
        cameras.begin(), cameras.end(), [&id](const CameraEntry &camera) { return camera.id == id; });
    CameraEntry entry = found == cameras.end() ? CameraEntry() : *found;
    entry.id = id; // A camera that is gone is known by its ID only, and cannot be opened.
    return std::make_unique<OtherCameraSource>(entry, m_otherConnection);
}

std::unique_ptr<SettingsSource> CompareSession::makeUserSet(const QString &name) const
{
    return std::make_unique<UserSetSource>(name, m_parts.client.connection(), m_parts.jobs, m_parts.history);
}

/// Returns the features of the camera on either side; empty if there is none.
FeatureDirectory CompareSession::cameraDirectory() const
{
    for (const SideState &side : m_sides) {
        if (side.isRead && !side.snapshot.side.directory.nodes().empty())
            return side.snapshot.side.directory;
    }
    return {};
}

void CompareSession::startReading()
{
    const auto isFile = [this](Side side) { return m_sides[side].choice.kind == Kind::File; };
    // Files are read first, because a camera is asked for everything that the file contains.
    std::stable_partition(m_toRead.begin(), m_toRead.end(), isFile);
    m_isBusy = true;
    if (!m_sides[Left].isRead || !m_sides[Right].isRead)
        compare(); // Otherwise, the old differences stay until the new ones are known.
    readNext();
}

void CompareSession::readNext()
{
    if (m_toRead.empty()) {
        m_isBusy = false;
        setActivity({});
        compare();
        return;
    }
    const Side side = m_toRead.front();
    m_toRead.pop_front();
    setActivity(tr("Reading: %1").arg(m_sides[side].source->title()));
    m_active = m_sides[side].source.get();
    m_active->read(othersFor(side), [this, side](const SourceReading &reading) { take(side, reading); });
}

/// Returns the settings of the file on the other side, if it is one.
std::vector<FeatureSetting> CompareSession::othersFor(Side side) const
{
    const SideState &other = m_sides[side == Left ? Right : Left];
    return other.isRead && other.choice.kind == Kind::File ? other.snapshot.side.settings
                                                           : std::vector<FeatureSetting>();
}

void CompareSession::take(Side side, const SourceReading &reading)
{
    SideState &state = m_sides[side];
    state.problem = reading.problem;
    state.isRead = reading.problem.isEmpty();
    state.snapshot = state.isRead ? reading.snapshot : SettingsSnapshot();
    readNext();
}

void CompareSession::copy(const std::vector<FeatureSetting> &settings)
{
    if (m_isBusy)
        return;
    m_isBusy = true;
    m_active = m_sides[Right].source.get();
    setActivity(tr("Copying to: %1").arg(m_active->title()));
    m_active->write(settings, [this](const SourceWriting &writing) { takeWriting(writing); });
}

void CompareSession::takeWriting(const SourceWriting &writing)
{
    emit copied(writing);
    if (writing.after)
        m_sides[Right].snapshot = *writing.after;
    else if (m_sides[Right].choice.kind != Kind::UserSet) // A person is asked before one is read.
        m_toRead.push_back(Right);
    startReading();
}

void CompareSession::compare()
{
    const bool canCompare = m_sides[Left].isRead && m_sides[Right].isRead;
    m_features = canCompare ? compareFeatures(m_sides[Left].snapshot.side, m_sides[Right].snapshot.side)
                            : std::vector<ComparedFeature>();
    emit compared();
}

void CompareSession::cancel()
{
    m_toRead.clear();
    if (m_isBusy)
        m_active->cancel();
}

void CompareSession::setActivity(const QString &activity)
{
    m_activity = activity;
    emit changed();
}

/// Forgets what belongs to a camera that was closed.
void CompareSession::followConnection()
{
    const CameraConnection::State state = m_parts.client.connection().state();
    if (state == CameraConnection::State::Open || state == CameraConnection::State::Lost)
        return;
    for (const Side side : {Left, Right}) {
        const Kind kind = m_sides[side].choice.kind;
        if (kind == Kind::File || kind == Kind::OtherCamera)
            continue;
        const bool isActive = m_isBusy && m_sides[side].source.get() == m_active;
        setChoice(side, m_sides[side].choice);
        if (isActive)
            endWork();
    }
    emit changed();
    compare();
}

/// Ends the work whose source does not exist any more.
void CompareSession::endWork()
{
    m_toRead.clear();
    m_active = nullptr;
    m_isBusy = false;
    m_activity.clear();
}

void CompareSession::followOpening()
{
    for (const Side side : {Left, Right}) {
        if (m_sides[side].choice.kind == Kind::Opening)
            m_toRead.push_back(side);
    }
    if (!m_isBusy && !m_toRead.empty())
        startReading();
}
