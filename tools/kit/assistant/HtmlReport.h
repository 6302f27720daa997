#pragma once

#include "sdk/imagefile/CameraRecord.h"

#include <QByteArray>
#include <QImage>
#include <QString>
#include <QStringList>
#include <QVector>

#include <string>

/// A report of one page: one HTML file that contains its pictures, for browsers and printers.
class HtmlReport
{
public:
    /// @param title For example "Focus Assistant". The report begins with title, date and camera.
    HtmlReport(const QString &title, const CameraRecord &camera);

    void addHeading(const QString &text);
    void addText(const QString &text);
    /// @param rows Cells of each row; plain text.
    void addTable(const QStringList &header, const QVector<QStringList> &rows);
    void addPicture(const QImage &picture, const QString &caption);

    /// Adds the settings of the camera at the end and returns the document, in UTF-8.
    QByteArray html() const;

    /// Writes the document. Returns why that failed; empty if it succeeded.
    std::string write(const std::string &path) const;

private:
    QString m_title;
    CameraRecord m_camera;
    QString m_body;
};
