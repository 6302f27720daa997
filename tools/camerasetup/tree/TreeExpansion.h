#pragma once

#include <QObject>
#include <QSet>
#include <QString>

#include <optional>

class FeatureTreeView;

/// Keeps the open rows of the tree: while a search or a filter is in use, everything is open; afterwards, the
/// rows that were open before. At the first start, the categories at the top are open if the tree is small.
class TreeExpansion : public QObject
{
    Q_OBJECT

public:
    explicit TreeExpansion(FeatureTreeView &view);

    /// Returns the rows to be open without a search; no value if no camera was opened yet.
    std::optional<QSet<QString>> openRows();
    void setOpenRows(const QSet<QString> &names);

private:
    void remember();
    void apply();
    QSet<QString> defaultRows() const;

    FeatureTreeView &m_view;
    std::optional<QSet<QString>> m_open;
    bool m_isAllOpen = false; // The filter is narrow.
};
