#include "tools/camerasetup/tree/FeatureDelegate.h"

#include "tools/camerasetup/tree/FeatureFilter.h"
#include "tools/camerasetup/tree/InPlaceEditor.h"
#include "tools/camerasetup/tree/MarkPainter.h"

#include <QApplication>
#include <QPainter>

namespace {

constexpr int rowHeight = 28; ///< An editor fits into a row.
constexpr QRgb changedColour = 0xff2196f3;
constexpr double strongestMark = 0.45;

} // namespace

FeatureDelegate::FeatureDelegate(
    const FeatureFilter &filter, FeatureClient &client, const ValueMarks &marks, QObject *parent)
    : QStyledItemDelegate(parent), m_filter(filter), m_client(client), m_marks(marks)
{ }

void FeatureDelegate::paint(
    QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (index.column() == FeatureTreeModel::FeatureColumn) {
        const auto marks = FeatureTreeModel::Marks(index.data(FeatureTreeModel::MarksRole).toInt());
        // The selection also covers the place of the marks, which the text leaves free.
        const QStyle *const style = option.widget ? option.widget->style() : QApplication::style();
        style->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);
        QStyleOptionViewItem textOption = option;
        textOption.rect.setRight(option.rect.right() - marksWidth(marks));
        QStyledItemDelegate::paint(painter, textOption, index);
        paintMarks(*painter, option.rect, marks);
        return;
    }
    QStyledItemDelegate::paint(painter, option, index);
    const int feature = m_filter.featureOf(index);
    const double strength
        = m_marks.isEmpty() ? 0 : m_marks.strength(m_filter.model().name(feature), ValueMarks::Clock::now());
    if (strength <= 0)
        return;
    QColor colour = QColor::fromRgb(changedColour);
    colour.setAlphaF(strength * strongestMark);
    painter->fillRect(option.rect, colour);
}

QSize FeatureDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return {size.width(), qMax(size.height(), rowHeight)};
}

QWidget *FeatureDelegate::createEditor(
    QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &index) const
{
    const int feature = m_filter.featureOf(index);
    return InPlaceEditor::create(m_filter.model().info(feature), m_client, m_pauser, parent);
}

void FeatureDelegate::updateEditorGeometry(
    QWidget *editor, const QStyleOptionViewItem &option, const QModelIndex &) const
{
    if (auto *const inPlace = qobject_cast<InPlaceEditor *>(editor))
        inPlace->setCell(option.rect);
}

/// Leaves keys and focus to the editor, which knows when it is done.
bool FeatureDelegate::eventFilter(QObject *, QEvent *)
{
    return false;
}
