#pragma once

#include "tools/kit/camera/FeatureClient.h"
#include "tools/kit/live/LiveStream.h"
#include "tools/kit/live/PictureFeed.h"

#include <QTimer>
#include <QWidget>

class ImageCanvas;

/// The live picture of a camera: a canvas that shows what the stream delivers, and that says why there is no
/// picture. Whoever owns the stream starts and stops it.
class LivePicture : public QWidget
{
    Q_OBJECT

public:
    /// The objects must outlive the widget.
    LivePicture(LiveStream &stream, FeatureClient &client, QWidget *parent = nullptr);
    ~LivePicture() override;

    ImageCanvas &canvas() { return *m_canvas; }
    PictureFeed &feed() { return m_feed; }

    /// Sets what is shown while the stream is stopped, for example how to start it.
    void setStoppedHint(const QString &text);

    /// Sets what is shown over the picture, for example that the camera is lost; see
    /// ImageCanvas::setNotice().
    void setNotice(const QString &text);

    /// Forgets the picture, for example before another camera is opened.
    void clear();

private:
    void showStreamState();
    void explainSilence();

    LiveStream &m_stream;
    FeatureClient &m_client;
    PictureFeed m_feed;
    ImageCanvas *m_canvas;
    QString m_stoppedHint;
    QTimer m_silence; ///< Runs from the start of the stream until a picture should have arrived.
};
