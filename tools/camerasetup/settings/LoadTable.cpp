#include "tools/camerasetup/settings/LoadTable.h"

#include "sdk/features/SettingLabel.h"
#include "tools/camerasetup/settings/LoadText.h"
#include "tools/kit/widgets/ToolTip.h"

#include <QColor>
#include <QLocale>

#include <algorithm>
#include <iterator>

namespace {

constexpr QRgb rowColours[] = {0xffef4444, 0xfff59e0b, 0xffe8edf2, 0xff94a3b8}; // By Kind.

QString lineText(unsigned line)
{
    return line > 0 ? QLocale().toString(line) : QString();
}

} // namespace

void LoadTable::show(const SettingsLoad &load)
{
    m_all.clear();
    const LoadReport &report = load.report();
    for (const FeatureNote &note : report.notes)
        m_all.append({Kind::Problem,
            {{}, QString::fromStdString(note.name), {}, {}, {}, QString::fromStdString(note.text)}});
    for (const FeatureFileProblem &problem : load.file().problems)
        m_all.append({Kind::Problem,
            {lineText(problem.line), {}, {}, {}, {},
                tr("The line cannot be read. %1").arg(QString::fromStdString(problem.text))}});
    for (const FeatureChange &change : report.changes)
        m_all.append(rowOf(change, report));
    std::stable_sort(
        m_all.begin(), m_all.end(), [](const Row &left, const Row &right) { return left.kind < right.kind; });
    filter();
}

LoadTable::Row LoadTable::rowOf(const FeatureChange &change, const LoadReport &report)
{
    static constexpr Kind kinds[] = {Kind::Unchanged, Kind::Changed, Kind::Overruled, Kind::Problem};
    const FeatureSetting &setting = change.setting;
    const bool isKnown = report.isApplied && !report.isRestored;
    return {kinds[std::size_t(change.outcome)],
        {lineText(setting.line), QString::fromStdString(settingLabel(setting.name, setting.selectors)),
            QString::fromStdString(change.before), QString::fromStdString(setting.value),
            isKnown ? QString::fromStdString(change.after) : QString(), outcomeText(change, report)}};
}

void LoadTable::setOnlyChanges(bool isOnlyChanges)
{
    m_isOnlyChanges = isOnlyChanges;
    filter();
}

void LoadTable::filter()
{
    beginResetModel();
    m_rows.clear();
    std::copy_if(m_all.begin(), m_all.end(), std::back_inserter(m_rows),
        [this](const Row &row) { return !m_isOnlyChanges || row.kind != Kind::Unchanged; });
    endResetModel();
}

QString LoadTable::text() const
{
    QString text;
    for (int column = 0; column < ColumnCount; ++column)
        text += (column > 0 ? QStringLiteral("\t") : QString())
            + headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    for (const Row &row : m_all) {
        for (int column = 0; column < ColumnCount; ++column)
            text += (column > 0 ? QLatin1Char('\t') : QLatin1Char('\n')) + row.texts[column];
    }
    return text + QLatin1Char('\n');
}

int LoadTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int LoadTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant LoadTable::data(const QModelIndex &index, int role) const
{
    const Row &row = m_rows[index.row()];
    if (role == Qt::DisplayRole)
        return row.texts[index.column()];
    if (role == Qt::ToolTipRole)
        return plainToolTip(row.texts[index.column()]);
    if (role == Qt::ForegroundRole)
        return QColor::fromRgb(rowColours[int(row.kind)]);
    if (role == Qt::TextAlignmentRole && index.column() == LineColumn)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant LoadTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    const QString titles[ColumnCount]
        = {tr("Line"), tr("Feature"), tr("In camera"), tr("New value"), tr("Read back"), tr("Result")};
    return titles[section];
}
