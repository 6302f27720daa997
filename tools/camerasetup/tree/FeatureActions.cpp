#include "tools/camerasetup/tree/FeatureActions.h"

#include "sdk/features/FeatureText.h"
#include "tools/camerasetup/tree/FeatureFilter.h"
#include "tools/camerasetup/tree/FeatureTreeView.h"
#include "tools/camerasetup/values/Favourites.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QItemSelectionModel>
#include <QMenu>

using CvxCPP::NodeType;

FeatureActions::FeatureActions(FeatureTreeView &view, Favourites &favourites)
    : QObject(&view), m_view(view), m_favourites(favourites)
{
    const auto addSeparator = [this] {
        auto *const separator = new QAction(this);
        separator->setSeparator(true);
        m_view.addAction(separator);
    };
    m_edit = new QAction(tr("Edit"), this);
    connect(m_edit, &QAction::triggered, &view, &FeatureTreeView::editCurrent);
    view.addAction(m_edit);
    m_locking = add(tr("Show Locking Feature"), &FeatureActions::showLockingFeature);
    m_favourite = add(tr("Favourite"), &FeatureActions::toggleFavourite);
    m_favourite->setCheckable(true);
    m_favourite->setShortcut(Qt::CTRL | Qt::Key_D);
    addSeparator();
    m_copyName = add(tr("Copy Name"), &FeatureActions::copyName);
    m_copyValue = add(tr("Copy Value"), &FeatureActions::copyValue);
    m_copySetting = add(tr("Copy \"Name=Value\""), &FeatureActions::copySetting);
    m_copySetting->setShortcut(QKeySequence::Copy);
    addSeparator();
    add(tr("Expand All"), &FeatureActions::expandAll);
    add(tr("Collapse All"), &FeatureActions::collapseAll);

    view.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&view, &QWidget::customContextMenuRequested, this, &FeatureActions::showMenu);
    connect(view.selectionModel(), &QItemSelectionModel::currentChanged, this, &FeatureActions::update);
    update();
}

template <typename Slot>
QAction *FeatureActions::add(const QString &text, Slot slot)
{
    auto *const action = new QAction(text, this);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, slot);
    m_view.addAction(action);
    return action;
}

QString FeatureActions::currentName() const
{
    const int feature = m_view.currentFeature();
    return feature == FeatureTree::none ? QString() : m_view.filter().model().name(feature);
}

/// Returns the value as programs write it.
QString FeatureActions::currentValue() const
{
    const int feature = m_view.currentFeature();
    const CvxCPP::NodeState *const state
        = feature == FeatureTree::none ? nullptr : m_view.filter().model().state(feature);
    return state ? QString::fromStdString(settingText(state->value)) : QString();
}

QString FeatureActions::lockingFeature() const
{
    const int feature = m_view.currentFeature();
    const CvxCPP::NodeState *const state
        = feature == FeatureTree::none ? nullptr : m_view.filter().model().state(feature);
    return state ? QString::fromStdString(state->lockingNode) : QString();
}

void FeatureActions::update()
{
    const int feature = m_view.currentFeature();
    const FeatureTreeModel &model = m_view.filter().model();
    const bool isFeature = feature != FeatureTree::none && model.info(feature).type != NodeType::Category;
    m_edit->setText(isFeature && model.info(feature).type == NodeType::Command ? tr("Run") : tr("Edit"));
    m_edit->setEnabled(isFeature && model.lockReason(feature).isEmpty());
    m_locking->setVisible(model.indexOf(lockingFeature()).isValid());
    m_favourite->setEnabled(isFeature);
    m_favourite->setChecked(isFeature && m_favourites.contains(currentName()));
    m_copyName->setEnabled(feature != FeatureTree::none);
    m_copyValue->setEnabled(isFeature);
    m_copySetting->setEnabled(isFeature);
}

void FeatureActions::showMenu(const QPoint &position)
{
    update(); // The state of the feature may have changed since it became the current one.
    QMenu::exec(m_view.actions(), m_view.viewport()->mapToGlobal(position), nullptr, &m_view);
}

void FeatureActions::copyName()
{
    QGuiApplication::clipboard()->setText(currentName());
}

void FeatureActions::copyValue()
{
    QGuiApplication::clipboard()->setText(currentValue());
}

void FeatureActions::copySetting()
{
    QGuiApplication::clipboard()->setText(currentName() + QLatin1Char('=') + currentValue());
}

void FeatureActions::toggleFavourite()
{
    const QString name = currentName();
    m_favourites.set(name, !m_favourites.contains(name));
}

void FeatureActions::expandAll()
{
    m_view.expandAll();
}

void FeatureActions::collapseAll()
{
    m_view.collapseAll();
}

void FeatureActions::showLockingFeature()
{
    emit featureRequested(lockingFeature());
}
