#include "tools/kit/live/PictureFeed.h"

#include "tools/kit/live/PictureWorker.h"

PictureFeed::PictureFeed(QObject *parent)
    : QObject(parent), m_worker(std::make_unique<PictureWorker>([this] {
          QMetaObject::invokeMethod(this, &PictureFeed::report, Qt::QueuedConnection);
      }))
{
    qRegisterMetaType<ShownPicture>();
}

PictureFeed::~PictureFeed() = default;

void PictureFeed::take(const std::shared_ptr<const CvxCPP::Image> &image)
{
    m_worker->take(image);
}

void PictureFeed::setRequest(const PictureRequest &request)
{
    m_worker->setRequest(request);
}

void PictureFeed::setFrozen(bool isFrozen)
{
    m_worker->setFrozen(isFrozen);
}

bool PictureFeed::isFrozen() const
{
    return m_worker->isFrozen();
}

void PictureFeed::accept()
{
    m_worker->accept();
}

void PictureFeed::clear()
{
    m_worker->clear();
}

std::shared_ptr<const CvxCPP::Image> PictureFeed::image() const
{
    return m_worker->image();
}

std::uint64_t PictureFeed::shownCount() const
{
    return m_worker->shownCount();
}

std::uint64_t PictureFeed::skippedCount() const
{
    return m_worker->skippedCount();
}

void PictureFeed::report()
{
    const PictureWorker::Result result = m_worker->takeResult();
    if (result.picture)
        emit rendered(*result.picture);
    if (result.newSize)
        emit pictureSizeChanged(*result.newSize);
}
