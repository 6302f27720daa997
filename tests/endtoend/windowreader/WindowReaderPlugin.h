#pragma once

#include <QGenericPlugin>

/// Lets a test read the windows of a running, unchanged Qt program. Qt itself loads the plugin if the
/// environment contains QT_QPA_GENERIC_PLUGINS=windowreader:PATH. Every connection to the local socket at
/// PATH receives the visible windows as JSON and is closed afterwards.
class WindowReaderPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "windowreader.json")

public:
    QObject *create(const QString &key, const QString &socketPath) override;
};
