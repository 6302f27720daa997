#include "tools/kit/window/ToolWindow.h"

#include "tools/kit/pages/CameraChooser.h"
#include "tools/kit/pages/NoCameraPage.h"
#include "tools/kit/start/ToolSettings.h"
#include "tools/kit/window/ConnectionBar.h"
#include "tools/kit/window/StartChoice.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QShortcut>
#include <QStackedWidget>
#include <QUrl>
#include <QVBoxLayout>

namespace {

const QString geometryKey = QStringLiteral("window/geometry");
const QString layoutKey = QStringLiteral("window/layout");

/// Returns the display name, by which the launcher lists the camera too.
QString nameOf(const CameraEntry &camera)
{
    return camera.name.isEmpty() ? camera.title() : camera.name;
}

} // namespace

ToolWindow::ToolWindow(const Setup &setup, ToolSettings &settings)
    : m_setup(setup),
      m_settings(settings),
      m_wanted(setup.camera),
      m_features(m_connection),
      m_pages(new QStackedWidget(this)),
      m_searching(new QLabel(this)),
      m_chooser(new CameraChooser(m_finder, this)),
      m_noCamera(new NoCameraPage(this)),
      m_content(new QWidget(this)),
      m_bar(new ConnectionBar(m_connection, m_content))
{
    m_searching->setAlignment(Qt::AlignCenter);
    m_searching->setWordWrap(true);
    m_searching->setTextFormat(Qt::PlainText);
    m_searching->setText(tr("Searching for cameras…"));
    auto *contentLayout = new QVBoxLayout(m_content);
    contentLayout->setContentsMargins(0, 0, 0, 0);
    contentLayout->setSpacing(0);
    contentLayout->addWidget(m_bar);
    for (QWidget *page : {static_cast<QWidget *>(m_searching), static_cast<QWidget *>(m_chooser),
             static_cast<QWidget *>(m_noCamera), m_content})
        m_pages->addWidget(page);
    setCentralWidget(m_pages);
    setWindowTitle(setup.title);

    connect(m_bar, &ConnectionBar::watchRequested, this, [this] { reopen(CvxCPP::CvxAccessWatch); });
    connect(m_bar, &ConnectionBar::controlRequested, this, [this] { reopen(CvxCPP::CvxAccessControl); });
    connect(m_bar, &ConnectionBar::otherCameraRequested, this, &ToolWindow::chooseCamera);
    connect(m_chooser, &CameraChooser::chosen, this, &ToolWindow::openCamera);
    connect(m_noCamera, &NoCameraPage::checked, &m_finder, &CameraFinder::refresh);
    connect(&m_finder, &CameraFinder::changed, this, &ToolWindow::showCameras);
    connect(&m_connection, &CameraConnection::stateChanged, this, &ToolWindow::onConnectionChanged);
    auto *back = new QShortcut(Qt::Key_Escape, m_chooser, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(
        back, &QShortcut::activated, this, &ToolWindow::onConnectionChanged); // Back to the present camera.
    showCameras(); // The camera system may have failed to start.
}

ToolWindow::~ToolWindow()
{
    deleteWidgets();
}

void ToolWindow::deleteWidgets()
{
    qDeleteAll(findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly));
}

void ToolWindow::setContent(QWidget *content)
{
    m_content->layout()->addWidget(content);
    static_cast<QVBoxLayout *>(m_content->layout())->setStretchFactor(content, 1);
}

void ToolWindow::chooseCamera()
{
    m_isDecided = true;
    m_pages->setCurrentWidget(m_chooser);
    m_chooser->setFocus();
}

void ToolWindow::showCameras()
{
    m_noCamera->setProblem(m_finder.problem());
    if (m_isDecided)
        openIfPluggedAgain();
    else
        decide();
}

void ToolWindow::decide()
{
    const StartChoice choice = chooseStart(m_finder.cameras(), m_wanted, m_finder.state());
    switch (choice.page) {
    case StartChoice::Page::Searching:
        break;
    case StartChoice::Page::Open:
        openCamera(m_finder.cameras().at(choice.index));
        break;
    case StartChoice::Page::Choose:
        m_isDecided = m_wanted.isEmpty(); // A camera that was named is opened when it appears.
        m_pages->setCurrentWidget(m_chooser);
        break;
    case StartChoice::Page::NoCamera:
        m_pages->setCurrentWidget(m_noCamera);
        break;
    }
}

void ToolWindow::openCamera(const CameraEntry &camera)
{
    m_isDecided = true;
    if (isOpen(camera)) {
        m_pages->setCurrentWidget(m_content);
        return;
    }
    m_searching->setText(tr("Opening %1…").arg(nameOf(camera)));
    m_connection.open(camera, CvxCPP::CvxAccessControl);
}

bool ToolWindow::isOpen(const CameraEntry &camera) const
{
    const CameraConnection::State state = m_connection.state();
    return (state == CameraConnection::State::Open || state == CameraConnection::State::Lost)
        && camera.id == m_connection.camera().id && m_connection.access() == CvxCPP::CvxAccessControl;
}

void ToolWindow::reopen(CvxCPP::CvxAccess access)
{
    // The list may contain a newer record of the camera, for example after it was plugged in again.
    CameraEntry camera = m_connection.camera();
    for (const CameraEntry &listed : m_finder.cameras()) {
        if (listed.id == camera.id)
            camera = listed;
    }
    m_connection.open(camera, access);
}

void ToolWindow::openIfPluggedAgain()
{
    if (m_connection.state() != CameraConnection::State::Failed)
        return;
    for (const CameraEntry &camera : m_finder.cameras()) {
        if (camera.id == m_connection.camera().id && camera.camera != m_connection.camera().camera)
            reopen(m_connection.access());
    }
}

void ToolWindow::onConnectionChanged()
{
    const CameraConnection::State state = m_connection.state();
    const QString name = nameOf(m_connection.camera());
    setWindowTitle(name.isEmpty() ? m_setup.title : tr("%1 – %2").arg(name, m_setup.title));
    if (state == CameraConnection::State::Opening)
        m_pages->setCurrentWidget(m_searching);
    else if (state != CameraConnection::State::Closed)
        m_pages->setCurrentWidget(m_content);
}

void ToolWindow::addCameraEntries(QMenu *menu)
{
    QAction *const choose = menu->addAction(tr("&Other camera…"), this, &ToolWindow::chooseCamera);
    choose->setShortcut(QKeySequence::Open);
}

void ToolWindow::addQuitEntry(QMenu *menu)
{
    QAction *const quit = menu->addAction(tr("&Quit"), this, [this] { close(); });
    quit->setShortcut(QKeySequence::Quit);
}

void ToolWindow::addHelpMenu(const ShortcutPage::Rows &otherKeys)
{
    QMenu *const menu = menuBar()->addMenu(tr("&Help"));
    QAction *const keys
        = menu->addAction(tr("&Keyboard shortcuts"), this, [this, otherKeys] { showHelp(otherKeys); });
    keys->setShortcut(QKeySequence::HelpContents);
    menu->addAction(tr("&Guide"), this, &ToolWindow::openGuide);
    menu->addAction(tr("&About %1").arg(m_setup.title), this, &ToolWindow::showAbout);
}

void ToolWindow::showHelp(const ShortcutPage::Rows &otherKeys)
{
    auto *page = new ShortcutPage(*this, otherKeys, this);
    page->setAttribute(Qt::WA_DeleteOnClose);
    page->show();
}

void ToolWindow::openGuide()
{
    const QString file
        = QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../doc/index.html"));
    QUrl url = QUrl::fromLocalFile(QDir::cleanPath(file));
    url.setFragment(m_setup.guideChapter);
    if (!QFile::exists(file) || !QDesktopServices::openUrl(url))
        showProblem(tr("The guide cannot be opened: %1").arg(QDir::cleanPath(file)));
}

void ToolWindow::showAbout()
{
    QMessageBox::about(this, m_setup.title,
        tr("%1 of Corvix X, version %2.\n\nFor industrial cameras of any vendor. MIT licence.")
            .arg(m_setup.title, QCoreApplication::applicationVersion()));
}

void ToolWindow::showProblem(const QString &text)
{
    if (!text.isEmpty())
        QMessageBox::warning(this, m_setup.title, text);
}

void ToolWindow::restoreLayout()
{
    if (!restoreGeometry(m_settings.value(geometryKey, QByteArray())))
        resize(QSize(1280, 860).boundedTo(screen()->availableSize() * 9 / 10));
    restoreState(m_settings.value(layoutKey, QByteArray()));
}

void ToolWindow::closeEvent(QCloseEvent *event)
{
    m_settings.setValue(geometryKey, saveGeometry());
    m_settings.setValue(layoutKey, saveState());
    QMainWindow::closeEvent(event);
}
