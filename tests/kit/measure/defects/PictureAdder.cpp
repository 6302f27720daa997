#include "tests/kit/measure/defects/PictureAdder.h"

#include "sdk/image/ImageConverter.h"

void addPicture(PixelStatistics &statistics, const RawImage &picture)
{
    ImageConverter converter;
    statistics.add(picture, converter);
}
