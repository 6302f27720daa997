#pragma once

#include <QStyledItemDelegate>

/// Paints the cells of the camera table: a tint on the hovered row, and a bar at the left edge of each row
/// whose camera belongs to the selected camera's hardware group.
class GroupMatchDelegate : public QStyledItemDelegate
{
public:
    /// Item data role of the first column: bool, whether the row has the bar.
    static constexpr int GroupMatchRole = Qt::UserRole + 1;

    /// `hoveredRow` may be null; it is read by every paint() and has to outlive the delegate.
    GroupMatchDelegate(const int *hoveredRow, QObject *parent);

    void paint(
        QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    const int *m_hoveredRow;
};
