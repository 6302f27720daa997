#pragma once

#include <QDeadlineTimer>
#include <QImage>
#include <QListWidget>

/// The last snapshots as small pictures, the latest one first. A click or Enter opens the picture in the
/// desktop's viewer; a menu opens the folder, copies the path, or deletes the file after asking.
class ThumbnailStrip : public QListWidget
{
    Q_OBJECT

public:
    static constexpr int maxCount = 30;

    explicit ThumbnailStrip(QWidget *parent = nullptr);

    QSize sizeHint() const override;

    /// Returns the path of the selected picture; empty if none is selected.
    QString currentPath() const;

public slots:
    void add(const QString &path, const QImage &thumbnail);

    /// Opens the selected picture.
    void open();
    void openFolder();
    void copyPath();

    /// Asks, then deletes the selected picture and its sidecar.
    void askToDelete();

signals:
    /// A file cannot be opened or deleted; `text` is for people.
    void failed(const QString &text);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void openClicked();
    void openUrl(const QString &path);
    void deleteFile(const QString &path);

    QDeadlineTimer m_nextOpen{0}; // A double click opens a picture once.
};
