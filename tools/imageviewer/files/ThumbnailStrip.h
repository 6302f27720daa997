#pragma once

#include <QImage>
#include <QListWidget>

/// The last snapshots as small pictures, the latest one first. A click opens the picture in the desktop's
/// viewer; a menu opens the folder, copies the path, or deletes the file after asking.
class ThumbnailStrip : public QListWidget
{
    Q_OBJECT

public:
    static constexpr int maxCount = 30;

    explicit ThumbnailStrip(QWidget *parent = nullptr);

public slots:
    void add(const QString &path, const QImage &thumbnail);

signals:
    /// Opening is left to the desktop; see QDesktopServices.
    void openRequested(const QString &path);

    /// A file cannot be opened or deleted; `text` is for people.
    void failed(const QString &text);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void open(const QListWidgetItem *item);
    void openFolder();
    void copyPath();
    void deleteFile();
    QString currentPath() const;
};
