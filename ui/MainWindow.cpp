#include "ui/MainWindow.h"

#include "ui/GroupMatchDelegate.h"

#include "ui_MainWindow.h"

#include <QApplication>
#include <QCursor>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>
#include <QScrollBar>
#include <QTimer>
#include <QUrl>
#include <QWindow>

namespace {

constexpr qreal cornerRadius = 12.0; // pixels
constexpr int scrollBarWidth = 8; // pixels; the style sheet contains the same width

QColor backgroundColor()
{
    return QColor(QStringLiteral("#0f1419"));
}

/// Returns true if only the desktop can move windows. A Wayland client cannot read or set the positions of
/// its windows.
bool onlyDesktopMovesWindows()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

} // namespace

MainWindow::MainWindow(QWidget *parent) : QMainWindow(parent), ui(std::make_unique<Ui_MainWindow>())
{
    ui->setupUi(this);
    setUpCameraTable();
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground, true);

    connect(ui->refreshBtn, &QPushButton::clicked, this, [this] { emit requestRefreshCameras(); });
    connect(ui->cameraTable, &QTableWidget::itemSelectionChanged, this, &MainWindow::selectCurrentCamera);
    ui->cameraTable->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(ui->cameraTable, &QTableWidget::customContextMenuRequested, this, &MainWindow::showCameraMenu);
    connect(ui->aboutQt_, &QPushButton::clicked, this, [this] { showMenu(); });
    ui->documentationBtn->setToolTip(tr("Documentation"));
    connect(ui->documentationBtn, &QPushButton::clicked, this, [this] { openDocumentation(); });

    ui->linkLabel->setText(
        QStringLiteral("<style>a:link { color: #00A3FF; }a:visited { color: #0077CC; }</style>"
                       "<a href=\"https://www.orvelle.example\">orvelle.example</a>"));
    ui->linkLabel->setTextFormat(Qt::RichText);
    ui->linkLabel->setTextInteractionFlags(Qt::TextBrowserInteraction);
    ui->linkLabel->setOpenExternalLinks(true);

    applyStyle();
    for (int column = 0; column < ui->cameraTable->columnCount(); ++column) {
        if (QTableWidgetItem *header = ui->cameraTable->horizontalHeaderItem(column))
            header->setData(Qt::TextAlignmentRole, int(Qt::AlignLeft | Qt::AlignVCenter));
    }
    // The viewport does not have its final width until the window has been laid out.
    QTimer::singleShot(0, this, &MainWindow::resizeCameraTableColumns);
}

MainWindow::~MainWindow() = default;

void MainWindow::setRefreshEnabled(bool enabled)
{
    ui->refreshBtn->setEnabled(enabled);
}

void MainWindow::paintEvent(QPaintEvent *)
{
    // The window is translucent, so Qt does not paint its background.
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(backgroundColor());
    painter.drawRoundedRect(QRect(0, 0, width(), height()), cornerRadius, cornerRadius, Qt::AbsoluteSize);
}

void MainWindow::mousePressEvent(QMouseEvent *event)
{
    const bool onHeader = ui->widget->frameGeometry().contains(event->localPos().toPoint());
    if (onHeader && event->button() == Qt::LeftButton && onlyDesktopMovesWindows()) {
        // The desktop ends the move, and the window receives no release event.
        windowHandle()->startSystemMove();
    } else if (onHeader && event->button() == Qt::LeftButton) {
        m_dragging = true;
        m_dragPosition = event->screenPos().toPoint() - frameGeometry().topLeft();
    }
    QWidget::mousePressEvent(event);
}

void MainWindow::mouseMoveEvent(QMouseEvent *event)
{
    // Intended: only m_dragging decides whether the window moves. The pressed buttons do not matter.
    if (m_dragging)
        move(event->screenPos().toPoint() - m_dragPosition);
}

void MainWindow::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_dragging = false;
}

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    QWidget *viewport = ui->cameraTable->viewport();
    if (watched == viewport && event->type() == QEvent::MouseMove) {
        const QPoint position = static_cast<QMouseEvent *>(event)->localPos().toPoint();
        const int row = ui->cameraTable->rowAt(position.y());
        if (row != m_hoveredRow) {
            m_hoveredRow = row;
            viewport->update();
        }
    } else if (watched == viewport && event->type() == QEvent::Leave) {
        m_hoveredRow = -1;
        viewport->update();
    }
    return QObject::eventFilter(watched, event);
}

void MainWindow::applyStyle()
{
    QPalette palette;
    palette.setBrush(QPalette::Window, backgroundColor());
    palette.setBrush(QPalette::Base, backgroundColor());
    QWidget *const tileArea[]
        = {ui->toolsScroll, ui->toolsScroll->viewport(), ui->toolsScrollContent, ui->toolsContainer};
    for (QWidget *widget : tileArea) {
        widget->setPalette(palette);
        widget->setAutoFillBackground(true);
    }
    ui->toolsScroll->verticalScrollBar()->setFixedWidth(scrollBarWidth);
    ui->cameraTable->verticalScrollBar()->setFixedWidth(scrollBarWidth);
}

void MainWindow::showMenu()
{
    QMenu menu(this);
    const QAction *aboutQt = menu.addAction(tr("About Qt"));
    if (menu.exec(QCursor::pos()) == aboutQt)
        QApplication::aboutQt();
}

void MainWindow::openDocumentation()
{
    const QUrl url = QUrl::fromLocalFile(QDir(m_installRoot).filePath(QStringLiteral("doc/index.html")));
    const bool missing = url.isLocalFile() && !QFileInfo::exists(url.toLocalFile());
    if (!missing && QDesktopServices::openUrl(url))
        return;
    QMessageBox::warning(this, tr("Documentation"),
        tr("Unable to open documentation at:\n%1").arg(url.toDisplayString()), QMessageBox::Ok,
        QMessageBox::NoButton);
}
