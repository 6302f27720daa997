#pragma once

#include <QGenericPlugin>

/// Lets a test look into a running, unchanged Qt program: Qt itself loads the plugin when the environment
/// says QT_QPA_GENERIC_PLUGINS=windowreader:SOCKET. SOCKET is the path of the Unix socket that the reader
/// serves. With ",eventlatency:SOCKET" it measures as well how long events wait, at a socket of its own.
class WindowReaderPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "windowreader.json")

public:
    QObject *create(const QString &key, const QString &socketPath) override;
};
