#include "tools/kit/canvas/LivePicture.h"

#include "tools/kit/canvas/ImageCanvas.h"

#include <QVBoxLayout>

#include <chrono>

namespace {

using std::chrono_literals::operator""s;

/// After this time without a picture, the canvas says why there may be none.
constexpr std::chrono::milliseconds silenceLimit = 3s;

const QString triggerMode = QStringLiteral("TriggerMode");

} // namespace

LivePicture::LivePicture(LiveStream &stream, FeatureClient &client, QWidget *parent)
    : QWidget(parent), m_stream(stream), m_client(client), m_canvas(new ImageCanvas(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_canvas);
    setFocusProxy(m_canvas);
    m_silence.setSingleShot(true);
    m_silence.setInterval(silenceLimit);
    connect(&m_silence, &QTimer::timeout, this, &LivePicture::explainSilence);
    connect(&m_stream, &LiveStream::stateChanged, this, &LivePicture::showStreamState);
    connect(&m_feed, &PictureFeed::pictureSizeChanged, this, [this](const QSize &size) {
        m_canvas->setPictureSize(size);
        m_feed.setRequest(m_canvas->request());
    });
    connect(&m_feed, &PictureFeed::rendered, m_canvas, &ImageCanvas::setPicture);
    connect(m_canvas, &ImageCanvas::requestChanged, this, [this] { m_feed.setRequest(m_canvas->request()); });
    connect(m_canvas, &ImageCanvas::painted, this, [this] { m_feed.accept(); });
    m_client.watch({triggerMode});
    m_stream.addSink(&m_feed);
    showStreamState();
}

LivePicture::~LivePicture()
{
    m_stream.removeSink(&m_feed);
    m_client.unwatch({triggerMode});
}

void LivePicture::setStoppedHint(const QString &text)
{
    m_stoppedHint = text;
    showStreamState();
}

void LivePicture::setNotice(const QString &text)
{
    m_canvas->setNotice(text);
}

void LivePicture::clear()
{
    m_feed.clear();
    m_canvas->clear();
}

void LivePicture::showStreamState()
{
    using State = LiveStream::State;
    const State state = m_stream.state();
    m_canvas->setHint(QString());
    if (state == State::Failed)
        m_canvas->setHint(tr("The camera sends no pictures. %1").arg(m_stream.problem()));
    else if (state == State::Stopped)
        m_canvas->setHint(m_stoppedHint);
    else if (state == State::Running)
        m_silence.start();
}

void LivePicture::explainSilence()
{
    if (m_stream.state() != LiveStream::State::Running || m_stream.statistics().delivered > 0)
        return;
    const CvxCPP::NodeState *const trigger = m_client.state(triggerMode);
    const auto *const mode = trigger ? std::get_if<std::string>(&trigger->value) : nullptr;
    m_canvas->setHint(mode && *mode == "On"
            ? tr("The camera waits for a trigger. Send one, or switch the trigger mode off.")
            : tr("No picture has arrived yet."));
}
