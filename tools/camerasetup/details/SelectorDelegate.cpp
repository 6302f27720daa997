#include "tools/camerasetup/details/SelectorDelegate.h"

#include "tools/camerasetup/details/SelectorModel.h"
#include "tools/camerasetup/values/ValueText.h"
#include "tools/kit/editors/NumberText.h"

#include <QComboBox>
#include <QLineEdit>

using namespace CvxCPP;

namespace {

constexpr const char *isFilledName = "isFilled";

const SelectorModel &modelOf(const QModelIndex &index)
{
    return *qobject_cast<const SelectorModel *>(index.model());
}

/// Returns the values of a list; empty if the value is typed.
std::vector<NodeValue> choices(const NodeState &state, const NodeInfo &info)
{
    if (info.type == NodeType::Boolean)
        return {false, true};
    if (info.type != NodeType::Enumeration)
        return {};
    return {state.availableEntries.begin(), state.availableEntries.end()};
}

/// Returns the value without its unit.
QString typedText(const NodeInfo &info, const NodeValue &value)
{
    if (info.type == NodeType::String && std::holds_alternative<std::string>(value))
        return QString::fromStdString(std::get<std::string>(value));
    NodeInfo plain = info;
    plain.unit.clear();
    return plainValueText(plain, value);
}

/// Returns no value for a text that does not describe one.
NodeValue parse(const NodeInfo &info, const QString &text)
{
    if (info.type == NodeType::Integer) {
        const auto integer = parseInteger(text, info.representation);
        return integer ? NodeValue(*integer) : NodeValue();
    }
    if (info.type == NodeType::Float) {
        const auto number = parseFloat(text);
        return number ? NodeValue(*number) : NodeValue();
    }
    return text.toStdString();
}

} // namespace

QWidget *SelectorDelegate::createEditor(
    QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &index) const
{
    const NodeInfo &info = modelOf(index).info(index);
    const std::vector<NodeValue> values = choices(modelOf(index).state(index), info);
    const QString name = QString::fromStdString(info.displayName);
    if (values.empty()) {
        auto *const line = new QLineEdit(parent);
        line->setAccessibleName(name);
        return line;
    }
    auto *const box = new QComboBox(parent);
    box->setAccessibleName(name);
    for (const NodeValue &value : values)
        box->addItem(typedText(info, value), QVariant::fromValue(value));
    return box;
}

void SelectorDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const NodeValue &value = modelOf(index).state(index).value;
    if (auto *const line = qobject_cast<QLineEdit *>(editor)) {
        if (!line->isModified()) // A refresh does not replace what is typed.
            line->setText(typedText(modelOf(index).info(index), value));
        return;
    }
    auto *const box = qobject_cast<QComboBox *>(editor);
    if (box->property(isFilledName).toBool())
        return; // A refresh does not replace what is chosen.
    box->setProperty(isFilledName, true);
    box->setCurrentIndex(-1); // The present value may be none of the list.
    for (int row = 0; row < box->count(); ++row) {
        if (box->itemData(row).value<NodeValue>() == value)
            box->setCurrentIndex(row);
    }
}

void SelectorDelegate::setModelData(
    QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    if (const auto *const box = qobject_cast<QComboBox *>(editor)) {
        if (box->currentIndex() >= 0)
            model->setData(index, box->currentData(), Qt::EditRole);
        return;
    }
    const auto *const line = qobject_cast<QLineEdit *>(editor);
    if (!line->isModified())
        return;
    const NodeValue value = parse(modelOf(index).info(index), line->text());
    const bool isValue = value != NodeValue();
    model->setData(index, isValue ? QVariant::fromValue(value) : QVariant(line->text()), Qt::EditRole);
}
