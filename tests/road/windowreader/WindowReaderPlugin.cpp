#include "tests/road/windowreader/WindowReaderPlugin.h"

#include "tests/road/windowreader/EventLatency.h"
#include "tests/road/windowreader/WindowReader.h"

QObject *WindowReaderPlugin::create(const QString &key, const QString &socketPath)
{
    if (key == QLatin1String("eventlatency"))
        return new EventLatency(socketPath);
    return new WindowReader(socketPath);
}
