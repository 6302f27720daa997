#include "tools/kit/start/ToolIcons.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QStringList>

namespace {

constexpr double gridSize = 24; // The drawings below use a square of 24 units.
constexpr double lineWidth = 1.8;

/// The drawings, in the order of ToolIcons::Kind. Commands with their numbers: M x y (move), L x y (line),
/// Q x y x y (curve), E x y r (circle), R x y width height (rectangle), A x y r start sweep (arc, in
/// degrees), Z (close). F begins a filled part, S a part that is drawn with a line.
constexpr const char *drawings[] = {
    /* Play */ "F M 7 4.5 L 19.5 12 L 7 19.5 Z",
    /* Stop */ "F R 6 6 12 12",
    /* Pause */ "F R 6 5 4 14 R 14 5 4 14",
    /* Snapshot */ "S M 3 7.5 L 7.5 7.5 L 9 5 L 15 5 L 16.5 7.5 L 21 7.5 L 21 19 L 3 19 Z E 12 13 3.6",
    /* Record */ "F E 12 12 6.5",
    /* Fit */
    "S R 3 5 18 14 M 7 9.5 L 7 9 L 10 9 M 14 15 L 17 15 L 17 12 M 10 9 L 7 9 L 7 12 M 17 12 L 17 15",
    /* ActualSize */ "S M 4.5 8 L 7 6 L 7 18 M 16.5 8 L 19 6 L 19 18 F E 12.2 9.5 1.3 E 12.2 15 1.3",
    /* ZoomIn */ "S E 10.5 10.5 6.5 M 15.3 15.3 L 20.5 20.5 M 7.5 10.5 L 13.5 10.5 M 10.5 7.5 L 10.5 13.5",
    /* ZoomOut */ "S E 10.5 10.5 6.5 M 15.3 15.3 L 20.5 20.5 M 7.5 10.5 L 13.5 10.5",
    /* RotateRight */ "S A 12 13 7 135 -270 F M 18.9 4 L 20.3 11.2 L 13.8 8.6 Z",
    /* RotateLeft */ "S A 12 13 7 45 270 F M 5.1 4 L 3.7 11.2 L 10.2 8.6 Z",
    /* MirrorHorizontal */ "S M 12 3 L 12 21 M 9 6.5 L 3 17.5 L 9 17.5 Z F M 15 6.5 L 21 17.5 L 15 17.5 Z",
    /* MirrorVertical */ "S M 3 12 L 21 12 M 6.5 9 L 17.5 3 L 17.5 9 Z F M 6.5 15 L 17.5 21 L 17.5 15 Z",
    /* FullScreen */
    "S M 4 9 L 4 4 L 9 4 M 15 4 L 20 4 L 20 9 M 20 15 L 20 20 L 15 20 M 9 20 L 4 20 L 4 15",
    /* Grid */
    "S R 4 4 16 16 M 9.33 4 L 9.33 20 M 14.67 4 L 14.67 20 M 4 9.33 L 20 9.33 M 4 14.67 L 20 14.67",
    /* Crosshair */ "S E 12 12 6 M 12 2.5 L 12 9.5 M 12 14.5 L 12 21.5 M 2.5 12 L 9.5 12 M 14.5 12 L 21.5 12",
    /* Region */
    "S M 4 7.5 L 4 5 L 6.5 5 M 10 5 L 14 5 M 17.5 5 L 20 5 L 20 7.5 M 20 10.5 L 20 13.5 M 20 16.5 L 20 19 "
    "L 17.5 19 M 14 19 L 10 19 M 6.5 19 L 4 19 L 4 16.5 M 4 13.5 L 4 10.5",
    /* Line */ "S M 6.2 17.8 L 17.8 6.2 E 4.8 19.2 1.9 E 19.2 4.8 1.9",
    /* Pan */
    "S M 12 4 L 12 20 M 4 12 L 20 12 M 9.5 5.5 L 12 3 L 14.5 5.5 M 9.5 18.5 L 12 21 L 14.5 18.5 "
    "M 5.5 9.5 L 3 12 L 5.5 14.5 M 18.5 9.5 L 21 12 L 18.5 14.5",
    /* Pick */ "S M 13.5 7 L 4.5 16 L 3.5 20.5 L 8 19.5 L 17 10.5 M 11.5 5 L 19 12.5 F E 17.8 6.2 3",
    /* ClipMarks */
    "S E 12 12 4.5 M 12 2 L 12 4 M 12 20 L 12 22 M 2 12 L 4 12 M 20 12 L 22 12 "
    "M 4.9 4.9 L 6.3 6.3 M 17.7 17.7 L 19.1 19.1 M 4.9 19.1 L 6.3 17.7 M 17.7 6.3 L 19.1 4.9 "
    "F A 12 12 4.5 90 180 Z",
    /* Histogram */
    "S M 3.5 20 L 20.5 20 F R 5 13 2.6 5.5 R 8.8 8 2.6 10.5 R 12.6 4 2.6 14.5 R 16.4 11 2.6 7.5",
    /* Settings */
    "S M 3 6.5 L 11 6.5 M 17 6.5 L 21 6.5 M 3 17.5 L 7 17.5 M 13 17.5 L 21 17.5 E 14 6.5 2.6 E 10 17.5 2.6 "
    "M 3 12 L 21 12",
    /* Camera */ "S R 2.5 7 12.5 10 R 15 9 6 6 M 5 17 L 5 20 L 12.5 20 L 12.5 17 F E 5.5 10 1.1",
    /* Folder */ "S M 3 19 L 3 5.5 L 9 5.5 L 11.5 8 L 21 8 L 21 19 Z",
    /* Warning */ "S M 12 3.5 L 21.5 20 L 2.5 20 Z M 12 9.5 L 12 14.3 F E 12 17.2 1.1",
    /* Details */ "S M 9 6 L 21 6 M 9 12 L 21 12 M 9 18 L 21 18 F E 4.5 6 1.4 E 4.5 12 1.4 E 4.5 18 1.4",
    /* Refresh */ "S A 12 12 7.5 60 -200 A 12 12 7.5 240 -130 F M 12.5 1.8 L 18.2 5.6 L 12.8 9 Z",
    /* Copy */ "S R 8.5 8.5 12 12 M 5.5 15.5 L 3.5 15.5 L 3.5 3.5 L 15.5 3.5 L 15.5 5.5",
    /* Close */ "S M 5.5 5.5 L 18.5 18.5 M 18.5 5.5 L 5.5 18.5",
    /* Trigger */ "F M 13.5 2.5 L 5 13.5 L 11 13.5 L 10 21.5 L 19 9.5 L 12.7 9.5 Z",
    /* WhiteBalance */ "S E 12 12 8.5 F A 12 12 8.5 270 180 Z",
    /* Undo */ "S M 8.5 4.5 L 4 9 L 8.5 13.5 M 4 9 L 14.5 9 A 14.5 14 5 90 -180 M 14.5 19 L 9 19",
    /* Redo */ "S M 15.5 4.5 L 20 9 L 15.5 13.5 M 20 9 L 9.5 9 A 9.5 14 5 90 180 M 9.5 19 L 15 19",
    /* Save */ "S M 4 4 L 16.5 4 L 20 7.5 L 20 20 L 4 20 Z R 7.5 13 9 7 R 8 4 7 4.5",
    /* Search */ "S E 10.5 10.5 6.5 M 15.3 15.3 L 20.5 20.5",
    /* Star */
    "F M 12 2.8 L 14.8 9 L 21.4 9.7 L 16.5 14.2 L 17.9 20.8 L 12 17.4 L 6.1 20.8 L 7.5 14.2 L 2.6 9.7 "
    "L 9.2 9 Z",
    /* Lock */ "S A 12 9.5 4 0 180 M 8 9.5 L 8 11.5 M 16 9.5 L 16 11.5 F R 5.5 11.5 13 9",
    /* Compare */ "S R 3.5 4 7 16 R 13.5 4 7 16 M 6 9 L 8 9 M 16 9 L 18 9 M 6 13 L 8 13 M 16 15 L 18 15",
    /* Table */ "S R 3.5 5 17 14 M 3.5 9.7 L 20.5 9.7 M 3.5 14.3 L 20.5 14.3 M 9 5 L 9 19 M 14.8 5 L 14.8 19",
    /* Restore */ "S A 12 12.5 7.5 120 -300 M 12 8 L 12 13 L 15.5 15 F M 3.2 3.6 L 10.4 4.4 L 5.3 9.6 Z",
};
static_assert(sizeof drawings / sizeof *drawings == ToolIcons::count);

struct Shape
{
    QPainterPath filled;
    QPainterPath lines;
};

/// Reads the numbers of a command.
class Numbers
{
public:
    explicit Numbers(const QStringList &words) : m_words(words) { }
    bool isAtEnd() const { return m_next == m_words.size(); }
    QString command() { return m_words[m_next++]; }
    double number() { return m_words[m_next++].toDouble(); }
    QPointF point()
    {
        const double x = number();
        return {x, number()};
    }

private:
    const QStringList m_words;
    int m_next = 0;
};

void addArc(QPainterPath &path, Numbers &numbers)
{
    const QPointF centre = numbers.point();
    const double radius = numbers.number();
    const QRectF square(centre - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius));
    const double start = numbers.number();
    path.arcMoveTo(square, start);
    path.arcTo(square, start, numbers.number());
}

void addCommand(QPainterPath &path, char command, Numbers &numbers)
{
    switch (command) {
    case 'M':
        return path.moveTo(numbers.point());
    case 'L':
        return path.lineTo(numbers.point());
    case 'E': {
        const QPointF centre = numbers.point();
        const double radius = numbers.number();
        return path.addEllipse(centre, radius, radius);
    }
    case 'R': {
        const QPointF corner = numbers.point();
        const QPointF size = numbers.point();
        return path.addRect(QRectF(corner, QSizeF(size.x(), size.y())));
    }
    case 'A':
        return addArc(path, numbers);
    default:
        return path.closeSubpath();
    }
}

Shape shapeOf(ToolIcons::Kind kind)
{
    Shape shape;
    QPainterPath *path = &shape.lines;
    Numbers numbers(QString::fromLatin1(drawings[int(kind)]).split(QLatin1Char(' ')));
    while (!numbers.isAtEnd()) {
        const char command = numbers.command().front().toLatin1();
        if (command == 'F' || command == 'S')
            path = command == 'F' ? &shape.filled : &shape.lines;
        else
            addCommand(*path, command, numbers);
    }
    return shape;
}

class DrawnIcon : public QIconEngine
{
public:
    DrawnIcon(ToolIcons::Kind kind, const QColor &colour) : m_kind(kind), m_colour(colour) { }

    QIconEngine *clone() const override { return new DrawnIcon(m_kind, m_colour); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const QColor colour = mode == QIcon::Disabled ? QColor::fromRgb(ToolIcons::disabledColour) : m_colour;
        const double scale = qMin(rect.width(), rect.height()) / gridSize;
        const Shape shape = shapeOf(m_kind);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF(rect).center());
        painter->scale(scale, scale);
        painter->translate(-gridSize / 2, -gridSize / 2);
        painter->fillPath(shape.filled, colour);
        painter->strokePath(shape.lines, QPen(colour, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

private:
    const ToolIcons::Kind m_kind;
    const QColor m_colour;
};

} // namespace

QIcon ToolIcons::icon(Kind kind, const QColor &colour)
{
    return QIcon(new DrawnIcon(kind, colour));
}
