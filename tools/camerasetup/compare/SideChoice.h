#pragma once

#include <QMetaType>
#include <QString>

/// Which settings one side of a comparison shows.
struct SideChoice
{
    enum class Kind
    {
        Now, ///< This camera now.
        Opening, ///< This camera when it was opened.
        OtherCamera,
        File,
        UserSet
    };

    Kind kind = Kind::Now;
    QString name; ///< Extended ID of the other camera, path of the file, or name of the user set; else empty.

    bool operator==(const SideChoice &other) const { return kind == other.kind && name == other.name; }
    bool operator!=(const SideChoice &other) const { return !(*this == other); }
};

Q_DECLARE_METATYPE(SideChoice)
