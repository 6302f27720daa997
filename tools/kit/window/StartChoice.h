#pragma once

#include "tools/kit/names/CameraNames.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

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
    std::optional<std::size_t> index; ///< Only for Page::Open.

    bool operator==(const StartChoice &other) const { return page == other.page && index == other.index; }
};

/// How far the search for cameras is.
enum class SearchProgress
{
    Running, ///< There is no list yet.
    Listed, ///< There is a list. Cameras that answer slowly may be missing.
    Settled ///< All cameras have had time to answer.
};

/// A camera that is named is opened as soon as it is found. Without a name, the only camera is opened once the
/// search has settled.
/// @param wanted What matchCameras() understands; empty if no camera was named.
StartChoice chooseStart(
    const std::vector<CameraNames> &cameras, const std::string &wanted, SearchProgress progress);
