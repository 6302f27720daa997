#pragma once

#include "CvxCPP/Node.h"
#include "tools/kit/camera/FeatureClient.h"

#include <QString>
#include <QWidget>

class Favourites;
class FeatureFilter;
class FeatureTreeModel;
class FeatureTreeView;
class FilterBar;
class OpeningSnapshot;
class QSettings;
class StreamPauser;
class TreeExpansion;

/// All features of the connected camera by category, with a line for searching, a choice of the visibility
/// level, and filters for the changed features and the favourites. Selected features sit below their selector
/// if it is in the same category. Values are refreshed while they are visible, are marked for a moment when
/// they change, and can be edited in place (F2, Return or double click).
class TreePanel : public QWidget
{
    Q_OBJECT

public:
    /// The objects must outlive the panel.
    TreePanel(
        FeatureClient &client, OpeningSnapshot &opening, Favourites &favourites, QWidget *parent = nullptr);

    /// Allows changes that need a stopped stream.
    void setStreamPauser(StreamPauser *pauser);

    /// Returns the name of the current feature or category; empty if there is none.
    QString currentFeature() const;

    void saveState(QSettings &settings) const; ///< Level, column widths and open categories.
    void restoreState(const QSettings &settings);

public slots:
    /// Makes the feature the current one and shows it. A search, a filter or a level that hides it is given
    /// up.
    void showFeature(const QString &name);

    void focusSearch();

signals:
    void currentChanged(const QString &name);

    /// A person wants to edit the current feature where there is more room, for example a register.
    void detailsRequested();

private:
    void placeParts();
    void connectFavourites(OpeningSnapshot &opening, Favourites &favourites);
    void takeCurrent();
    void rememberCurrent();
    void restoreCurrent();
    void enterTree();

    FeatureTreeModel *m_model;
    FeatureFilter *m_filter;
    FilterBar *m_bar;
    FeatureTreeView *m_view;
    TreeExpansion *m_expansion;
    QString m_current; // Kept while a search hides it.
    bool m_isFiltering = false;
};
