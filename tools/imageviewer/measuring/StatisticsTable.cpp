#include "tools/imageviewer/measuring/StatisticsTable.h"

#include "tools/imageviewer/measuring/ComponentStyle.h"

#include <QClipboard>
#include <QFontInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>

#include <cmath>

namespace {

constexpr int statisticsRows = 5; // Minimum, maximum, mean, deviation, pixels.

QStringList rowTitles()
{
    return {StatisticsTable::tr("Min."), StatisticsTable::tr("Max."), StatisticsTable::tr("Mean"),
        StatisticsTable::tr("Deviation"), StatisticsTable::tr("Pixels")};
}

/// Returns a number with the digits that its size makes meaningful; integers as they are.
QString numberText(double number, int decimals, const QLocale &locale)
{
    const double size = std::abs(number);
    const bool isPlain = size < 1e9 && (size >= 1e-2 || size == 0);
    return isPlain ? locale.toString(number, 'f', decimals) : locale.toString(number, 'g', 5);
}

QStringList texts(const ComponentStatistics &statistics, const QLocale &locale)
{
    const bool isInteger = statistics.minimum == std::floor(statistics.minimum)
        && statistics.maximum == std::floor(statistics.maximum);
    const int decimals = isInteger ? 0 : 3;
    return {numberText(statistics.minimum, decimals, locale),
        numberText(statistics.maximum, decimals, locale),
        numberText(statistics.mean, decimals == 0 ? 2 : 3, locale),
        numberText(statistics.deviation, decimals == 0 ? 2 : 3, locale),
        locale.toString(static_cast<qulonglong>(statistics.pixels))};
}

} // namespace

StatisticsTable::StatisticsTable(QWidget *parent) : QTableWidget(statisticsRows, 0, parent)
{
    setAccessibleName(tr("Statistics"));
    setToolTip(tr("The deviation is the standard deviation. Ctrl+C copies the table."));
    QFont smaller = font(); // Three components with millions of pixels have to fit into a narrow panel.
    smaller.setPointSizeF(0.85 * QFontInfo(smaller).pointSizeF());
    setFont(smaller);
    setVerticalHeaderLabels(rowTitles());
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::NoSelection);
    setTabKeyNavigation(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setMinimumSectionSize(20);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
}

void StatisticsTable::setStatistics(const std::vector<ComponentStatistics> &statistics)
{
    m_statistics = statistics;
    setColumnCount(static_cast<int>(statistics.size()));
    for (int column = 0; column < columnCount(); ++column) {
        const ComponentStatistics &component = statistics[static_cast<std::size_t>(column)];
        auto *const title = new QTableWidgetItem(componentName(component.component));
        title->setForeground(componentColor(component.component));
        setHorizontalHeaderItem(column, title);
        const QStringList numbers = texts(component, QLocale());
        for (int row = 0; row < statisticsRows; ++row) {
            auto *const item = new QTableWidgetItem(numbers[row]);
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            setItem(row, column, item);
        }
    }
}

QString StatisticsTable::text() const
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    QStringList lines{tr("Component") + QLatin1Char('\t') + rowTitles().join(QLatin1Char('\t'))};
    for (const ComponentStatistics &component : m_statistics)
        lines << componentName(component.component) + QLatin1Char('\t')
                + texts(component, locale).join(QLatin1Char('\t'));
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

QSize StatisticsTable::sizeHint() const
{
    const int rows = statisticsRows * verticalHeader()->defaultSectionSize();
    return {300, rows + horizontalHeader()->sizeHint().height() + 2 * frameWidth()};
}

QSize StatisticsTable::minimumSizeHint() const
{
    return {220, sizeHint().height()};
}

void StatisticsTable::copy()
{
    QGuiApplication::clipboard()->setText(text());
}

void StatisticsTable::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        copy();
    else
        QTableWidget::keyPressEvent(event);
}
