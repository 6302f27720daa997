#include "tools/imageviewer/measuring/StatisticsTable.h"

#include "tools/imageviewer/measuring/ComponentStyle.h"

#include <QClipboard>
#include <QFontInfo>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLocale>
#include <QVariant>

#include <algorithm>
#include <cmath>

namespace {

QStringList rowTitles()
{
    return {StatisticsTable::tr("Component"), StatisticsTable::tr("Minimum"), StatisticsTable::tr("Maximum"),
        StatisticsTable::tr("Mean"), StatisticsTable::tr("Std. deviation"), StatisticsTable::tr("Pixels")};
}

QString numberText(double number, int decimals, const QLocale &locale)
{
    const double size = std::abs(number);
    const bool isPlain = size < 1e9 && (size >= 1e-2 || size == 0);
    return isPlain ? locale.toString(number, 'f', decimals) : locale.toString(number, 'g', 5);
}

/// Returns the cells of a component in the order of the titles.
QStringList texts(const ComponentStatistics &statistics, const QLocale &locale)
{
    const auto isInteger = [](double number) { return number == std::floor(number); };
    const bool hasIntegers = isInteger(statistics.minimum) && isInteger(statistics.maximum);
    const int decimals = hasIntegers ? 0 : 3;
    const int meanDecimals = hasIntegers ? 2 : 3;
    return {componentName(statistics.component), numberText(statistics.minimum, decimals, locale),
        numberText(statistics.maximum, decimals, locale), numberText(statistics.mean, meanDecimals, locale),
        numberText(statistics.deviation, meanDecimals, locale),
        locale.toString(static_cast<qulonglong>(statistics.pixels))};
}

} // namespace

StatisticsTable::StatisticsTable(QWidget *parent) : QWidget(parent)
{
    setAccessibleName(tr("Statistics"));
    auto *const layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(8);
    layout->setVerticalSpacing(3);
    const QStringList titles = rowTitles();
    for (std::size_t row = 1; row < rowCount; ++row) {
        QLabel *const title = addLabel(layout, row, 0);
        title->setText(titles[static_cast<int>(row)]);
        title->setProperty("role", QStringLiteral("secondary"));
    }
    for (std::size_t column = 0; column < maxComponents; ++column) {
        layout->setColumnStretch(static_cast<int>(column) + 1, 1);
        for (std::size_t row = 0; row < rowCount; ++row) {
            m_columns[column][row] = addLabel(layout, row, column + 1);
            m_columns[column][row]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        }
    }
    setStatistics({});
}

QLabel *StatisticsTable::addLabel(QGridLayout *layout, std::size_t row, std::size_t column)
{
    auto *const label = new QLabel;
    QFont smaller
        = label->font(); // Three components with millions of pixels have to fit into a narrow panel.
    smaller.setPointSizeF(0.85 * QFontInfo(smaller).pointSizeF());
    label->setFont(smaller);
    layout->addWidget(label, static_cast<int>(row), static_cast<int>(column));
    return label;
}

void StatisticsTable::setStatistics(const std::vector<ComponentStatistics> &statistics)
{
    m_statistics = statistics;
    for (std::size_t column = 0; column < maxComponents; ++column) {
        const bool hasComponent = column < statistics.size();
        const QStringList cells = hasComponent ? texts(statistics[column], QLocale()) : QStringList();
        for (std::size_t row = 0; row < rowCount; ++row) {
            m_columns[column][row]->setText(cells.value(static_cast<int>(row)));
            m_columns[column][row]->setVisible(
                hasComponent || column == 0); // The first one keeps the height.
        }
        if (hasComponent)
            m_columns[column][0]->setText(
                QStringLiteral("<font color=\"%1\">%2</font>")
                    .arg(componentColor(statistics[column].component).name(), cells[0]));
    }
}

QString StatisticsTable::text() const
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    QStringList lines{rowTitles().join(QLatin1Char('\t'))};
    for (const ComponentStatistics &component : m_statistics)
        lines << texts(component, locale).join(QLatin1Char('\t'));
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

void StatisticsTable::copy()
{
    QGuiApplication::clipboard()->setText(text());
}
