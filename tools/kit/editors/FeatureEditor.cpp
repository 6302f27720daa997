#include "tools/kit/editors/FeatureEditor.h"

#include "tools/kit/editors/EditorNote.h"

#include <QEvent>
#include <QGridLayout>
#include <QHideEvent>
#include <QLabel>

#include <utility>

using CvxCPP::LockReason;

namespace {

constexpr int labelColumn = 0;
constexpr int controlColumn = 1;
constexpr int controlRow = 0;
constexpr int noteRow = 9; ///< The wide controls are between the two rows.
constexpr int columns = 2;
constexpr int columnGap = 8;
constexpr int rowGap = 2;

/// Returns true if the line below the control says why the feature is locked. A value that the camera only
/// reports needs no excuse, and that nothing can be changed while watching is said once by the window.
bool isWorthANote(LockReason reason)
{
    return reason == LockReason::NotAvailable || reason == LockReason::LockedByNode
        || reason == LockReason::StreamRunning;
}

} // namespace

FeatureEditor::FeatureEditor(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent)
    : QWidget(parent),
      m_info(info),
      m_feature(QString::fromStdString(info.name)),
      m_client(&client),
      m_layout(new QGridLayout(this)),
      m_label(new QLabel(QString::fromStdString(info.displayName), this)),
      m_note(new EditorNote(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setHorizontalSpacing(columnGap);
    m_layout->setVerticalSpacing(rowGap);
    m_layout->setColumnStretch(controlColumn, 1);
    m_layout->addWidget(m_label, controlRow, labelColumn);
    m_layout->addWidget(m_note, noteRow, labelColumn, 1, columns);
    m_label->setProperty("role", QStringLiteral("secondary"));
    m_label->setWordWrap(true);

    connect(m_note, &EditorNote::accepted, this, &FeatureEditor::acceptQuestion);
    connect(m_note, &EditorNote::rejected, this, &FeatureEditor::rejectQuestion);
    connect(m_note, &EditorNote::unlockRequested, this, &FeatureEditor::unlock);
    connect(m_note, &EditorNote::featureRequested, this,
        [this] { emit featureRequested(advice().lockingFeature); });
    connect(&client, &FeatureClient::stateChanged, this, &FeatureEditor::onStateChanged);
    connect(&client, &FeatureClient::written, this, &FeatureEditor::onWritten);
    connect(&client, &FeatureClient::failed, this, &FeatureEditor::onFailed);
    connect(&client, &FeatureClient::nodesLoaded, this, &FeatureEditor::onNodesLoaded);
    connect(&client, &FeatureClient::nodesGone, this, &FeatureEditor::refresh);
}

FeatureEditor::~FeatureEditor()
{
    // A line that loses the focus now would report its text, but the derived class is gone.
    const auto controls = findChildren<QWidget *>();
    for (const QWidget *const control : controls)
        control->disconnect(this);
    stopWatching();
}

void FeatureEditor::setLabel(const QString &text)
{
    m_label->setText(text);
    labelChanged();
}

QString FeatureEditor::label() const
{
    return m_label->text();
}

void FeatureEditor::setLabelWidth(int width)
{
    m_hasLabel = width > 0;
    m_label->setVisible(m_hasLabel && !m_isLabelInControl);
    m_label->setFixedWidth(width);
    m_layout->setColumnMinimumWidth(labelColumn, width);
    m_layout->setHorizontalSpacing(m_hasLabel ? columnGap : 0);
    labelChanged();
}

void FeatureEditor::setStreamPauser(StreamPauser *pauser)
{
    m_pauser = pauser;
    refresh();
}

void FeatureEditor::setLockHelp(bool isOffered)
{
    m_hasLockHelp = isOffered;
    refresh();
}

bool FeatureEditor::isEditable() const
{
    const CvxCPP::NodeState *const read = state();
    if (!read || m_isPausing)
        return false;
    return read->lockReason == LockReason::None
        || (read->lockReason == LockReason::StreamRunning && m_pauser);
}

QString FeatureEditor::lockReason() const
{
    return advice().reason;
}

/// Returns no advice if the feature can be changed.
LockAdvice FeatureEditor::advice() const
{
    const CvxCPP::NodeState *const read = state();
    if (!read || isEditable())
        return {};
    const QString lockingNode = QString::fromStdString(read->lockingNode);
    return lockAdvice(*read, m_client->info(lockingNode), m_client->state(lockingNode));
}

QString FeatureEditor::noteText() const
{
    return m_note->text();
}

void FeatureEditor::setControl(QWidget *control)
{
    const int column = m_isLabelInControl ? labelColumn : controlColumn;
    m_layout->addWidget(control, controlRow, column, 1, columns - column);
    m_label->setBuddy(control);
    const QString tip = QString::fromStdString(m_info.toolTip.empty() ? m_info.description : m_info.toolTip);
    m_label->setToolTip(tip);
}

void FeatureEditor::addWideControl(QWidget *control)
{
    m_layout->addWidget(control, controlRow + 1, labelColumn, 1, columns);
}

void FeatureEditor::hideLabel()
{
    m_isLabelInControl = true;
    m_label->hide();
}

void FeatureEditor::showRemark(const QString &text)
{
    m_remark = text;
    showNote();
}

const CvxCPP::NodeState *FeatureEditor::state() const
{
    return m_client->state(m_feature);
}

void FeatureEditor::refresh()
{
    const CvxCPP::NodeState *const read = state();
    if (!read) {
        m_action = {};
        m_isPausing = false; // If another camera is opened, the result never arrives.
    }
    followLockingFeature();
    // The question is about the value that is shown, so this value stays until the answer.
    if (read && !m_action && !m_isPausing && !m_client->isWriting(m_feature))
        showState(*read);
    setEditable(isEditable());
    showNote();
}

void FeatureEditor::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (std::exchange(m_isWatching, true))
        return;
    m_client->watch({m_feature});
    refresh();
}

void FeatureEditor::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (!event->spontaneous())
        stopWatching();
}

bool FeatureEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel || qobject_cast<QWidget *>(watched)->hasFocus())
        return QWidget::eventFilter(watched, event);
    event->ignore(); // The scroll area gets the event.
    return true;
}

void FeatureEditor::onNodesLoaded()
{
    forgetMessages(); // They were about the camera's loss, or about another camera.
    refresh();
}

void FeatureEditor::onStateChanged(const QString &name)
{
    const CvxCPP::NodeState *const read = state();
    const bool isOwn = name == m_feature;
    if (isOwn && read && read->value != m_submitted && !m_isPausing)
        m_remark.clear(); // It was about a value that is gone.
    if (isOwn || name == m_lockingFeature)
        refresh();
}

void FeatureEditor::onWritten(const QString &name)
{
    if (name != m_feature)
        return;
    m_error.clear();
    refresh();
}

void FeatureEditor::onFailed(const QString &name, const QString &text)
{
    const bool isUnlocking = name == m_lockingFeature && m_hasLockHelp;
    if (name != m_feature && !isUnlocking)
        return;
    m_error = text;
    refresh();
}

/// Watches the feature that is responsible for the lock, because the advice depends on its value.
void FeatureEditor::followLockingFeature()
{
    const CvxCPP::NodeState *const read = m_isWatching ? state() : nullptr;
    const QString locking = read ? QString::fromStdString(read->lockingNode) : QString();
    const QString previous = std::exchange(m_lockingFeature, locking);
    if (previous == locking)
        return;
    if (!locking.isEmpty())
        m_client->watch({locking});
    if (!previous.isEmpty())
        m_client->unwatch({previous});
}

void FeatureEditor::showNote()
{
    if (m_action)
        return;
    const CvxCPP::NodeState *const read = state();
    const LockAdvice found = advice();
    const QString &lock = found.reason;
    if (!m_error.isEmpty())
        m_note->showError(m_error);
    else if (!m_remark.isEmpty())
        m_note->showRemark(m_remark);
    else if (read && !lock.isEmpty() && m_hasLockHelp)
        m_note->showLock(lock, found.unlockText, found.showText);
    else if (read && !lock.isEmpty() && isWorthANote(read->lockReason))
        m_note->showLock(lock);
    else
        m_note->clear();
    setToolTip(lock);
}

void FeatureEditor::stopWatching()
{
    // The members of a window, such as the client, are destroyed before its widgets.
    if (!std::exchange(m_isWatching, false) || !m_client)
        return;
    m_client->unwatch({m_feature});
    followLockingFeature();
}

void FeatureEditor::forgetMessages()
{
    m_error.clear();
    m_remark.clear();
    m_action = {};
}
