#include "tools/camerasetup/tree/TreeExpansion.h"

#include "tools/camerasetup/tree/FeatureFilter.h"
#include "tools/camerasetup/tree/FeatureTreeView.h"

namespace {

constexpr int smallTree = 60; ///< Features.

} // namespace

TreeExpansion::TreeExpansion(FeatureTreeView &view) : QObject(&view), m_view(view)
{
    FeatureFilter &filter = view.filter();
    connect(&filter, &FeatureFilter::aboutToFilter, this, &TreeExpansion::remember);
    connect(&filter, &FeatureFilter::filtered, this, &TreeExpansion::apply);
    connect(&filter, &QAbstractItemModel::modelAboutToBeReset, this, &TreeExpansion::remember);
    connect(&filter, &QAbstractItemModel::modelReset, this, &TreeExpansion::apply);
    apply();
}

std::optional<QSet<QString>> TreeExpansion::openRows()
{
    remember();
    return m_open;
}

void TreeExpansion::setOpenRows(const QSet<QString> &names)
{
    m_open = names;
    apply();
}

/// Notes the open rows. What is not shown stays as it was.
void TreeExpansion::remember()
{
    if (m_isAllOpen || !m_open)
        return;
    const FeatureFilter &filter = m_view.filter();
    const QSet<QString> present = m_view.rowsWithChildren();
    for (const QString &name : present) {
        const QModelIndex index = filter.indexOf(name);
        if (!index.isValid())
            continue;
        if (m_view.isExpanded(index))
            m_open->insert(name);
        else
            m_open->remove(name);
    }
}

void TreeExpansion::apply()
{
    if (m_view.filter().model().featureCount() == 0)
        return;
    if (!m_open)
        m_open = defaultRows();
    m_isAllOpen = m_view.filter().isNarrow();
    if (m_isAllOpen)
        m_view.expandAll();
    else
        m_view.setOpenRows(*m_open);
}

QSet<QString> TreeExpansion::defaultRows() const
{
    const FeatureTreeModel &model = m_view.filter().model();
    QSet<QString> names;
    if (model.featureCount() > smallTree)
        return names;
    for (const int feature : model.tree().children(FeatureTree::none))
        names.insert(model.name(feature));
    return names;
}
