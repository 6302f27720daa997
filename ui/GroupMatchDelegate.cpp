#include "ui/GroupMatchDelegate.h"

#include <QColor>
#include <QPainter>

namespace {

constexpr int barWidth = 3; // pixels

} // namespace

GroupMatchDelegate::GroupMatchDelegate(const int *hoveredRow, QObject *parent)
    : QStyledItemDelegate(parent), m_hoveredRow(hoveredRow)
{ }

void GroupMatchDelegate::paint(
    QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    cell.state &= ~QStyle::State_MouseOver; // The style would tint only one cell of the row.
    const bool selected = option.state & QStyle::State_Selected;
    if (m_hoveredRow && *m_hoveredRow == index.row() && !selected)
        painter->fillRect(option.rect, QColor(QStringLiteral("#243447")));

    QStyledItemDelegate::paint(painter, cell, index);

    if (index.column() != 0 || !index.data(GroupMatchRole).toBool())
        return;
    painter->save();
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor(QStringLiteral("#64748b")));
    painter->drawRect(QRect(option.rect.left(), option.rect.top(), barWidth, option.rect.height()));
    painter->restore();
}
