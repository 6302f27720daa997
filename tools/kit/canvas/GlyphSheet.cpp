#include "tools/kit/canvas/GlyphSheet.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace {

constexpr std::string_view glyphCharacters = "0123456789-+.einfa";

QFont numberFont(int pixelSize)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(pixelSize);
    return font;
}

QImage drawGlyph(char character, const QFont &font, const QSizeF &size, double ratio, const QColor &color)
{
    QImage image((size * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(QPointF(0, std::ceil(QFontMetricsF(font).capHeight())), QString(QLatin1Char(character)));
    return image;
}

} // namespace

QSizeF GlyphSheet::glyphSize(int pixelSize)
{
    const QFontMetricsF metrics(numberFont(pixelSize));
    // No character goes below the base line, so little space between two lines is enough.
    const int space = pixelSize / 4;
    return {std::ceil(metrics.horizontalAdvance(QLatin1Char('0'))), std::ceil(metrics.capHeight()) + space};
}

void GlyphSheet::set(int pixelSize, double devicePixelRatio)
{
    if (m_pixelSize == pixelSize && m_devicePixelRatio == devicePixelRatio)
        return;
    m_pixelSize = pixelSize;
    m_devicePixelRatio = devicePixelRatio;
    m_glyphSize = glyphSize(pixelSize);
    m_dark.clear();
    m_light.clear();
    const QFont font = numberFont(pixelSize);
    for (const char character : glyphCharacters) {
        m_dark.push_back(drawGlyph(character, font, m_glyphSize, devicePixelRatio, Qt::black));
        m_light.push_back(drawGlyph(character, font, m_glyphSize, devicePixelRatio, Qt::white));
    }
}

void GlyphSheet::write(QPainter &painter, const QPointF &topLeft, std::string_view text, bool isLight) const
{
    const std::vector<QImage> &glyphs = isLight ? m_light : m_dark;
    QPointF place = topLeft;
    for (const char character : text) {
        const std::size_t index = glyphCharacters.find(character);
        if (index != std::string_view::npos)
            painter.drawImage(place, glyphs[index]);
        place.rx() += m_glyphSize.width();
    }
}
