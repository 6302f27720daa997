#pragma once

#include <QWidget>

#include <memory>

class QGraphicsOpacityEffect;
class Ui_ApplicationLauncher;

/// A tile that stands for one tool: its name, its description, and a click that asks for a start.
/// A disabled tile is faded and does not react.
class ApplicationLauncher : public QWidget
{
    Q_OBJECT

public:
    ApplicationLauncher(const QString &name, const QString &description, QWidget *parent);
    ~ApplicationLauncher() override;

    /// The name shown on the tile.
    QString GetName() const;

signals:
    /// The left button went down on the tile.
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
