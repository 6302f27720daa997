#include "tools/flatfield/LevelBar.h"

#include "tools/kit/canvas/CanvasColors.h"
#include "tools/kit/measure/flatfield/ReferenceChecks.h"

#include <QLocale>
#include <QPainter>

namespace {

constexpr int barHeight = 12;
constexpr int textGap = 4;
constexpr QRgb goodColor = 0xff22c55e;
constexpr QRgb clippedColor = 0xffef4444;
constexpr int goodRangeAlpha = 70;
constexpr double visibleClipping = 0.0005; // Defect pixels are fewer.
constexpr double levelPercent = 100;

} // namespace

LevelBar::LevelBar(QWidget *parent) : QWidget(parent)
{
    setAccessibleName(tr("Brightness of the live picture"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    clear();
}

void LevelBar::setLevel(double share, double clippedShare)
{
    const QLocale locale;
    m_share = share;
    m_isClipped = clippedShare > visibleClipping;
    m_text = tr("%1 % of the range; 50 to 80 % is good").arg(locale.toString(share * levelPercent, 'f', 0));
    if (m_isClipped)
        m_text
            = tr("%1 % of the values are clipped").arg(locale.toString(clippedShare * levelPercent, 'f', 1));
    setAccessibleDescription(m_text);
    update();
}

void LevelBar::clear()
{
    m_share = -1;
    m_isClipped = false;
    m_text = tr("There is no picture.");
    setAccessibleDescription(m_text);
    update();
}

QSize LevelBar::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_text), barHeight + textGap + fontMetrics().height()};
}

void LevelBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const auto part = [this](double from, double to) {
        return QRect(int(from * width()), 0, int((to - from) * width()), barHeight);
    };
    painter.fillRect(part(0, 1), QColor::fromRgb(canvascolors::background));
    QColor good = QColor::fromRgb(goodColor);
    const bool isGood = m_share >= lowestGoodLevel && m_share <= highestGoodLevel && !m_isClipped;
    const QRgb color = isGood ? goodColor : m_isClipped ? clippedColor : canvascolors::warning;
    if (m_share >= 0)
        painter.fillRect(part(0, qMin(1.0, m_share)), QColor::fromRgb(color));
    good.setAlpha(goodRangeAlpha);
    painter.fillRect(part(lowestGoodLevel, highestGoodLevel), good);
    painter.setPen(QColor::fromRgb(canvascolors::text));
    for (const double limit : {lowestGoodLevel, highestGoodLevel})
        painter.drawLine(
            part(limit, limit).topLeft(), part(limit, limit).topLeft() + QPoint(0, barHeight - 1));
    painter.setPen(QColor::fromRgb(canvascolors::secondaryText));
    painter.drawText(QRect(0, barHeight + textGap, width(), fontMetrics().height()), Qt::AlignLeft, m_text);
}
