#pragma once

#include "tools/kit/camera/CameraFinder.h"

/// Decides how a tool comes to its camera.
struct StartChoice
{
    enum class Page
    {
        Searching, ///< Cameras may still be found.
        Open, ///< Open the camera `index`.
        Choose, ///< Let a person choose.
        NoCamera
    };

    Page page = Page::Searching;
    int index = -1; ///< Only for Page::Open.

    bool operator==(const StartChoice &other) const { return page == other.page && index == other.index; }
};

/// A camera that was named is opened as soon as it is found. Without a name, the only camera is opened once
/// the search has settled.
/// @param wanted What matchEntries() understands; empty if no camera was named.
StartChoice chooseStart(const CameraEntries &cameras, const QString &wanted, CameraFinder::State state);
