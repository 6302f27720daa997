#include "tools/kit/live/Measurer.h"

#include "tools/kit/live/MeasureWorker.h"

Measurer::Measurer(QObject *parent)
    : QObject(parent), m_worker(std::make_unique<MeasureWorker>([this] {
          QMetaObject::invokeMethod(this, &Measurer::report, Qt::QueuedConnection);
      }))
{
    qRegisterMetaType<Measurements>();
}

Measurer::~Measurer() = default;

void Measurer::take(const std::shared_ptr<const CvxCPP::Image> &image)
{
    m_worker->take(image);
}

void Measurer::setRequest(const MeasureRequest &request)
{
    m_worker->setRequest(request);
}

void Measurer::setFrozenImage(const std::shared_ptr<const CvxCPP::Image> &image)
{
    m_worker->setFrozenImage(image);
}

void Measurer::clear()
{
    m_worker->clear();
}

void Measurer::report()
{
    if (const std::optional<Measurements> result = m_worker->takeResult())
        emit measured(*result);
}
