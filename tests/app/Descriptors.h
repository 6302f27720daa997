#pragma once

#include <QStringList>

/// What a started tool may find open. A tool tells by "ls -l /proc/$$/fd".
namespace Descriptors {

/// What this program was started with and passes on: its standard streams, and what its starter left open.
/// Taken before main().
const QStringList &inheritedAtStart();

/// From the output of "ls -l": what each descriptor leads to.
QStringList targets(const QByteArray &listing);

} // namespace Descriptors
