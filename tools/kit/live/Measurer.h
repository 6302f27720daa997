#pragma once

#include "tools/kit/live/ImageSink.h"
#include "tools/kit/measure/Measurements.h"

#include <QMetaType>
#include <QObject>

#include <memory>

class MeasureWorker;

Q_DECLARE_METATYPE(Measurements)

/// Measures the newest image on a thread of its own: at most five times per second, for at most a tenth of
/// the time, and only while something is requested. Keeps one image, so that a new request is measured even
/// if no other image arrives.
class Measurer : public QObject, public ImageSink
{
    Q_OBJECT

public:
    explicit Measurer(QObject *parent = nullptr);
    ~Measurer() override;

    void take(const std::shared_ptr<const CvxCPP::Image> &image) override;

    /// Measures the present image again, and all later ones for this request. GUI thread.
    void setRequest(const MeasureRequest &request);

    /// Measures this image instead of those of the stream; null means the stream. GUI thread.
    void setFrozenImage(const std::shared_ptr<const CvxCPP::Image> &image);

    /// Forgets the images, for example before another camera is opened. GUI thread.
    void clear();

signals:
    void measured(const Measurements &measurements);

private:
    void report();

    std::unique_ptr<MeasureWorker> m_worker;
};
