#include "tools/camerasetup/history/HistoryModel.h"

#include "sdk/features/SettingLabel.h"
#include "tools/camerasetup/values/ChangeHistory.h"
#include "tools/camerasetup/values/ValueText.h"

#include <QColor>
#include <QGuiApplication>
#include <QLocale>
#include <QPalette>

using namespace CvxCPP;

namespace {

/// Returns the colour of rows that do not count any more.
QColor undoneColor()
{
    return QGuiApplication::palette().color(QPalette::Disabled, QPalette::Text);
}

QString timeText(const QDateTime &time)
{
    return QLocale().toString(time.time(), QStringLiteral("HH:mm:ss"));
}

} // namespace

HistoryModel::HistoryModel(ChangeHistory &history, QObject *parent)
    : QAbstractTableModel(parent), m_history(history)
{
    connect(&history, &ChangeHistory::changed, this, &HistoryModel::follow);
    follow();
}

/// Adds the new rows, so that the selection of the others stays. The values of old rows may have changed.
void HistoryModel::follow()
{
    const QVector<HistoryEntry> &entries = m_history.entries();
    const int count = countEdits();
    const int lastEntry = m_rows.isEmpty() ? -1 : m_rows.last().entry;
    if (count < m_rows.size() || lastEntry >= entries.size()) {
        beginResetModel();
        m_rows.clear();
    } else if (count > m_rows.size()) {
        beginInsertRows({}, m_rows.size(), count - 1);
    }
    const bool isReset = m_rows.isEmpty() && lastEntry >= 0;
    const int shown = m_rows.size();
    for (int entry = isReset ? 0 : lastEntry + 1; entry < entries.size(); ++entry) {
        for (int edit = 0; edit < int(entries[entry].edits.size()); ++edit)
            m_rows.append({entry, edit});
    }
    if (isReset)
        endResetModel();
    else if (count > shown)
        endInsertRows();
    if (shown > 0)
        emit dataChanged(index(0, 0), index(shown - 1, NewValue));
}

int HistoryModel::countEdits() const
{
    int count = 0;
    for (const HistoryEntry &entry : m_history.entries())
        count += int(entry.edits.size());
    return count;
}

const HistoryEntry &HistoryModel::entryOf(int row) const
{
    return m_history.entries()[m_rows[row].entry];
}

const FeatureEdit &HistoryModel::editOf(int row) const
{
    return entryOf(row).edits[std::size_t(m_rows[row].edit)];
}

QString HistoryModel::featureName(int row) const
{
    return QString::fromStdString(editOf(row).name);
}

int HistoryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int HistoryModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : NewValue + 1;
}

QVariant HistoryModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const int row = index.row();
    switch (role) {
    case Qt::DisplayRole:
        return text(row, index.column());
    case rawTextRole:
        return rawText(row, index.column());
    case Qt::ForegroundRole:
        return entryOf(row).isUndone ? QVariant(undoneColor()) : QVariant();
    case Qt::ToolTipRole:
        return toolTip(row, index.column());
    default:
        return {};
    }
}

QString HistoryModel::text(int row, int column) const
{
    const auto directory = m_history.directory();
    const FeatureEdit &edit = editOf(row);
    const NodeInfo *const node = directory ? directory->find(edit.name) : nullptr;
    switch (column) {
    case Time:
        return timeText(entryOf(row).time);
    case Feature:
        return featureText(row);
    case OldValue:
        return edit.before ? settingValueText(node, *edit.before) : QString();
    default:
        return settingValueText(node, edit.after);
    }
}

/// Returns the display name with the selectors' values, for example "Gain [Red]", after what was done.
QString HistoryModel::featureText(int row) const
{
    const auto directory = m_history.directory();
    const FeatureEdit &edit = editOf(row);
    const NodeInfo *const node = directory ? directory->find(edit.name) : nullptr;
    QString feature = node ? QString::fromStdString(node->displayName) : QString();
    if (feature.isEmpty())
        feature = QString::fromStdString(edit.name);
    QStringList selectors;
    for (const SelectorSetting &selector : edit.selectors)
        selectors.append(
            settingValueText(directory ? directory->find(selector.name) : nullptr, selector.value));
    feature = withSelectors(feature, selectors);
    switch (entryOf(row).kind) {
    case HistoryEntry::Kind::Command:
        return tr("Executed: %1").arg(feature);
    case HistoryEntry::Kind::Undo:
        return tr("Undo: %1").arg(feature);
    case HistoryEntry::Kind::Redo:
        return tr("Redo: %1").arg(feature);
    default:
        return feature;
    }
}

QString HistoryModel::rawText(int row, int column) const
{
    const FeatureEdit &edit = editOf(row);
    switch (column) {
    case Time:
        return entryOf(row).time.toString(Qt::ISODate);
    case Feature:
        return QString::fromStdString(settingLabel(edit.name, edit.selectors));
    case OldValue:
        return QString::fromStdString(edit.before.value_or(std::string()));
    default:
        return QString::fromStdString(edit.after);
    }
}

QString HistoryModel::toolTip(int row, int column) const
{
    constexpr int maxLength = 500; // A register may have thousands of digits.
    const QString raw = rawText(row, column).left(maxLength).toHtmlEscaped();
    const QString title = entryOf(row).title.left(maxLength).toHtmlEscaped();
    QString text = column == Feature && entryOf(row).kind == HistoryEntry::Kind::Load
        ? title + QStringLiteral("<br>") + raw
        : raw;
    if (entryOf(row).isUndone)
        text += QStringLiteral("<br>") + tr("This change was undone.");
    // Without the tag, Qt may show the escaped characters of a short text.
    return text.isEmpty() ? text : QStringLiteral("<qt>") + text;
}

QVariant HistoryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    const QString titles[] = {tr("Time"), tr("Feature"), tr("Old value"), tr("New value")};
    return titles[section];
}
