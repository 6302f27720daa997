#pragma once

#include <QWidget>

#include <memory>

class QGraphicsOpacityEffect;
class Ui_ApplicationLauncher;

/// A clickable tile that shows the name and the description of one tool.
/// A disabled tile is faded and does not react to the mouse.
class ApplicationLauncher : public QWidget
{
    Q_OBJECT

public:
    ApplicationLauncher(const QString &name, const QString &description, QWidget *parent);
    ~ApplicationLauncher() override;

    /// Returns the tool's name, which the tile shows.
    QString GetName() const;

signals:
    /// Emitted when the left button is pressed on the tile, before it is released.
    void clicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<Ui_ApplicationLauncher> ui;
    QString m_name;
    QGraphicsOpacityEffect *m_opacityEffect = nullptr;
};
