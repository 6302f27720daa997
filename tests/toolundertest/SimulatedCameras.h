#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QStringList>
#include <QtGlobal>

/// The configuration of the simulator in the SDK that the script with-sdk has copied. Serial numbers that
/// begin with 1 are area cameras, 1002 is one with colour; those that begin with 2 are line scan cameras.
class SimulatedCameras
{
public:
    /// Plugs these cameras, and unplugs all others.
    void plug(const QStringList &serialNumbers) const
    {
        QJsonArray devices;
        for (const QString &serial : serialNumbers)
            devices.append(device(serial));
        const QJsonObject interface {
            {QStringLiteral("id"), QStringLiteral("Sim")}, {QStringLiteral("tlType"), QStringLiteral("GEV")},
            {
                QStringLiteral("devices"), devices
            }
        };
        QSaveFile file(
            qEnvironmentVariable("CORVIX_TEST_SDK") + QStringLiteral("/cti/CorvixCameraSimulator.json"));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("The simulator's configuration cannot be written; use with-sdk.");
        file.write(
            QJsonDocument(QJsonObject{{QStringLiteral("interfaces"), QJsonArray{interface}}}).toJson());
        file.commit();
    }

private:
    static QJsonObject device(const QString &serial)
    {
        const bool isLineScan = serial.startsWith(QLatin1Char('2'));
        return {{QStringLiteral("id"), QStringLiteral("SIM-%1").arg(serial)},
            {QStringLiteral("vendor"), QStringLiteral("Orvelle")},
            {QStringLiteral("model"), isLineScan ? QStringLiteral("Line") : QStringLiteral("Area")},
            {QStringLiteral("serial"), serial},
            {QStringLiteral("displayName"), QStringLiteral("Orvelle camera %1").arg(serial)},
            {QStringLiteral("sensorWidth"), isLineScan ? 512 : 320}, {QStringLiteral("sensorHeight"), 240},
            {QStringLiteral("lineScan"), isLineScan},
            {QStringLiteral("color"), serial == QStringLiteral("1002")}};
    }
};
