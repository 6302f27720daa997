#include "tools/kit/window/StartChoice.h"

StartChoice chooseStart(
    const std::vector<CameraNames> &cameras, const std::string &wanted, SearchProgress progress)
{
    using Page = StartChoice::Page;
    if (progress == SearchProgress::Running)
        return {};
    if (!wanted.empty()) {
        const std::vector<std::size_t> matches = matchCameras(cameras, wanted);
        if (matches.size() == 1)
            return {Page::Open, matches.front()};
    }
    if (progress != SearchProgress::Settled)
        return {};
    if (cameras.empty())
        return {Page::NoCamera, {}};
    if (wanted.empty() && cameras.size() == 1)
        return {Page::Open, 0};
    return {Page::Choose, {}};
}
