#include "tools/camerasetup/compare/ComparePanel.h"

#include "tools/camerasetup/compare/CopyActions.h"
#include "tools/camerasetup/compare/DifferenceView.h"
#include "tools/camerasetup/compare/ExportActions.h"
#include "tools/camerasetup/compare/SideBox.h"
#include "tools/camerasetup/compare/SideEntries.h"
#include "tools/kit/camera/CameraFinder.h"
#include "tools/kit/camera/FeatureClient.h"
#include "tools/kit/start/ToolIcons.h"
#include "tools/kit/start/ToolSettings.h"
#include "tools/kit/widgets/Message.h"
#include "tools/kit/widgets/Messages.h"

#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

namespace {

constexpr CompareSession::Side bothSides[] = {CompareSession::Left, CompareSession::Right};

/// Returns the file that is dragged; empty unless it is exactly one.
QString draggedFile(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

QString directoryKey()
{
    return QStringLiteral("compare/directory");
}

} // namespace

ComparePanel::ComparePanel(const Parts &parts, QWidget *parent)
    : QWidget(parent),
      m_parts(parts),
      m_session({parts.client, parts.finder, parts.jobs, parts.history, parts.opening})
{
    setAcceptDrops(true);
    m_view = new DifferenceView(this);
    m_copy = new CopyActions(m_session, *m_view, this);
    m_export = new ExportActions(m_session, *m_view, parts.settings, this);
    m_message = createMessage(this);

    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(createSides());
    layout->addWidget(m_view, 1);
    layout->addWidget(m_message);
    layout->addWidget(createButtons());
    connectParts();
    showSession();
    showComparison();
}

ComparePanel::~ComparePanel()
{
    m_session.disconnect(this); // Its end must not reach parts of the panel that are gone.
}

QWidget *ComparePanel::createSides()
{
    auto *const sides = new QWidget(this);
    m_boxes = {new SideBox(tr("Left"), sides), new SideBox(tr("Right"), sides)};
    m_swap = new QToolButton(sides);
    m_swap->setText(QStringLiteral("\u21c4"));
    m_swap->setToolTip(tr("Swap the sides"));
    m_swap->setAccessibleName(tr("Swap the sides"));
    auto *const layout = new QHBoxLayout(sides);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_boxes[CompareSession::Left], 1);
    layout->addWidget(m_swap);
    layout->addWidget(m_boxes[CompareSession::Right], 1);
    return sides;
}

QWidget *ComparePanel::createButtons()
{
    auto *const buttons = new QWidget(this);
    m_copyButton = new QPushButton(tr("Copy to the ri&ght"), buttons);
    auto *const menu = new QMenu(m_copyButton);
    m_copy->addToMenu(menu);
    m_copyButton->setMenu(menu);
    m_refresh = new QPushButton(tr("&Refresh"), buttons);
    m_refresh->setToolTip(tr("Reads both sides again."));
    m_cancel = new QPushButton(tr("Cancel"), buttons);
    m_progress = new QProgressBar(buttons);
    m_progress->setAccessibleName(tr("Progress"));

    auto *const layout = new QHBoxLayout(buttons);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_copyButton);
    layout->addWidget(m_refresh);
    for (QAction *const action : {m_export->save, m_export->copy}) {
        auto *const button = new QToolButton(buttons);
        button->setDefaultAction(action);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        layout->addWidget(button);
    }
    layout->addWidget(m_progress, 1);
    layout->addWidget(m_cancel);
    layout->addStretch();
    return buttons;
}

void ComparePanel::connectParts()
{
    for (const CompareSession::Side side : bothSides) {
        connect(m_boxes[side], &SideBox::chosen, this,
            [this, side](const SideChoice &choice) { chooseSide(side, choice); });
        connect(m_boxes[side], &SideBox::fileRequested, this, [this, side] { chooseFile(side); });
    }
    connect(m_swap, &QToolButton::clicked, &m_session, &CompareSession::swapSides);
    connect(m_refresh, &QPushButton::clicked, this, &ComparePanel::refresh);
    connect(m_cancel, &QPushButton::clicked, &m_session, &CompareSession::cancel);
    connect(m_view, &DifferenceView::featureRequested, this, &ComparePanel::featureRequested);
    connect(m_view, &DifferenceView::choiceChanged, m_copy, &CopyActions::update);
    connect(m_copy, &CopyActions::finished, this, &ComparePanel::report);
    connect(m_export, &ExportActions::finished, this, &ComparePanel::report);
    connect(&m_session, &CompareSession::changed, this, &ComparePanel::showSession);
    connect(&m_session, &CompareSession::compared, this, &ComparePanel::showComparison);
    connect(&m_parts.jobs, &CameraJobs::changed, this, &ComparePanel::showProgress);
    connect(&m_parts.finder, &CameraFinder::changed, this, &ComparePanel::showSession);
    connect(&m_parts.client, &FeatureClient::nodesLoaded, this, &ComparePanel::readNewSides);
    connect(&m_parts.opening, &OpeningSnapshot::stateChanged, this, &ComparePanel::readNewSides);
    m_parts.client.watch({userSetSelector()});
    connect(&m_parts.client, &FeatureClient::stateChanged, this, &ComparePanel::followUserSets);
}

void ComparePanel::compareWithOpening()
{
    choose({SideChoice::Kind::Opening, {}}, {SideChoice::Kind::Now, {}});
}

void ComparePanel::compareWithFile(const QString &file)
{
    choose({SideChoice::Kind::File, file}, {SideChoice::Kind::Now, {}});
}

void ComparePanel::compareWithUserSet(const QString &userSet)
{
    choose({SideChoice::Kind::UserSet, userSet}, {SideChoice::Kind::Now, {}});
}

void ComparePanel::chooseSide(CompareSession::Side side, const SideChoice &choice)
{
    const CompareSession::Side other
        = side == CompareSession::Left ? CompareSession::Right : CompareSession::Left;
    if (choice == m_session.choice(other))
        m_session.swapSides();
    else if (side == CompareSession::Left)
        choose(choice, m_session.choice(CompareSession::Right));
    else
        choose(m_session.choice(CompareSession::Left), choice);
}

void ComparePanel::choose(const SideChoice &left, const SideChoice &right)
{
    report({}, {});
    if (m_session.isBusy()) {
        showSession(); // The boxes stay enabled, so that they keep the focus; they show the old choice again.
        return;
    }
    askAndRun(m_session.readQuestion(left, right, CompareSession::Reread::Changed),
        [this, left, right] { m_session.choose(left, right); });
}

void ComparePanel::refresh()
{
    report({}, {});
    const SideChoice left = m_session.choice(CompareSession::Left);
    const SideChoice right = m_session.choice(CompareSession::Right);
    askAndRun(
        m_session.readQuestion(left, right, CompareSession::Reread::Both), [this] { m_session.refresh(); });
}

/// Asks the question, if there is one, before the action.
void ComparePanel::askAndRun(const QString &question, const std::function<void()> &action)
{
    if (question.isEmpty()) {
        action();
        return;
    }
    m_question
        = askToOverwrite(this, tr("Compare settings"), question, tr("&Load the user set"), this, action);
    connect(m_question, &QMessageBox::rejected, this, &ComparePanel::readNewSides); // Shows the old choice.
}

void ComparePanel::chooseFile(CompareSession::Side side)
{
    auto *const dialog
        = new QFileDialog(this, tr("Compare with a file"), m_parts.settings.value(directoryKey(), QString()),
            tr("Settings files (*.txt *.pfs *.features);;All files (*)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this,
        [this, side](const QString &path) { takeFile(side, path); });
    connect(dialog, &QFileDialog::rejected, this, &ComparePanel::showSession);
    dialog->open();
}

void ComparePanel::takeFile(CompareSession::Side side, const QString &path)
{
    m_parts.settings.setValue(directoryKey(), QFileInfo(path).absolutePath());
    chooseSide(side, {SideChoice::Kind::File, path});
}

void ComparePanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // Queued, because whoever shows the panel may choose other sides at once.
    QMetaObject::invokeMethod(this, &ComparePanel::readNewSides, Qt::QueuedConnection);
}

/// Reads what was not read yet, for example of a new camera. A user set is only read on request.
void ComparePanel::readNewSides()
{
    showSession();
    const bool isAsking = m_question && m_question->isVisible();
    if (isVisible() && !isAsking && m_parts.client.connection().device())
        m_session.readNew();
}

void ComparePanel::dragEnterEvent(QDragEnterEvent *event)
{
    if (!m_session.isBusy() && !draggedFile(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void ComparePanel::dropEvent(QDropEvent *event)
{
    const bool isRight = event->pos().x() > width() / 2;
    event->acceptProposedAction();
    takeFile(isRight ? CompareSession::Right : CompareSession::Left, draggedFile(*event->mimeData()));
}

void ComparePanel::followUserSets(const QString &feature)
{
    if (feature == userSetSelector())
        showSession();
}

void ComparePanel::showSession()
{
    const bool isBusy = m_session.isBusy();
    for (const CompareSession::Side side : bothSides)
        showSide(side);
    m_swap->setEnabled(!isBusy);
    m_refresh->setEnabled(!isBusy);
    m_cancel->setVisible(isBusy);
    m_progress->setVisible(isBusy);
    m_copy->update();
    m_export->update();
    const QString reason = m_copy->readOnlyReason();
    m_copyButton->setEnabled(!isBusy && reason.isEmpty());
    m_copyButton->setToolTip(
        reason.isEmpty() ? tr("Writes settings of the left side to the right side.") : reason);
    showProgress();
}

void ComparePanel::showSide(CompareSession::Side side)
{
    SideBox &box = *m_boxes[side];
    box.setEntries(sideEntries(m_parts.client, m_parts.finder, m_session, side), m_session.choice(side));
    if (m_session.isRead(side))
        box.setContent(m_session.snapshot(side));
    else
        box.setProblem(m_session.problem(side));
}

void ComparePanel::showComparison()
{
    const bool isComplete = m_session.isRead(CompareSession::Left) && m_session.isRead(CompareSession::Right);
    if (!isComplete) {
        m_view->clear(m_session.isBusy() ? tr("The settings are being read.")
                                         : tr("Choose two sides that can be read."));
        return;
    }
    const SettingTexts texts(m_session.snapshot(CompareSession::Left).side.directory,
        m_session.snapshot(CompareSession::Right).side.directory);
    m_view->setComparison(texts.rows(m_session.features()), m_session.source(CompareSession::Left).title(),
        m_session.source(CompareSession::Right).title());
    m_copy->update();
    m_export->update();
}

void ComparePanel::showProgress()
{
    const CameraJobs &jobs = m_parts.jobs;
    m_progress->setRange(0, int(jobs.total())); // Without a total, the bar only shows that work goes on.
    m_progress->setValue(int(jobs.done()));
    m_progress->setFormat(m_session.activity());
    m_progress->setAccessibleDescription(m_session.activity());
}

void ComparePanel::report(const QString &text, const QString &role)
{
    showMessage(m_message, text, role.toLatin1().constData());
}
