#pragma once

#include <QStyledItemDelegate>

/// Paints the cells of the camera table: a tint on the hovered row, and a bar at the left edge of each row
/// whose camera belongs to the selected camera's hardware group.
class GroupMatchDelegate : public QStyledItemDelegate
{
public:
    /// The item data with this role is a bool. It is true in the first column if the row has the bar.
    static constexpr int GroupMatchRole = Qt::UserRole + 1;

    /// Every paint() reads `*hoveredRow`. The pointer may be null; otherwise its target has to outlive the
    /// delegate.
    GroupMatchDelegate(const int *hoveredRow, QObject *parent);

    void paint(
        QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    const int *m_hoveredRow;
};
