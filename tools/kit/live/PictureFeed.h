#pragma once

#include "CvxCPP/Image.h"
#include "tools/kit/live/ImageSink.h"
#include "tools/kit/picture/DisplaySettings.h"

#include <QImage>
#include <QMetaType>
#include <QObject>
#include <QRect>
#include <QSize>

#include <cstdint>
#include <memory>

class PictureWorker;

/// What a canvas shows at present. Nothing else of a picture is converted.
struct PictureRequest
{
    QSize pictureSize; ///< The size for which `region` was computed.
    QRect region; ///< Pixels of the picture; empty if nothing is visible.
    QSize size; ///< Output pixels; at most those of the region, because the canvas enlarges by itself.
    DisplaySettings settings;
};

/// A part of a picture as the screen shows it.
struct ShownPicture
{
    QImage pixels; ///< RGB32.
    QRect region; ///< Where the pixels come from.
    QSize pictureSize;
    std::shared_ptr<const CvxCPP::Image> image; ///< The raw values, without any correction.
};

Q_DECLARE_METATYPE(ShownPicture)

/// Converts the newest image for a canvas on a thread of its own. Images that arrive while one is being
/// converted or has not been accepted by the canvas are skipped and counted. At most three images are kept
/// at any time.
class PictureFeed : public QObject, public ImageSink
{
    Q_OBJECT

public:
    explicit PictureFeed(QObject *parent = nullptr);
    ~PictureFeed() override;

    void take(const std::shared_ptr<const CvxCPP::Image> &image) override;

    /// Converts the present image again, and all later ones for this request. Allows the next rendered(), as
    /// accept() does. GUI thread.
    void setRequest(const PictureRequest &request);

    /// Keeps showing the present image while the stream goes on. Images that arrive meanwhile are not
    /// counted. GUI thread.
    void setFrozen(bool isFrozen);
    bool isFrozen() const;

    /// Allows the next rendered(). GUI thread, after a picture was painted.
    void accept();

    /// Forgets the image and ends the freeze, for example before another camera is opened. The counters start
    /// at 0 again. GUI thread.
    void clear();

    /// Returns the image that is shown or frozen; null if there is none. Any thread.
    std::shared_ptr<const CvxCPP::Image> image() const;

    std::uint64_t shownCount() const; ///< Images of the stream that were rendered. Any thread.
    std::uint64_t skippedCount() const; ///< Images that were never rendered. Any thread.

signals:
    /// An image has another size than the request; nothing is rendered until setRequest() is called for it.
    void pictureSizeChanged(const QSize &size);
    void rendered(const ShownPicture &picture);

private:
    void report();

    std::unique_ptr<PictureWorker> m_worker;
};
