#include "tools/camerasetup/tree/TreePanel.h"

#include "tools/camerasetup/tree/FeatureActions.h"
#include "tools/camerasetup/tree/FeatureFilter.h"
#include "tools/camerasetup/tree/FeatureTreeModel.h"
#include "tools/camerasetup/tree/FeatureTreeView.h"
#include "tools/camerasetup/tree/FilterBar.h"
#include "tools/camerasetup/tree/FilterHint.h"
#include "tools/camerasetup/tree/TreeExpansion.h"
#include "tools/camerasetup/values/Favourites.h"
#include "tools/camerasetup/values/LevelText.h"
#include "tools/camerasetup/values/OpeningSnapshot.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QSettings>
#include <QVBoxLayout>

#include <algorithm>

using CvxCPP::NodeVisibility;

namespace {

QString levelKey()
{
    return QStringLiteral("tree/level");
}

QString openRowsKey()
{
    return QStringLiteral("tree/openRows");
}

QString headerKey()
{
    return QStringLiteral("tree/header");
}

} // namespace

TreePanel::TreePanel(FeatureClient &client, OpeningSnapshot &opening, Favourites &favourites, QWidget *parent)
    : QWidget(parent),
      m_model(new FeatureTreeModel(client, this)),
      m_filter(new FeatureFilter(*m_model, this)),
      m_bar(new FilterBar(*m_filter, this)),
      m_view(new FeatureTreeView(*m_filter, client, this)),
      m_expansion(new TreeExpansion(*m_view))
{
    // The tree is opened anew before the current row is looked for.
    connect(m_filter, &FeatureFilter::aboutToFilter, this, &TreePanel::rememberCurrent);
    connect(m_filter, &FeatureFilter::filtered, this, &TreePanel::restoreCurrent);
    connect(m_filter, &QAbstractItemModel::modelAboutToBeReset, this, &TreePanel::rememberCurrent);
    connect(m_filter, &QAbstractItemModel::modelReset, this, &TreePanel::restoreCurrent);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this, &TreePanel::takeCurrent);
    connect(m_bar, &FilterBar::left, this, &TreePanel::enterTree);
    connect(m_view, &FeatureTreeView::detailsRequested, this, &TreePanel::detailsRequested);
    connectFavourites(opening, favourites);
    placeParts();
}

void TreePanel::placeParts()
{
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_bar);
    layout->addWidget(m_view, 1);
    layout->addWidget(new FilterHint(*m_filter, this));
    setFocusProxy(m_view);
}

void TreePanel::connectFavourites(OpeningSnapshot &opening, Favourites &favourites)
{
    m_model->setMarkTests([&opening](const QString &name) { return opening.isChanged(name); },
        [&favourites](const QString &name) { return favourites.contains(name); });
    connect(&opening, &OpeningSnapshot::changedFeatures, m_model, &FeatureTreeModel::updateMarks);
    connect(&opening, &OpeningSnapshot::stateChanged, m_model, &FeatureTreeModel::updateAllRows);
    connect(&favourites, &Favourites::changed, m_model,
        [this](const QString &name) { m_model->updateMarks({name}); });
    connect(&favourites, &Favourites::modelChanged, m_model, &FeatureTreeModel::updateAllRows);
    auto *const actions = new FeatureActions(*m_view, favourites);
    connect(actions, &FeatureActions::featureRequested, this, &TreePanel::showFeature);
}

void TreePanel::setStreamPauser(StreamPauser *pauser)
{
    m_view->setStreamPauser(pauser);
}

// ---- The current feature ----------------------------------------------------------------------------------

QString TreePanel::currentFeature() const
{
    return m_current;
}

void TreePanel::takeCurrent()
{
    const int feature = m_view->currentFeature();
    if (m_isFiltering || feature == FeatureTree::none || m_model->name(feature) == m_current)
        return;
    m_current = m_model->name(feature);
    emit currentChanged(m_current);
}

/// Keeps the current feature: the view takes another one if its row vanishes.
void TreePanel::rememberCurrent()
{
    m_isFiltering = true;
}

void TreePanel::restoreCurrent()
{
    m_isFiltering = false;
    const QModelIndex index = m_filter->indexOf(m_current);
    m_view->setCurrentIndex(index);
    if (index.isValid())
        m_view->scrollTo(index);
    else
        m_view->scrollToTop();
}

void TreePanel::showFeature(const QString &name)
{
    const QModelIndex source = m_model->indexOf(name);
    if (!source.isValid())
        return;
    if (!m_filter->indexOf(name).isValid())
        m_filter->clear();
    const NodeVisibility level = m_model->info(FeatureTreeModel::featureOf(source)).visibility;
    if (!m_filter->indexOf(name).isValid() && level != NodeVisibility::Invisible)
        m_filter->setLevel(level);
    const QModelIndex index = m_filter->indexOf(name);
    if (!index.isValid())
        return;
    m_view->setCurrentIndex(index);
    m_view->scrollTo(index);
}

void TreePanel::focusSearch()
{
    m_bar->focusSearch();
}

/// Goes from the line for searching to the tree.
void TreePanel::enterTree()
{
    m_view->setFocus(Qt::TabFocusReason);
    QModelIndex index = m_view->currentIndex();
    if (!index.isValid()) { // The first match, which is below its categories.
        index = m_filter->index(0, 0);
        while (m_filter->isNarrow() && m_filter->hasChildren(index))
            index = m_filter->index(0, 0, index);
    }
    m_view->setCurrentIndex(index);
}

// ---- What is remembered -----------------------------------------------------------------------------------

void TreePanel::saveState(QSettings &settings) const
{
    settings.setValue(levelKey(), int(m_filter->level()));
    settings.setValue(headerKey(), m_view->header()->saveState());
    if (const auto rows = m_expansion->openRows())
        settings.setValue(openRowsKey(), QStringList(rows->begin(), rows->end()));
}

void TreePanel::restoreState(const QSettings &settings)
{
    const auto level = NodeVisibility(settings.value(levelKey(), int(m_filter->level())).toInt());
    if (std::find(shownLevels.begin(), shownLevels.end(), level) != shownLevels.end())
        m_filter->setLevel(level);
    m_view->header()->restoreState(settings.value(headerKey()).toByteArray());
    if (!settings.contains(openRowsKey()))
        return;
    const QStringList rows = settings.value(openRowsKey()).toStringList();
    m_expansion->setOpenRows(QSet<QString>(rows.begin(), rows.end()));
}
