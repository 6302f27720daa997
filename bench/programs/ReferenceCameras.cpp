#include "bench/programs/ReferenceCameras.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

QVector<CameraInfo> referenceCameras(int count)
{
    QFile file(QStringLiteral(":/config/cameras_reference.json"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The camera reference is not compiled in.");
    const QJsonArray rows
        = QJsonDocument::fromJson(file.readAll()).object().value(QLatin1String("cameras")).toArray();
    QVector<CameraInfo> cameras;
    for (int index = 0; index < count; ++index) {
        CameraInfo camera;
        camera.modelName = rows.at(index % rows.size()).toObject().value(QLatin1String("model")).toString();
        camera.vendorName = QStringLiteral("Orvelle");
        camera.serialNumber = QString::number(24000000 + index);
        camera.cameraId = QStringLiteral("SIM-%1").arg(camera.serialNumber);
        camera.cameraName = camera.vendorName + QLatin1Char(' ') + camera.modelName;
        camera.interfaceType = QStringLiteral("GigE");
        cameras.append(camera);
    }
    return cameras;
}
