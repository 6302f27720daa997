#include "tools/kit/camera/CameraEntry.h"

#include "sdk/names/CameraMatch.h"

#include <QStringList>

#include <vector>

namespace {

using Text = QString CameraEntry::*;
constexpr Text texts[] = {&CameraEntry::id, &CameraEntry::deviceId, &CameraEntry::name, &CameraEntry::model,
    &CameraEntry::serialNumber, &CameraEntry::userName, &CameraEntry::connection};
constexpr Text titles[]
    = {&CameraEntry::userName, &CameraEntry::name, &CameraEntry::model, &CameraEntry::deviceId};

QString onOneLine(const std::string &text)
{
    QString line = QString::fromStdString(text);
    for (QChar &character : line) {
        if (!character.isPrint() && !character.isSurrogate())
            character = QLatin1Char(' ');
    }
    return line.simplified();
}

CameraNames namesOf(const CameraEntry &entry)
{
    return {entry.deviceId.toStdString(), entry.id.toStdString(), entry.model.toStdString(),
        entry.serialNumber.toStdString(), entry.name.toStdString(), entry.userName.toStdString()};
}

} // namespace

CameraEntry CameraEntry::read(const std::shared_ptr<CvxCPP::Camera> &camera)
{
    const CameraNames names = readCameraNames(*camera);
    CameraEntry entry;
    entry.id = QString::fromStdString(names.extendedId);
    entry.deviceId = QString::fromStdString(names.id);
    entry.name = onOneLine(names.name);
    entry.model = onOneLine(names.model);
    entry.serialNumber = onOneLine(names.serial);
    entry.userName = onOneLine(names.userName);
    entry.connection = QString::fromLatin1(technologyName(*camera));
    entry.camera = camera;
    return entry;
}

QString CameraEntry::title() const
{
    for (const Text text : titles) {
        if (!(this->*text).isEmpty())
            return this->*text;
    }
    return id;
}

bool CameraEntry::hasSameTexts(const CameraEntry &other) const
{
    for (const Text text : texts) {
        if (this->*text != other.*text)
            return false;
    }
    return true;
}

CameraEntries matchEntries(const CameraEntries &cameras, const QString &text)
{
    std::vector<CameraNames> names;
    for (const CameraEntry &camera : cameras)
        names.push_back(namesOf(camera));
    CameraEntries matches;
    for (const std::size_t index : matchCameras(names, text.toStdString()))
        matches.append(cameras[int(index)]);
    return matches;
}
