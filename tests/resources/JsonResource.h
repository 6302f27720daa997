#pragma once

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

/// The root object of a JSON file; empty when it cannot be read or parsed.
inline QJsonObject jsonObject(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

/// The elements of an array of strings.
inline QStringList strings(const QJsonValue &array)
{
    QStringList result;
    for (const QJsonValue &value : array.toArray())
        result << value.toString();
    return result;
}
