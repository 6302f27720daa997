#include "tools/kit/measure/PictureMeter.h"

#include "tools/kit/measure/IntegerMeter.h"
#include "tools/kit/measure/LineSampler.h"
#include "tools/kit/measure/WideMeter.h"

class PictureMeter::Workspace
{
public:
    IntegerMeter integers;
    WideMeter wide;
};

PictureMeter::PictureMeter() : m_workspace(std::make_unique<Workspace>()) { }
PictureMeter::PictureMeter(PictureMeter &&) noexcept = default;
PictureMeter &PictureMeter::operator=(PictureMeter &&) noexcept = default;
PictureMeter::~PictureMeter() = default;

Measurements PictureMeter::measure(const RawImage &picture, const MeasureRequest &request)
{
    Measurements result;
    result.width = picture.width;
    result.height = picture.height;
    result.pixelFormat = picture.pixelFormat;
    if (request.wantsHistogram || request.wantsStatistics) {
        const PixelLayout &layout = findPixelLayout(picture.pixelFormat);
        const Region whole{0, 0, picture.width, picture.height};
        const Region area
            = cutToPicture(request.region.value_or(whole), picture, completeLines(picture, layout));
        if (layout.packing == Packing::Wide)
            m_workspace->wide.measure(picture, area, request, result);
        else
            m_workspace->integers.measure(picture, area, request, result);
    }
    if (request.line)
        result.profile = sampleLine(picture, *request.line);
    return result;
}

Measurements measure(const RawImage &picture, const MeasureRequest &request)
{
    return PictureMeter().measure(picture, request);
}
