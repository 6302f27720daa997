#pragma once

#include <QWidget>

class QToolButton;
class QVBoxLayout;

/// A title that opens and closes what is below it.
class CollapsibleGroup : public QWidget
{
    Q_OBJECT

public:
    explicit CollapsibleGroup(const QString &title, QWidget *parent = nullptr);

    void addWidget(QWidget *widget);

    bool isOpen() const { return m_isOpen; }

public slots:
    void setOpen(bool isOpen);

signals:
    void toggled(bool isOpen);

private:
    QToolButton *m_title;
    QWidget *m_content;
    QVBoxLayout *m_contentLayout;
    bool m_isOpen = false;
};
