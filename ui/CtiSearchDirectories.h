#pragma once

#include <QStringList>

/// The directories that bin/CvxC.xml below the install root names, without duplicates; "cti" where it names
/// none. Never empty. Of a file larger than 256 KiB the first 256 KiB count.
QStringList ctiSearchDirsFromCvxCXml(const QString &installRoot);
