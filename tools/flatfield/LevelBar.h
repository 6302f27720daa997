#pragma once

#include <QString>
#include <QWidget>

/// Shows how bright the live picture is, and the range that is good for bright images.
class LevelBar : public QWidget
{
    Q_OBJECT

public:
    explicit LevelBar(QWidget *parent = nullptr);

    /// @param share Level as a share of the range of values.
    /// @param clippedShare Share of the clipped values.
    void setLevel(double share, double clippedShare);

    /// Shows that there is no level.
    void clear();

    /// What the bar says, for example "68 % of the range".
    QString text() const { return m_text; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    double m_share = -1; // Negative if there is no level.
    bool m_isClipped = false;
    QString m_text;
};
