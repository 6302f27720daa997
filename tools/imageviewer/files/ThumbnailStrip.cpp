#include "tools/imageviewer/files/ThumbnailStrip.h"

#include "sdk/imagefile/Sidecar.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDateTime>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>
#include <QUrl>

namespace {

constexpr int pathRole = Qt::UserRole;
constexpr int pictureSize = 96; // Pixels.

QString toolTipOf(const QFileInfo &file)
{
    return ThumbnailStrip::tr("%1\n%2 · %3", "name, size and time of a file")
        .arg(file.fileName(), QLocale().formattedDataSize(file.size(), 1, QLocale::DataSizeSIFormat),
            QLocale().toString(file.lastModified(), QLocale::ShortFormat));
}

} // namespace

ThumbnailStrip::ThumbnailStrip(QWidget *parent) : QListWidget(parent)
{
    setObjectName(QStringLiteral("thumbnails"));
    setAccessibleName(tr("Snapshots"));
    setViewMode(QListView::IconMode);
    setFlow(QListView::LeftToRight);
    setWrapping(false);
    setMovement(QListView::Static);
    setUniformItemSizes(true);
    setIconSize({pictureSize, pictureSize});
    setTextElideMode(Qt::ElideLeft);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto *const remove = new QAction(tr("&Delete"), this);
    remove->setShortcut(QKeySequence::Delete);
    remove->setShortcutContext(Qt::WidgetShortcut);
    addAction(remove);
    auto *const copy = new QAction(tr("&Copy path"), this);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    addAction(copy);
    connect(remove, &QAction::triggered, this, &ThumbnailStrip::askToDelete);
    connect(copy, &QAction::triggered, this, &ThumbnailStrip::copyPath);
    connect(this, &QListWidget::itemClicked, this, &ThumbnailStrip::openClicked);
}

QSize ThumbnailStrip::sizeHint() const
{
    constexpr int padding = 12;
    const int height
        = pictureSize + fontMetrics().height() + padding + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    return {4 * pictureSize, height};
}

void ThumbnailStrip::add(const QString &path, const QImage &thumbnail)
{
    constexpr int cellPadding = 8;
    const QFileInfo file(path);
    auto *const item = new QListWidgetItem(QIcon(QPixmap::fromImage(thumbnail)), file.completeBaseName());
    item->setData(pathRole, path);
    item->setToolTip(toolTipOf(file));
    item->setSizeHint({pictureSize + cellPadding, pictureSize + fontMetrics().height() + cellPadding});
    insertItem(0, item);
    while (count() > maxCount)
        delete takeItem(count() - 1);
    scrollToItem(item);
}

QString ThumbnailStrip::currentPath() const
{
    const QListWidgetItem *const item = currentItem();
    return item ? item->data(pathRole).toString() : QString();
}

void ThumbnailStrip::open()
{
    openUrl(currentPath());
}

void ThumbnailStrip::openClicked()
{
    if (!m_nextOpen.hasExpired())
        return;
    m_nextOpen.setRemainingTime(QApplication::doubleClickInterval());
    open();
}

void ThumbnailStrip::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && currentItem())
        open();
    else
        QListWidget::keyPressEvent(event);
}

void ThumbnailStrip::openFolder()
{
    openUrl(QFileInfo(currentPath()).path());
}

void ThumbnailStrip::openUrl(const QString &path)
{
    if (!QFileInfo::exists(path))
        emit failed(tr("\"%1\" does not exist any more.").arg(path));
    else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        emit failed(tr("No program of this desktop opens \"%1\".").arg(path));
}

void ThumbnailStrip::copyPath()
{
    QApplication::clipboard()->setText(currentPath());
}

void ThumbnailStrip::askToDelete()
{
    const QString path = currentPath();
    if (path.isEmpty())
        return;
    auto *const question = new QMessageBox(QMessageBox::Question, tr("Delete snapshot"),
        tr("Delete \"%1\" and its sidecar?").arg(QFileInfo(path).fileName()), QMessageBox::NoButton,
        window());
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->addButton(tr("Delete"), QMessageBox::AcceptRole);
    question->setDefaultButton(question->addButton(QMessageBox::Cancel));
    connect(question, &QMessageBox::accepted, this, [this, path] { deleteFile(path); });
    question->open(); // The live picture goes on meanwhile.
}

void ThumbnailStrip::deleteFile(const QString &path)
{
    QFile file(path);
    if (file.exists() && !file.remove()) {
        emit failed(tr("\"%1\" cannot be deleted: %2.").arg(path, file.errorString()));
        return;
    }
    QFile::remove(QString::fromStdString(sidecarPath(path.toStdString())));
    for (int row = count() - 1; row >= 0; --row) {
        if (item(row)->data(pathRole).toString() == path)
            delete takeItem(row);
    }
}

void ThumbnailStrip::contextMenuEvent(QContextMenuEvent *event)
{
    if (currentPath().isEmpty())
        return;
    auto *const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(tr("&Open")), &QAction::triggered, this, &ThumbnailStrip::open);
    connect(menu->addAction(tr("Open &folder")), &QAction::triggered, this, &ThumbnailStrip::openFolder);
    menu->addActions(actions());
    menu->popup(event->globalPos());
}
