// This file implements the camera table of the window: its rows, tooltips, selection and context menu.

#include "ui/MainWindow.h"

#include "ui/GroupMatchDelegate.h"

#include "ui_MainWindow.h"

#include <QBuffer>
#include <QFileInfo>
#include <QHash>
#include <QMenu>
#include <QPixmap>
#include <QProcess>
#include <QSignalBlocker>

namespace {

constexpr int tooltipWidth = 270; // pixels
constexpr int imageCellWidth = 90; // pixels
constexpr int imageCellPadding = 6; // pixels
constexpr int imageWidth = 78; // pixels on every screen: each tooltip contains the scaled picture

/// Returns the interface name by which the camera's producer file is chosen.
QString cameraInterfaceLabel(const CameraInfo &camera)
{
    if (camera.vendorName.contains(QLatin1String("orvelle"), Qt::CaseInsensitive)
        && camera.modelName.contains(QLatin1String("simulator"), Qt::CaseInsensitive))
        return QStringLiteral("Simulator");
    return camera.interfaceType.isEmpty() ? QStringLiteral("Other") : camera.interfaceType;
}

/// Maps picture paths to image cells during one rebuild of the table, because many cameras share a few
/// pictures.
using ImageCells = QHash<QString, QString>;

/// Returns a table cell that contains the picture as data; empty if the picture cannot be loaded.
QString imageCell(const QString &picturePath)
{
    const QPixmap picture(picturePath);
    QByteArray png;
    QBuffer buffer(&png);
    if (picture.isNull() || !buffer.open(QIODevice::WriteOnly))
        return {};
    picture.scaledToWidth(imageWidth, Qt::SmoothTransformation).save(&buffer, "PNG");
    return QStringLiteral("<td width='%1' style='background:white;padding:%2px;vertical-align:middle;"
                          "text-align:center;'><img src='data:image/png;base64,%3' width='%4'></td>")
        .arg(QString::number(imageCellWidth), QString::number(imageCellPadding),
            QString::fromLatin1(png.toBase64()), QString::number(imageWidth));
}

/// Returns one field as a table row; empty if the value is empty.
QString row(const QString &label, const QString &value)
{
    if (value.isEmpty())
        return {};
    return QStringLiteral("<tr><td style='color:#64748b;padding-right:8px;white-space:nowrap;'>%1</td>"
                          "<td style='color:#e8edf2;'>%2</td></tr>")
        .arg(label.toHtmlEscaped(), value.toHtmlEscaped());
}

/// Returns the tooltip's HTML and adds a missing image cell to `imageCells`. `ctiPath` and `thumbnailPath`
/// may be empty.
QString buildCameraTooltip(
    const CameraInfo &camera, const QString &ctiPath, const QString &thumbnailPath, ImageCells &imageCells)
{
    const QString ctiFileName = ctiPath.isEmpty() ? QStringLiteral("-") : QFileInfo(ctiPath).fileName();
    // The placeholder replaces only an empty path. A picture that cannot be loaded is not replaced.
    const QString picture
        = thumbnailPath.isEmpty() ? QStringLiteral(":/images/cameras/camera-placeholder.png") : thumbnailPath;
    if (!imageCells.contains(picture))
        imageCells.insert(picture, imageCell(picture));
    const QString information
        = QStringLiteral(
              "<td style='padding:8px;vertical-align:top;background:#1a2332;'><table cellspacing='2'>")
        + row(MainWindow::tr("Interface"), camera.interfaceType) + row(MainWindow::tr("IP"), camera.ipAddress)
        + row(MainWindow::tr("MAC"), camera.macAddress) + row(MainWindow::tr("CTI file"), ctiFileName)
        + QStringLiteral("</table></td>");
    return QStringLiteral("<table cellspacing='0' cellpadding='0' width='%1' "
                          "style='font-family:Segoe UI;font-size:11px;'><tr>%2%3</tr></table>")
        .arg(tooltipWidth)
        .arg(imageCells.value(picture), information);
}

} // namespace

void MainWindow::setUpCameraTable()
{
    QTableWidget *table = ui->cameraTable;
    auto *delegate = new GroupMatchDelegate(&m_hoveredRow, table);
    for (int column = 0; column < table->columnCount(); ++column)
        table->setItemDelegateForColumn(column, delegate);
    table->setMouseTracking(true);
    table->viewport()->setMouseTracking(true);
    table->viewport()->installEventFilter(this);
}

void MainWindow::setCameras(const QVector<CameraInfo> &cameras)
{
    m_cameras = cameras;
}

void MainWindow::setSelectedCamera(const CameraInfo &camera)
{
    m_selectedCamera = camera;
    m_selectedGroup = {};
    if (!m_selectedCamera.cameraId.isEmpty())
        m_selectedGroup = m_config.findGroupForCamera(m_selectedCamera);
    renderCameraTable();
    renderTools();
}

void MainWindow::renderCameraTable()
{
    QTableWidget *table = ui->cameraTable;
    ImageCells imageCells;
    const QSignalBlocker blocker(table); // Otherwise selectRow() below would re-enter the selection handler.
    table->clearContents();
    table->setRowCount(m_cameras.size());
    for (int r = 0; r < m_cameras.size(); ++r) {
        const CameraInfo &camera = m_cameras.at(r);
        const bool isMatch = !m_selectedGroup.type.isEmpty()
            && m_config.findGroupForCamera(camera).type == m_selectedGroup.type;
        auto *vendor = new QTableWidgetItem(camera.vendorName);
        vendor->setData(GroupMatchDelegate::GroupMatchRole, isMatch);
        table->setItem(r, 0, vendor);

        const QString ctiPath = resolveCtiPath(cameraInterfaceLabel(camera));
        auto *model = new QTableWidgetItem(camera.modelName);
        model->setData(Qt::ToolTipRole,
            buildCameraTooltip(camera, ctiPath, m_config.findThumbnailForCamera(camera), imageCells));
        table->setItem(r, 1, model);

        table->setItem(r, 2, new QTableWidgetItem(camera.serialNumber));

        // Intended: empty fields are equal too, so an empty selection selects the "Scanning..." row.
        if (camera.cameraId == m_selectedCamera.cameraId
            && camera.serialNumber == m_selectedCamera.serialNumber)
            table->selectRow(r);
    }
}

void MainWindow::resizeCameraTableColumns()
{
    const int width = ui->cameraTable->viewport()->width();
    ui->cameraTable->setColumnWidth(0, width / 4);
    ui->cameraTable->setColumnWidth(1, width / 2); // The last column fills the remaining width.
}

void MainWindow::selectCurrentCamera()
{
    const QTableWidgetItem *item = ui->cameraTable->currentItem();
    if (!item)
        return;
    const int r = ui->cameraTable->row(item);
    if (r >= 0 && r < m_cameras.size())
        setSelectedCamera(m_cameras.at(r));
}

void MainWindow::showCameraMenu(const QPoint &position)
{
    const QTableWidgetItem *item = ui->cameraTable->itemAt(position);
    if (!item)
        return;
    const int r = ui->cameraTable->row(item);
    if (r < 0 || r >= m_cameras.size())
        return;
    // The menu uses the file that the last rebuild of the table found, and never searches for files.
    const QString path = m_ctiPathCache.value(cameraInterfaceLabel(m_cameras.at(r)));
    if (path.isEmpty())
        return;
    QMenu menu(this);
    const QAction *location = menu.addAction(tr("CTI location"));
    if (menu.exec(ui->cameraTable->viewport()->mapToGlobal(position)) != location)
        return;
    const QString directory = QFileInfo(path).absolutePath();
    if (!directory.isEmpty())
        QProcess::startDetached(QStringLiteral("xdg-open"), {directory});
}
