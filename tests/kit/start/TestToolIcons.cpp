#include "tools/kit/start/ToolIcons.h"

#include <QImage>
#include <QPixmap>
#include <QtTest>

namespace {

QImage picture(ToolIcons::Kind kind, int size, QIcon::Mode mode = QIcon::Normal)
{
    return ToolIcons::icon(kind)
        .pixmap(QSize(size, size), mode)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32);
}

/// Returns true if the pixels that are covered completely have this colour, apart from rounding.
bool isDrawnIn(QRgb colour, const QImage &image)
{
    const auto differs = [](int left, int right) { return qAbs(left - right) > 2; };
    int solidPixels = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qAlpha(pixel) < 255)
                continue;
            ++solidPixels;
            if (differs(qRed(pixel), qRed(colour)) || differs(qGreen(pixel), qGreen(colour))
                || differs(qBlue(pixel), qBlue(colour)))
                return false;
        }
    }
    return solidPixels > 0;
}

bool hasInkAtTheEdge(const QImage &image)
{
    for (int i = 0; i < image.width(); ++i) {
        for (const QPoint edge :
            {QPoint(i, 0), QPoint(0, i), QPoint(i, image.height() - 1), QPoint(image.width() - 1, i)}) {
            if (qAlpha(image.pixel(edge)) != 0)
                return true;
        }
    }
    return false;
}

} // namespace

class TestToolIcons : public QObject
{
    Q_OBJECT

private slots:
    void everyIconIsDrawnInItsColours();
    void noTwoIconsAreEqual();
};

void TestToolIcons::everyIconIsDrawnInItsColours()
{
    for (int kind = 0; kind < ToolIcons::count; ++kind) {
        const QImage image = picture(ToolIcons::Kind(kind), 96);
        QCOMPARE(image.size(), QSize(96, 96));
        QVERIFY2(!hasInkAtTheEdge(image), qPrintable(QString::number(kind))); // Nothing is cut off.
        QVERIFY(isDrawnIn(ToolIcons::normalColour, image));
        QVERIFY(isDrawnIn(ToolIcons::disabledColour, picture(ToolIcons::Kind(kind), 96, QIcon::Disabled)));
    }
}

void TestToolIcons::noTwoIconsAreEqual()
{
    QVector<QImage> images;
    for (int kind = 0; kind < ToolIcons::count; ++kind) {
        const QImage image = picture(ToolIcons::Kind(kind), 24);
        QVERIFY2(!images.contains(image), qPrintable(QString::number(kind)));
        images.append(image);
    }
}

QTEST_MAIN(TestToolIcons)
#include "TestToolIcons.moc"
