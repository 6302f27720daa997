#include "tools/imageviewer/files/ImageFileNames.h"

#include "sdk/imagefile/SampleConverter.h"

#include <ctime>

namespace {

/// Returns the local time at which an image was received.
QDateTime timeOf(const CvxCPP::Image &image)
{
    constexpr std::int64_t nanosecondsPerSecond = 1000000000, nanosecondsPerMillisecond = 1000000;
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    const std::int64_t age = now.tv_sec * nanosecondsPerSecond + now.tv_nsec
        - static_cast<std::int64_t>(image.GetInfo().receivedAt);
    return QDateTime::currentDateTime().addMSecs(-age / nanosecondsPerMillisecond);
}

} // namespace

FileNameValues fileNameValues(const CameraRecord &camera, const CvxCPP::Image &image)
{
    FileNameValues values = fileNameValues(camera);
    values.pixelFormat = QString::fromStdString(pixelFormatName(image.GetInfo().pixelFormat));
    values.time = timeOf(image);
    values.frameId = image.GetInfo().frameId;
    return values;
}

FileNameValues fileNameValues(const CameraRecord &camera)
{
    FileNameValues values;
    values.camera = QString::fromStdString(camera.userName.empty() ? camera.model : camera.userName);
    values.serialNumber = QString::fromStdString(camera.serialNumber);
    const auto format = camera.settings.find("PixelFormat");
    if (format != camera.settings.end() && format->is_string())
        values.pixelFormat = QString::fromStdString(format->get<std::string>());
    values.time = QDateTime::currentDateTime();
    return values;
}
