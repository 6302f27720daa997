#pragma once

#include <QScrollArea>

/// Scrolls its widget only vertically, and is never narrower than the widget needs.
class VerticalScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit VerticalScrollArea(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
