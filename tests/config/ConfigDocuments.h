#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <initializer_list>

/// These functions build the three configuration documents.
namespace ConfigDocuments {

inline QString operator""_s(const char *string, std::size_t size)
{
    return QString::fromUtf8(string, int(size));
}

inline QString latin1(const char *string)
{
    return QString::fromLatin1(string);
}

inline QJsonObject tool(const char *id, const char *executable = "", const QStringList &platforms = {},
    const QStringList &transports = {})
{
    QJsonObject object{{"id"_s, latin1(id)}, {"name"_s, latin1(id).toUpper()},
        {"executable"_s, latin1(executable)}, {"description"_s, "About "_s + latin1(id)}};
    if (!platforms.isEmpty())
        object.insert("platforms"_s, QJsonArray::fromStringList(platforms));
    if (!transports.isEmpty())
        object.insert("transports"_s, QJsonArray::fromStringList(transports));
    return object;
}

inline QJsonObject group(const char *type, std::initializer_list<QJsonValue> tools = {})
{
    return {{"type"_s, latin1(type)}, {"name"_s, latin1(type).toUpper()}, {"tools"_s, QJsonArray(tools)}};
}

/// Returns a launcher configuration with these groups.
inline QJsonObject groups(std::initializer_list<QJsonValue> objects)
{
    return {{"version"_s, "1.0"_s}, {"hardwareGroups"_s, QJsonArray(objects)}};
}

/// Returns a launcher configuration with all five groups. The groups have no tools.
inline QJsonObject allGroups()
{
    return groups(
        {group("areascan"), group("linescan"), group("highres"), group("other"), group("simulator")});
}

struct Row
{
    const char *model;
    const char *type;
    const char *thumbnail = "assets/cameras/some.png";
};

/// Returns a document of reference cameras with these rows.
inline QJsonObject references(std::initializer_list<Row> rows)
{
    QJsonArray cameras;
    for (const Row &row : rows) {
        cameras.append(QJsonObject{{"model"_s, latin1(row.model)}, {"type"_s, latin1(row.type)},
            {"thumbnail"_s, latin1(row.thumbnail)}});
    }
    return {{"version"_s, "1.0"_s}, {"cameras"_s, cameras}};
}

/// Returns a compatibility table that contains only this model with its tools.
inline QJsonObject compatibility(const char *model, const QStringList &tools)
{
    const QJsonObject entry{{"tools"_s, QJsonArray::fromStringList(tools)}, {"notes"_s, "Ignored."_s}};
    return {{"version"_s, "1.0"_s}, {"cameras"_s, QJsonObject{{latin1(model), entry}}}};
}

inline QByteArray json(const QJsonObject &object)
{
    return QJsonDocument(object).toJson();
}

} // namespace ConfigDocuments
