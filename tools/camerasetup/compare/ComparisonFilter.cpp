#include "tools/camerasetup/compare/ComparisonFilter.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

bool matches(const DifferenceRow &row, const QString &search)
{
    const QString texts[] = {row.title, QString::fromStdString(row.feature.name), row.left, row.right};
    return std::any_of(std::begin(texts), std::end(texts),
        [&search](const QString &text) { return text.contains(search, Qt::CaseInsensitive); });
}

QString translated(const char *text, int number)
{
    return QCoreApplication::translate("ComparisonCounts", text, nullptr, number);
}

} // namespace

bool ComparisonFilter::shows(const DifferenceRow &row) const
{
    if (row.feature.difference == FeatureDifference::Equal && !isEqualShown)
        return false;
    if (row.feature.isIgnorable && !isIgnorableShown)
        return false;
    return matches(row, search.trimmed());
}

ComparisonCounts ComparisonCounts::of(const std::vector<DifferenceRow> &rows)
{
    ComparisonCounts counts;
    for (const DifferenceRow &row : rows) {
        const bool isDifferent = row.feature.difference != FeatureDifference::Equal;
        if (row.feature.isIgnorable) {
            counts.ignorable += int(isDifferent);
            continue;
        }
        ++counts.all;
        counts.different += int(isDifferent);
    }
    return counts;
}

QString ComparisonCounts::summary(const ComparisonFilter &filter) const
{
    const QString numbers = different == 0
        ? translated(QT_TRANSLATE_N_NOOP("ComparisonCounts", "No difference in %n setting(s)."), all)
        : translated(QT_TRANSLATE_N_NOOP("ComparisonCounts", "%n of %1 setting(s) differ."), different)
              .arg(all);
    if (ignorable == 0)
        return numbers;
    const QString besides = filter.isIgnorableShown
        ? translated(QT_TRANSLATE_N_NOOP(
                         "ComparisonCounts", "%n more difference(s) belong to one camera or one moment."),
            ignorable)
        : translated(QT_TRANSLATE_N_NOOP("ComparisonCounts",
                         "%n more difference(s) that belong to one camera or one moment are hidden."),
            ignorable);
    return numbers + QLatin1Char(' ') + besides;
}
