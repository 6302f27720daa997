#pragma once

#include <QColor>
#include <QIcon>

/// The icons of the tools: drawn in one colour, sharp at every size, and grey when disabled.
class ToolIcons
{
public:
    enum class Kind
    {
        Play,
        Stop,
        Pause, ///< Also freezes a picture.
        Snapshot,
        Record,
        Fit,
        ActualSize,
        ZoomIn,
        ZoomOut,
        RotateRight,
        RotateLeft,
        MirrorHorizontal,
        MirrorVertical,
        FullScreen,
        Grid,
        Crosshair,
        Region,
        Line,
        Pan,
        Pick,
        ClipMarks,
        Histogram,
        Settings,
        Camera,
        Folder,
        Warning,
        Details,
        Refresh,
        Copy,
        Close,
        Trigger,
        WhiteBalance,
        Undo,
        Redo,
        Save,
        Search,
        Star, ///< A favourite.
        Lock,
        Compare,
        Table,
        Restore
    };
    static constexpr int count = int(Kind::Restore) + 1;

    static constexpr QRgb normalColour = 0xffe8edf2;
    static constexpr QRgb disabledColour = 0xff5b6b7f;

    static QIcon icon(Kind kind, const QColor &colour = QColor::fromRgb(normalColour));
};
