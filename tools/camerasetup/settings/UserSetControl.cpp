#include "tools/camerasetup/settings/UserSetControl.h"

#include "tools/kit/camera/FeatureClient.h"
#include "tools/kit/editors/LockText.h"

#include <algorithm>

using namespace CvxCPP;

namespace {

const QStringList &watchedFeatures()
{
    static const QStringList names{
        QStringLiteral("UserSetDefault"), QStringLiteral("UserSetDefaultSelector")};
    return names;
}

CameraJobs::StreamUse streamUse(const NodeState &state)
{
    return state.lockReason == LockReason::StreamRunning ? CameraJobs::StreamUse::Pause
                                                         : CameraJobs::StreamUse::Keep;
}

} // namespace

UserSetControl::UserSetControl(const Parts &parts, QObject *parent)
    : QObject(parent), m_parts(parts), m_reading(parts.jobs)
{
    connect(&parts.client, &FeatureClient::nodesGone, this, &UserSetControl::forget);
    connect(&parts.client, &FeatureClient::stateChanged, this, &UserSetControl::followFeature);
    connect(&parts.jobs, &CameraJobs::changed, this, &UserSetControl::changed);
    parts.client.watch(watchedFeatures());
}

UserSetControl::~UserSetControl()
{
    m_parts.client.unwatch(watchedFeatures());
}

// ---- What the camera has ----------------------------------------------------------------------------------

void UserSetControl::forget()
{
    m_reading.abandon();
    m_userSets.reset();
    emit changed();
}

void UserSetControl::read()
{
    if (m_userSets || m_reading.isRunning() || m_parts.client.nodes().isEmpty())
        return;
    const auto userSets = std::make_shared<UserSets>();
    m_reading.start(
        tr("Reading the user sets"), CameraJobs::StreamUse::Keep,
        [userSets](Device &device, const FeatureProgress &progress) {
            return readUserSets(device, *userSets, progress);
        },
        [this, userSets](const CvxResult &result) { takeUserSets(result, *userSets); });
}

void UserSetControl::takeUserSets(const CvxResult &result, const UserSets &userSets)
{
    if (!result) {
        emit failed(QString::fromStdString(result.text));
        return;
    }
    m_userSets = userSets;
    emit changed();
}

void UserSetControl::followFeature(const QString &name)
{
    if (!m_userSets || name.toStdString() != m_userSets->defaultFeature)
        return;
    m_userSets->byDefault = *m_parts.client.state(name);
    emit changed();
}

bool UserSetControl::isDefault(const UserSet &userSet) const
{
    return m_userSets && m_userSets->byDefault.value == NodeValue(userSet.name);
}

QString UserSetControl::title(const UserSet &userSet) const
{
    if (const NodeInfo *const selector = m_parts.client.info(QStringLiteral("UserSetSelector"))) {
        for (const EnumerationEntry &entry : selector->entries) {
            if (entry.name == userSet.name)
                return QString::fromStdString(entry.displayName);
        }
    }
    return QString::fromStdString(userSet.name);
}

std::optional<int> UserSetControl::countChanges() const
{
    if (m_parts.opening.state() != OpeningSnapshot::State::Complete)
        return std::nullopt;
    const auto &nodes = m_parts.client.nodes();
    return int(std::count_if(nodes.begin(), nodes.end(), [this](const NodeInfo &node) {
        return node.selected.empty() && m_parts.opening.isChanged(QString::fromStdString(node.name));
    }));
}

// ---- What can be done -------------------------------------------------------------------------------------

QString UserSetControl::lockTextOf(const NodeState &state, const QString &title) const
{
    if (!m_parts.client.connection().isControlled())
        return tr("The camera is only watched, so nothing can be changed.");
    if (state.lockReason == LockReason::StreamRunning)
        return {};
    const NodeInfo *const locking = m_parts.client.info(QString::fromStdString(state.lockingNode));
    const bool isSelector = state.lockingNode == "UserSetSelector";
    return lockText(state, locking ? QString::fromStdString(locking->displayName) : QString(),
        isSelector ? title : QString());
}

QString UserSetControl::commandProblem(
    const char *command, const NodeState &state, const QString &title) const
{
    return m_parts.client.info(QString::fromLatin1(command)) ? lockTextOf(state, title)
                                                             : tr("The camera does not offer this.");
}

QString UserSetControl::loadProblem(const UserSet &userSet) const
{
    return commandProblem("UserSetLoad", userSet.load, title(userSet));
}

QString UserSetControl::saveProblem(const UserSet &userSet) const
{
    return commandProblem("UserSetSave", userSet.save, title(userSet));
}

QString UserSetControl::defaultProblem(const UserSet &userSet) const
{
    if (!m_userSets || m_userSets->defaultFeature.empty())
        return tr("The camera does not let the set for power-on be chosen.");
    const auto &entries = m_userSets->byDefault.availableEntries;
    if (std::find(entries.begin(), entries.end(), userSet.name) == entries.end())
        return tr("The camera does not allow this set at power-on.");
    return lockTextOf(m_userSets->byDefault, title(userSet));
}

QString UserSetControl::compareProblem(const UserSet &userSet) const
{
    return m_parts.client.connection().isControlled()
        ? loadProblem(userSet)
        : tr("The camera is only watched, so its user sets cannot be loaded.");
}

// ---- Doing it ---------------------------------------------------------------------------------------------

void UserSetControl::load(const UserSet &userSet)
{
    const auto change = std::make_shared<SettingsChange>();
    const auto work = [change, name = userSet.name](Device &device, const FeatureProgress &progress) {
        const auto command
            = [&](const FeatureProgress &) { return executeForUserSet(device, name, "UserSetLoad"); };
        return recordChange(device, {}, command, *change, progress);
    };
    const QString text = title(userSet);
    m_parts.jobs.start(tr("Loading \"%1\"").arg(text), CameraJobs::StreamUse::Pause, work, this,
        [this, text, change](const CvxResult &result) { takeLoaded(text, result, *change); });
}

void UserSetControl::takeLoaded(const QString &title, const CvxResult &result, const SettingsChange &change)
{
    m_parts.history.addEdits(tr("Load user set \"%1\"").arg(title), change.edits);
    if (result && change.before.isCancelled)
        emit failed(tr("The load was cancelled. Nothing was changed."));
    else
        report(result,
            tr("\"%1\" was loaded, which changed %n setting(s).", nullptr, int(change.edits.size()))
                .arg(title));
}

void UserSetControl::save(const UserSet &userSet)
{
    const auto work = [name = userSet.name](Device &device, const FeatureProgress &) {
        return executeForUserSet(device, name, "UserSetSave");
    };
    const QString text = title(userSet);
    m_parts.jobs.start(tr("Saving \"%1\"").arg(text), CameraJobs::StreamUse::Pause, work, this,
        [this, text](const CvxResult &result) {
            report(result, tr("The present settings were saved as \"%1\".").arg(text));
        });
}

void UserSetControl::makeDefault(const UserSet &userSet)
{
    const FeatureEdit edit{
        {}, m_userSets->defaultFeature, knownText(m_userSets->byDefault.value), userSet.name};
    const auto work
        = [edit](Device &device, const FeatureProgress &) { return device.Write(edit.name, edit.after); };
    const QString text = title(userSet);
    m_parts.jobs.start(tr("Choosing \"%1\" for power-on").arg(text), streamUse(m_userSets->byDefault), work,
        this, [this, text, edit](const CvxResult &result) {
            if (result)
                m_parts.history.addEdits(tr("Use user set \"%1\" at power-on").arg(text), {edit});
            report(result, tr("The camera begins with \"%1\" at power-on.").arg(text));
        });
}

void UserSetControl::report(const CvxResult &result, const QString &successText)
{
    if (result)
        emit succeeded(successText);
    else
        emit failed(QString::fromStdString(result.text));
}
