#pragma once

#include <QObject>
#include <QPoint>
#include <QString>

class Favourites;
class FeatureTreeView;
class QAction;

/// What can be done with the current feature of the tree: the context menu and its keys.
class FeatureActions : public QObject
{
    Q_OBJECT

public:
    /// Adds the actions to the view. The objects must outlive this one.
    FeatureActions(FeatureTreeView &view, Favourites &favourites);

signals:
    void featureRequested(const QString &name);

private:
    template <typename Slot>
    QAction *add(const QString &text, Slot slot);

    void update();
    void showMenu(const QPoint &position);
    void copyName();
    void copyValue();
    void copySetting();
    void toggleFavourite();
    void expandAll();
    void collapseAll();
    void showLockingFeature();
    QString currentName() const;
    QString currentValue() const;
    QString lockingFeature() const;

    FeatureTreeView &m_view;
    Favourites &m_favourites;
    QAction *m_edit;
    QAction *m_copyName;
    QAction *m_copyValue;
    QAction *m_copySetting;
    QAction *m_favourite;
    QAction *m_locking;
};
