#include "tools/kit/assistant/HtmlReport.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QLocale>
#include <QSaveFile>

namespace {

/// The texts of every report, and the function that translates them.
class ReportText
{
    Q_DECLARE_TR_FUNCTIONS(HtmlReport)
};

const char style[] = R"(
body { color: #1a2332; font: 15px/1.5 sans-serif; margin: 2em auto; max-width: 60em; padding: 0 1.5em; }
h1 { border-bottom: 2px solid #2196f3; font-size: 1.6em; margin: 0 0 .3em; padding-bottom: .3em; }
h2 { font-size: 1.15em; margin: 1.5em 0 .4em; }
p { margin: .4em 0; white-space: pre-line; }
table { border-collapse: collapse; margin: .5em 0; }
th, td { border-bottom: 1px solid #d5dce5; padding: .25em 1.2em .25em 0; text-align: left; vertical-align: top; }
th { color: #52606f; }
figure { margin: 1em 0; page-break-inside: avoid; }
img { border: 1px solid #d5dce5; max-width: 100%; }
figcaption, footer { color: #52606f; font-size: .9em; }
details table { font-size: .85em; }
@media print { body { margin: 0; max-width: none; } h2 { page-break-after: avoid; } }
)";

QString rowHtml(const QStringList &cells, const QString &tag)
{
    QString html = QStringLiteral("<tr>");
    for (const QString &cell : cells)
        html += QStringLiteral("<%1>%2</%1>").arg(tag, cell.toHtmlEscaped());
    return html + QStringLiteral("</tr>\n");
}

QString tableHtml(const QStringList &header, const QVector<QStringList> &rows)
{
    QString html = QStringLiteral("<table>\n");
    if (!header.isEmpty())
        html += rowHtml(header, QStringLiteral("th"));
    for (const QStringList &row : rows)
        html += rowHtml(row, QStringLiteral("td"));
    return html + QStringLiteral("</table>\n");
}

QString valueText(const nlohmann::ordered_json &value)
{
    return QString::fromStdString(value.is_string() ? value.get<std::string>() : value.dump());
}

QVector<QStringList> cameraRows(const CameraRecord &camera)
{
    const QVector<QStringList> all = {
        {ReportText::tr("Vendor"), QString::fromStdString(camera.vendor)},
        {ReportText::tr("Model"), QString::fromStdString(camera.model)},
        {ReportText::tr("Serial number"), QString::fromStdString(camera.serialNumber)},
        {ReportText::tr("Name"), QString::fromStdString(camera.userName)},
    };
    QVector<QStringList> known;
    for (const QStringList &row : all) {
        if (!row.last().isEmpty())
            known.append(row);
    }
    return known;
}

QString settingsHtml(const CameraRecord &camera)
{
    QVector<QStringList> rows;
    for (const auto &setting : camera.settings.items())
        rows.append({QString::fromStdString(setting.key()), valueText(setting.value())});
    if (rows.isEmpty())
        return {};
    return QStringLiteral("<details open><summary>%1</summary>\n%2</details>\n")
        .arg(ReportText::tr("Settings of the camera").toHtmlEscaped(), tableHtml({}, rows));
}

} // namespace

HtmlReport::HtmlReport(const QString &title, const CameraRecord &camera) : m_title(title), m_camera(camera)
{
    m_body = tableHtml({}, cameraRows(camera));
}

void HtmlReport::addHeading(const QString &text)
{
    m_body += QStringLiteral("<h2>%1</h2>\n").arg(text.toHtmlEscaped());
}

void HtmlReport::addText(const QString &text)
{
    m_body += QStringLiteral("<p>%1</p>\n").arg(text.toHtmlEscaped());
}

void HtmlReport::addTable(const QStringList &header, const QVector<QStringList> &rows)
{
    m_body += tableHtml(header, rows);
}

void HtmlReport::addPicture(const QImage &picture, const QString &caption)
{
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    const QString escaped = caption.toHtmlEscaped();
    m_body += QStringLiteral("<figure><img alt=\"") + escaped
        + QStringLiteral("\" src=\"data:image/png;base64,") + QString::fromLatin1(png.toBase64())
        + QStringLiteral("\"><figcaption>") + escaped + QStringLiteral("</figcaption></figure>\n");
}

QByteArray HtmlReport::html() const
{
    const QString title = m_title.toHtmlEscaped();
    const QLocale locale;
    const QString date = locale.toString(QDateTime::currentDateTime(), QLocale::LongFormat).toHtmlEscaped();
    const QString footer
        = ReportText::tr("Created by Corvix X, version %1.").arg(QCoreApplication::applicationVersion());
    return (QStringLiteral("<!DOCTYPE html>\n<html lang=\"") + locale.bcp47Name()
        + QStringLiteral("\">\n<head>\n<meta charset=\"utf-8\">\n<title>") + title
        + QStringLiteral("</title>\n<style>") + QString::fromLatin1(style)
        + QStringLiteral("</style>\n</head>\n<body>\n<h1>") + title + QStringLiteral("</h1>\n<p>") + date
        + QStringLiteral("</p>\n") + m_body + settingsHtml(m_camera) + QStringLiteral("<footer><p>")
        + footer.toHtmlEscaped() + QStringLiteral("</p></footer>\n</body>\n</html>\n"))
        .toUtf8();
}

std::string HtmlReport::write(const std::string &path) const
{
    QSaveFile file(QFile::decodeName(QByteArray::fromStdString(path)));
    const QByteArray document = html();
    if (file.open(QIODevice::WriteOnly) && file.write(document) == document.size() && file.commit())
        return {};
    return file.errorString().toStdString();
}
