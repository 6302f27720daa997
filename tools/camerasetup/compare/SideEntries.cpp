#include "tools/camerasetup/compare/SideEntries.h"

#include "tools/kit/camera/CameraFinder.h"
#include "tools/kit/camera/FeatureClient.h"

#include <QCoreApplication>

using Kind = SideChoice::Kind;

namespace {

struct EntryTexts
{
    Q_DECLARE_TR_FUNCTIONS(CompareSides)
};

bool contains(const QVector<SideBox::Entry> &entries, const SideChoice &choice)
{
    return std::any_of(entries.begin(), entries.end(),
        [&choice](const SideBox::Entry &entry) { return entry.choice == choice; });
}

void addUserSets(const FeatureClient &client, QVector<SideBox::Entry> &entries)
{
    const CvxCPP::NodeState *const state = client.state(userSetSelector());
    if (!state || !client.info(QStringLiteral("UserSetLoad")))
        return;
    for (const std::string &set : state->availableEntries) {
        const QString name = QString::fromStdString(set);
        entries.append({EntryTexts::tr("User set %1").arg(name), {Kind::UserSet, name}});
    }
}

} // namespace

QString userSetSelector()
{
    return QStringLiteral("UserSetSelector");
}

QVector<SideBox::Entry> sideEntries(FeatureClient &client, const CameraFinder &finder,
    const CompareSession &session, CompareSession::Side side)
{
    QVector<SideBox::Entry> entries{{EntryTexts::tr("This camera now"), {Kind::Now, {}}},
        {EntryTexts::tr("This camera at opening"), {Kind::Opening, {}}}};
    addUserSets(client, entries);
    for (const CameraEntry &camera : finder.cameras()) {
        if (camera.id != client.connection().camera().id)
            entries.append({EntryTexts::tr("Camera %1").arg(camera.title()), {Kind::OtherCamera, camera.id}});
    }
    // A file, or what has disappeared since it was chosen.
    if (!contains(entries, session.choice(side)))
        entries.append({session.source(side).title(), session.choice(side)});
    return entries;
}
