#pragma once

#include "tools/camerasetup/tree/FeatureTreeModel.h"
#include "tools/camerasetup/tree/ValueMarks.h"

#include <QStyledItemDelegate>

class FeatureClient;
class FeatureFilter;
class StreamPauser;

/// Paints the rows of the tree with their marks, and creates the editors in them.
class FeatureDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// The objects must outlive the delegate.
    FeatureDelegate(const FeatureFilter &filter, FeatureClient &client, const ValueMarks &marks,
        QObject *parent = nullptr);

    void setStreamPauser(StreamPauser *pauser) { m_pauser = pauser; }

    void paint(
        QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    QWidget *createEditor(
        QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void updateEditorGeometry(
        QWidget *editor, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    // The editor itself reads and writes its feature.
    void setEditorData(QWidget *, const QModelIndex &) const override { }
    void setModelData(QWidget *, QAbstractItemModel *, const QModelIndex &) const override { }

protected:
    bool eventFilter(QObject *editor, QEvent *event) override;

private:
    const FeatureFilter &m_filter;
    FeatureClient &m_client;
    const ValueMarks &m_marks;
    StreamPauser *m_pauser = nullptr;
};
