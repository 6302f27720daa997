#include "tools/camerasetup/compare/ComparisonExport.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <array>

namespace {

/// Translates the texts of a report.
struct ReportTexts
{
    Q_DECLARE_TR_FUNCTIONS(ComparisonReport)
};

QString timeText(const ComparisonReport::Side &side)
{
    return QLocale().toString(side.time, QLocale::ShortFormat);
}

/// Returns a value, or a mark where a side lacks the feature.
QString cellText(const QString &value, const ComparisonReport::Row &row, FeatureDifference missing)
{
    return row.difference == missing ? ReportTexts::tr("(missing)") : value;
}

QString remark(const ComparisonReport::Row &row)
{
    if (row.isIgnorable)
        return ReportTexts::tr("belongs to one camera or one moment");
    return row.difference == FeatureDifference::Equal ? ReportTexts::tr("equal") : QString();
}

using Cells = std::array<QString, 4>;

Cells cells(const ComparisonReport::Row &row)
{
    return {row.feature, cellText(row.left, row, FeatureDifference::OnlyRight),
        cellText(row.right, row, FeatureDifference::OnlyLeft), remark(row)};
}

Cells headings()
{
    return {ReportTexts::tr("Feature"), ReportTexts::tr("Left"), ReportTexts::tr("Right"), {}};
}

/// Returns the widths of the columns of the text.
std::array<int, 4> columnWidths(const ComparisonReport &report)
{
    std::array<int, 4> widths{};
    const auto add = [&widths](const Cells &texts) {
        for (std::size_t column = 0; column < widths.size(); ++column)
            widths[column] = std::max(widths[column], texts[column].size());
    };
    add(headings());
    for (const ComparisonReport::Row &row : report.rows)
        add(cells(row));
    return widths;
}

QString textLine(const Cells &texts, const std::array<int, 4> &widths)
{
    QString line = QStringLiteral("  ");
    for (std::size_t column = 0; column < widths.size(); ++column)
        line += texts[column].leftJustified(widths[column] + 2);
    while (line.endsWith(QLatin1Char(' ')))
        line.chop(1);
    return line + QLatin1Char('\n');
}

/// The page is light, because it is also printed.
constexpr char pageStyle[]
    = "body{font:14px sans-serif;color:#1a2332;background:#fff;margin:2em auto;max-width:60em;padding:0 1em}"
      "h1{font-size:1.5em}h2{font-size:1.1em;margin:1.5em 0 .3em;break-after:avoid}"
      "table{border-collapse:collapse;width:100%;table-layout:fixed}"
      "th,td{border-bottom:1px solid #cbd5e1;padding:.3em .5em;text-align:left;vertical-align:top;"
      "overflow-wrap:anywhere}"
      "tr{break-inside:avoid}.name,.remark{color:#64748b;font-size:.85em}.missing{font-style:italic}"
      ".different{font-weight:bold}.ignorable{color:#64748b}"
      "@media print{body{margin:0;max-width:none;font-size:11px}}";

QString element(const char *tag, const QString &text, const char *classes = "")
{
    const QString name = QString::fromLatin1(tag);
    const QString attribute
        = *classes ? QStringLiteral(" class=\"%1\"").arg(QString::fromLatin1(classes)) : QString();
    // Built without arg(), because the text may contain place holders.
    return QLatin1Char('<') + name + attribute + QLatin1Char('>') + text + QStringLiteral("</") + name
        + QLatin1Char('>');
}

QString valueCell(const QString &text, const ComparisonReport::Row &row, FeatureDifference missing)
{
    if (row.difference == missing)
        return element("td", text.toHtmlEscaped(), "missing");
    const bool isMarked = row.difference != FeatureDifference::Equal && !row.isIgnorable;
    return element("td", text.toHtmlEscaped(), isMarked ? "different" : "");
}

QString pageRow(const ComparisonReport::Row &row)
{
    const Cells texts = cells(row);
    QString feature = texts[0].toHtmlEscaped();
    if (row.name != row.feature)
        feature += QStringLiteral("<br>") + element("span", row.name.toHtmlEscaped(), "name");
    if (!texts[3].isEmpty())
        feature += QStringLiteral("<br>") + element("span", texts[3].toHtmlEscaped(), "remark");
    return element("tr",
               element("td", feature) + valueCell(texts[1], row, FeatureDifference::OnlyRight)
                   + valueCell(texts[2], row, FeatureDifference::OnlyLeft),
               row.isIgnorable ? "ignorable" : "")
        + QLatin1Char('\n');
}

QString pageHead(const ComparisonReport &report)
{
    const QString title = ReportTexts::tr("Comparison of camera settings").toHtmlEscaped();
    const auto side = [](const QString &label, const ComparisonReport::Side &content) {
        return element("tr",
            element("th", label.toHtmlEscaped()) + element("td", content.title.toHtmlEscaped())
                + element("td", timeText(content).toHtmlEscaped()));
    };
    return QStringLiteral("<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\">") + element("title", title)
        + element("style", QString::fromLatin1(pageStyle)) + QStringLiteral("</head>\n<body>\n")
        + element("h1", title)
        + element("table", side(headings()[1], report.left) + side(headings()[2], report.right))
        + element("p", report.summary.toHtmlEscaped()) + QLatin1Char('\n');
}

} // namespace

QString comparisonText(const ComparisonReport &report)
{
    QString text = ReportTexts::tr("Comparison of camera settings") + QStringLiteral("\n\n");
    text += ReportTexts::tr("Left: %1, %2").arg(report.left.title, timeText(report.left)) + QLatin1Char('\n');
    text += ReportTexts::tr("Right: %1, %2").arg(report.right.title, timeText(report.right))
        + QLatin1Char('\n');
    text += report.summary + QLatin1Char('\n');
    if (report.rows.isEmpty())
        return text;
    const std::array<int, 4> widths = columnWidths(report);
    text += QLatin1Char('\n') + textLine(headings(), widths);
    QString category;
    for (const ComparisonReport::Row &row : report.rows) {
        if (row.category != category)
            text += row.category + QLatin1Char('\n');
        category = row.category;
        text += textLine(cells(row), widths);
    }
    return text;
}

QString comparisonPage(const ComparisonReport &report)
{
    QString page = pageHead(report);
    QString category;
    QString rows;
    const auto endTable = [&] {
        if (rows.isEmpty())
            return;
        const Cells titles = headings();
        QString head;
        for (std::size_t column = 0; column < 3; ++column)
            head += element("th", titles[column].toHtmlEscaped());
        page += element("h2", category.toHtmlEscaped()) + QLatin1Char('\n')
            + element("table", element("thead", element("tr", head)) + element("tbody", rows))
            + QLatin1Char('\n');
        rows.clear();
    };
    for (const ComparisonReport::Row &row : report.rows) {
        if (row.category != category)
            endTable();
        category = row.category;
        rows += pageRow(row);
    }
    endTable();
    return page + QStringLiteral("</body></html>\n");
}
