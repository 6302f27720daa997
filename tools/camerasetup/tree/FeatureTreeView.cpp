#include "tools/camerasetup/tree/FeatureTreeView.h"

#include "tools/camerasetup/tree/FeatureDelegate.h"
#include "tools/camerasetup/tree/FeatureFilter.h"
#include "tools/camerasetup/tree/InPlaceEditor.h"
#include "tools/kit/camera/FeatureClient.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QToolTip>

#include <utility>

using namespace CvxCPP;

namespace {

constexpr int scrollRest = 60; ///< Milliseconds.
constexpr int markInterval = 100;
constexpr int featureWidth = 260;

bool isEditKey(int key)
{
    return key == Qt::Key_F2 || key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

FeatureTreeView::FeatureTreeView(FeatureFilter &filter, FeatureClient &client, QWidget *parent)
    : QTreeView(parent),
      m_filter(filter),
      m_client(client),
      m_delegate(new FeatureDelegate(filter, client, m_marks, this))
{
    setAccessibleName(tr("Features"));
    setItemDelegate(m_delegate);
    setModel(&filter);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setEditTriggers(NoEditTriggers); // Keys and clicks do different things for different features.
    setExpandsOnDoubleClick(false);
    header()->setStretchLastSection(true);
    header()->setSectionsMovable(false);
    header()->resizeSection(FeatureTreeModel::FeatureColumn, featureWidth);

    m_watchTimer.setSingleShot(true);
    m_watchTimer.setInterval(scrollRest);
    m_markTimer.setInterval(markInterval);
    connect(&m_watchTimer, &QTimer::timeout, this, &FeatureTreeView::watchVisible);
    connect(&m_markTimer, &QTimer::timeout, this, &FeatureTreeView::paintMarkedValues);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &FeatureTreeView::noteScrolling);
    connect(&filter.model(), &FeatureTreeModel::valueChanged, this, &FeatureTreeView::markValue);
    connect(&client, &FeatureClient::written, this, &FeatureTreeView::silence);
    connect(&client, &FeatureClient::failed, this, &FeatureTreeView::silence);
}

FeatureTreeView::~FeatureTreeView()
{
    watchOnly({});
}

void FeatureTreeView::setStreamPauser(StreamPauser *pauser)
{
    m_delegate->setStreamPauser(pauser);
    m_filter.model().setStreamCanPause(pauser != nullptr);
}

int FeatureTreeView::currentFeature() const
{
    return m_filter.featureOf(currentIndex());
}

// ---- Open rows --------------------------------------------------------------------------------------------

QSet<QString> FeatureTreeView::rowsWithChildren() const
{
    const FeatureTreeModel &model = m_filter.model();
    QSet<QString> names;
    for (int feature = 0; feature < model.featureCount(); ++feature) {
        if (!model.tree().children(feature).empty())
            names.insert(model.name(feature));
    }
    return names;
}

QSet<QString> FeatureTreeView::openRows() const
{
    const FeatureTreeModel &model = m_filter.model();
    QSet<QString> names;
    for (int feature = 0; feature < model.featureCount(); ++feature) {
        if (!model.tree().children(feature).empty() && isExpanded(m_filter.indexOf(feature)))
            names.insert(model.name(feature));
    }
    return names;
}

void FeatureTreeView::setOpenRows(const QSet<QString> &names)
{
    collapseAll();
    scheduleDelayedItemsLayout(); // One layout for all rows.
    for (const QString &name : names) {
        const QModelIndex index = m_filter.indexOf(name);
        if (index.isValid())
            expand(index);
    }
    executeDelayedItemsLayout();
}

// ---- Watching ---------------------------------------------------------------------------------------------

void FeatureTreeView::noteScrolling()
{
    m_watchTimer.start();
}

void FeatureTreeView::updateGeometries()
{
    QTreeView::updateGeometries();
    m_watchTimer.start(); // Rows were opened, closed or filtered, or the size is another one.
}

void FeatureTreeView::showEvent(QShowEvent *event)
{
    QTreeView::showEvent(event);
    m_watchTimer.start();
}

void FeatureTreeView::hideEvent(QHideEvent *event)
{
    QTreeView::hideEvent(event);
    if (!event->spontaneous())
        watchOnly({});
}

QStringList FeatureTreeView::visibleFeatures() const
{
    QStringList names;
    const int bottom = viewport()->height();
    for (QModelIndex index = indexAt({0, 0}); index.isValid() && visualRect(index).top() < bottom;
         index = indexBelow(index)) {
        const int feature = m_filter.featureOf(index);
        if (m_filter.model().info(feature).type != NodeType::Category)
            names.append(m_filter.model().name(feature));
    }
    return names;
}

void FeatureTreeView::watchVisible()
{
    if (isVisible())
        watchOnly(visibleFeatures());
}

void FeatureTreeView::watchOnly(const QStringList &names)
{
    const QStringList previous = std::exchange(m_watched, names);
    const QSet<QString> known(previous.begin(), previous.end());
    for (const QString &name : names) {
        if (!known.contains(name)) // What has changed since it was visible last is not news.
            m_marks.silence(name, ValueMarks::Clock::now());
    }
    m_client.watch(names); // First, so that a row that stays visible is not read anew.
    m_client.unwatch(previous);
}

// ---- Marks of changed values ------------------------------------------------------------------------------

void FeatureTreeView::markValue(const QString &name)
{
    m_marks.add(name, ValueMarks::Clock::now());
    if (!m_marks.isEmpty() && !m_markTimer.isActive())
        m_markTimer.start();
}

void FeatureTreeView::silence(const QString &name)
{
    m_marks.silence(name, ValueMarks::Clock::now());
}

void FeatureTreeView::paintMarkedValues()
{
    const QStringList names = m_marks.advance(ValueMarks::Clock::now());
    for (const QString &name : names)
        update(m_filter.indexOf(name, FeatureTreeModel::ValueColumn));
    if (m_marks.isEmpty())
        m_markTimer.stop();
}

// ---- Editing ----------------------------------------------------------------------------------------------

InPlaceEditor *FeatureTreeView::openEditor() const
{
    return viewport()->findChild<InPlaceEditor *>();
}

void FeatureTreeView::editCurrent()
{
    const int feature = currentFeature();
    if (feature == FeatureTree::none)
        return;
    const QModelIndex index = m_filter.indexOf(feature, FeatureTreeModel::ValueColumn);
    const FeatureTreeModel &model = m_filter.model();
    const QString reason = model.lockReason(feature);
    if (model.info(feature).type == NodeType::Category)
        setExpanded(m_filter.indexOf(feature), !isExpanded(m_filter.indexOf(feature)));
    else if (!reason.isEmpty())
        showReason(index, reason);
    else if (model.info(feature).type == NodeType::Register)
        emit detailsRequested(); // The bytes need more room.
    else if (!changeAtOnce(feature))
        startEditor(feature);
}

/// Sets a check box or executes a command. Returns false if this needs a question, or another kind of editor.
bool FeatureTreeView::changeAtOnce(int feature)
{
    const FeatureTreeModel &model = m_filter.model();
    const NodeState &state = *model.state(feature);
    if (state.lockReason != LockReason::None)
        return false;
    if (model.info(feature).type == NodeType::Command) {
        if (state.isCommandDone)
            m_client.execute(model.name(feature));
        return true;
    }
    const bool *const isOn = std::get_if<bool>(&state.value);
    if (isOn)
        m_client.write(model.name(feature), !*isOn);
    return isOn;
}

void FeatureTreeView::startEditor(int feature)
{
    const QModelIndex index = m_filter.indexOf(feature, FeatureTreeModel::ValueColumn);
    if (InPlaceEditor *const previous = openEditor())
        closeEditor(previous, QAbstractItemDelegate::NoHint);
    scrollTo(index);
    edit(index);
    auto *const editor = qobject_cast<InPlaceEditor *>(indexWidget(index));
    if (!editor)
        return;
    connect(
        editor, &InPlaceEditor::finished, editor,
        [this, editor] { closeEditor(editor, QAbstractItemDelegate::NoHint); }, Qt::QueuedConnection);
    editor->begin();
}

void FeatureTreeView::showReason(const QModelIndex &index, const QString &reason)
{
    QToolTip::showText(viewport()->mapToGlobal(visualRect(index).bottomLeft()), reason, viewport());
}

void FeatureTreeView::keyPressEvent(QKeyEvent *event)
{
    const int feature = currentFeature();
    const bool isBoolean
        = feature != FeatureTree::none && m_filter.model().info(feature).type == NodeType::Boolean;
    if (isEditKey(event->key()) || (event->key() == Qt::Key_Space && isBoolean))
        editCurrent();
    else
        QTreeView::keyPressEvent(event);
}

void FeatureTreeView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->pos());
    const int feature = m_filter.featureOf(index);
    if (feature == FeatureTree::none || event->button() != Qt::LeftButton)
        return;
    const bool isValue = index.column() == FeatureTreeModel::ValueColumn;
    const NodeType type = m_filter.model().info(feature).type;
    // The second click on a check box would take the first one back.
    if (type == NodeType::Boolean && isValue)
        return;
    if (!isValue && m_filter.hasChildren(index))
        setExpanded(index, !isExpanded(index));
    else if (isValue || type != NodeType::Command) // A command is executed on purpose only.
        editCurrent();
}
