// Prints a line for each pair of measurements: the milliseconds from a click on a row until the table and the
// tiles are redrawn, and the milliseconds to load, scale and encode each picture of the table once.
//
// usage: bench_select_row INSTALLATION CAMERAS PAIRS

#include "bench/programs/ReferenceCameras.h"
#include "config/LauncherConfig.h"
#include "ui/MainWindow.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QPixmap>
#include <QSet>
#include <QStyleFactory>
#include <QTableWidget>
#include <QTest>

#include <cstdio>

namespace {

constexpr int pictureWidth = 78; // Pictures in a tooltip have this width in pixels.

void settle()
{
    while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) { }
}

double milliseconds(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

double select(QTableWidget &table, int row)
{
    const QPoint place = table.visualItemRect(table.item(row, 0)).center();
    QElapsedTimer timer;
    timer.start();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    settle();
    return milliseconds(timer);
}

double encode(const QSet<QString> &pictures)
{
    QElapsedTimer timer;
    timer.start();
    for (const QString &path : pictures) {
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        QPixmap(path).scaledToWidth(pictureWidth, Qt::SmoothTransformation).save(&buffer, "PNG");
        if (png.toBase64().isEmpty())
            qFatal("No picture: %s", qPrintable(path));
    }
    return milliseconds(timer);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
    QApplication application(argc, argv);
    QFile styleSheet(QStringLiteral(":/styles/style.qss"));
    if (argc != 4 || !styleSheet.open(QIODevice::ReadOnly))
        return EXIT_FAILURE;
    application.setStyleSheet(QString::fromUtf8(styleSheet.readAll()));

    const QVector<CameraInfo> cameras = referenceCameras(QString::fromLocal8Bit(argv[2]).toInt());
    LauncherConfig config;
    config.load();
    QSet<QString> pictures;
    for (const CameraInfo &camera : cameras)
        pictures.insert(config.findThumbnailForCamera(camera));

    MainWindow window(nullptr);
    window.loadConfig(QFile::decodeName(argv[1]));
    window.setCameras(cameras);
    window.setSelectedCamera({});
    window.show();
    auto *table = window.findChild<QTableWidget *>(QStringLiteral("cameraTable"));
    if (!QTest::qWaitForWindowExposed(&window) || table->rowCount() != cameras.size())
        return EXIT_FAILURE;
    settle();

    // The first pair, number -1, is not printed.
    for (int pair = -1; pair < QString::fromLocal8Bit(argv[3]).toInt(); ++pair) {
        const int row = pair & 1;
        const double ours = select(*table, row);
        if (table->currentRow() != row || !table->item(row, 0)->isSelected())
            return EXIT_FAILURE;
        const double floor = encode(pictures);
        if (pair >= 0)
            std::printf("%.3f %.3f\n", ours, floor);
    }
}
