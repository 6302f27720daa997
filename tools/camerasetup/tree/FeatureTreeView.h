#pragma once

#include "tools/camerasetup/tree/ValueMarks.h"

#include <QSet>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QTreeView>

class FeatureClient;
class FeatureDelegate;
class FeatureFilter;
class InPlaceEditor;
class StreamPauser;

/// Shows the tree, and lets the values be edited in their cells. Watches the features of the visible rows,
/// and marks the values that have changed by themselves.
class FeatureTreeView : public QTreeView
{
    Q_OBJECT

public:
    /// The objects must outlive the view.
    FeatureTreeView(FeatureFilter &filter, FeatureClient &client, QWidget *parent = nullptr);
    ~FeatureTreeView() override;

    void setStreamPauser(StreamPauser *pauser);

    FeatureFilter &filter() const { return m_filter; }
    int currentFeature() const; ///< Index in the list of the camera; FeatureTree::none if there is none.

    /// The values that have changed by themselves.
    const ValueMarks &marks() const { return m_marks; }

    /// Returns the editor that is open; null if there is none.
    InPlaceEditor *openEditor() const;

    /// Returns the features with a row below them that are open, of those that the filter shows.
    QSet<QString> openRows() const;

    /// Opens these rows and closes all others.
    void setOpenRows(const QSet<QString> &names);

    /// Returns the features that have rows below them.
    QSet<QString> rowsWithChildren() const;

public slots:
    /// Opens the editor of the current feature, sets a check box or executes a command. If the feature is
    /// locked, shows the reason. A register is left to detailsRequested().
    void editCurrent();

signals:
    /// A person wants to edit the current feature, which has no editor in the tree.
    void detailsRequested();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void updateGeometries() override;

private:
    void noteScrolling();
    void watchVisible();
    QStringList visibleFeatures() const;
    void watchOnly(const QStringList &names);
    void markValue(const QString &name);
    void silence(const QString &name);
    void paintMarkedValues();
    bool changeAtOnce(int feature);
    void startEditor(int feature);
    void showReason(const QModelIndex &index, const QString &reason);

    FeatureFilter &m_filter;
    FeatureClient &m_client;
    ValueMarks m_marks;
    FeatureDelegate *m_delegate;
    QTimer m_watchTimer; // Runs until scrolling has come to rest.
    QTimer m_markTimer; // Runs while a value is marked.
    QStringList m_watched;
};
