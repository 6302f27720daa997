#include "tools/imageviewer/files/ThumbnailStrip.h"

ThumbnailStrip::ThumbnailStrip(QWidget *parent) : QListWidget(parent) { }
void ThumbnailStrip::add(const QString &path, const QImage &thumbnail)
{
    Q_UNUSED(path)
    Q_UNUSED(thumbnail)
}
void ThumbnailStrip::keyPressEvent(QKeyEvent *event)
{
    QListWidget::keyPressEvent(event);
}
void ThumbnailStrip::contextMenuEvent(QContextMenuEvent *event)
{
    QListWidget::contextMenuEvent(event);
}
