#include "tests/road/windowreader/WindowReaderPlugin.h"

#include "tests/road/windowreader/WindowReader.h"

QObject *WindowReaderPlugin::create(const QString &, const QString &socketPath)
{
    return new WindowReader(socketPath);
}
