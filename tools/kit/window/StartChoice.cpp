#include "tools/kit/window/StartChoice.h"

#include <algorithm>

StartChoice chooseStart(const CameraEntries &cameras, const QString &wanted, CameraFinder::State state)
{
    using Page = StartChoice::Page;
    const bool hasList = state == CameraFinder::State::Listed || state == CameraFinder::State::Settled;
    if (hasList && !wanted.isEmpty()) {
        const CameraEntries matches = matchEntries(cameras, wanted);
        if (matches.size() == 1) {
            const auto hasId = [&](const CameraEntry &camera) { return camera.id == matches.first().id; };
            const auto found = std::find_if(cameras.begin(), cameras.end(), hasId);
            return {Page::Open, static_cast<int>(found - cameras.begin())};
        }
    }
    if (state == CameraFinder::State::Searching || state == CameraFinder::State::Listed)
        return {};
    if (cameras.isEmpty())
        return {Page::NoCamera, -1};
    if (wanted.isEmpty() && cameras.size() == 1)
        return {Page::Open, 0};
    return {Page::Choose, -1};
}
