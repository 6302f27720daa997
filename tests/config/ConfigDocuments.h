#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <initializer_list>

/// Short ways to write the three configuration documents in tests.
namespace ConfigDocuments {

inline QString latin1(const char *text)
{
    return QString::fromLatin1(text);
}

/// An array of texts; nothing at all for an empty list.
inline QJsonValue list(const QStringList &texts)
{
    return texts.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonArray::fromStringList(texts);
}

inline QJsonObject tool(const char *id, const char *executable = "", const QStringList &platforms = {},
    const QStringList &transports = {})
{
    return {{latin1("id"), latin1(id)}, {latin1("name"), latin1(id).toUpper()},
        {latin1("executable"), latin1(executable)}, {latin1("description"), latin1("About ") + latin1(id)},
        {latin1("platforms"), list(platforms)}, {latin1("transports"), list(transports)}};
}

inline QJsonObject group(const char *type, std::initializer_list<QJsonObject> tools = {})
{
    QJsonArray array;
    for (const QJsonObject &object : tools)
        array.append(object);
    return {
        {latin1("type"), latin1(type)}, {latin1("name"), latin1(type).toUpper()}, {latin1("tools"), array}};
}

/// The launcher document.
inline QJsonObject groups(std::initializer_list<QJsonObject> objects)
{
    QJsonArray array;
    for (const QJsonObject &object : objects)
        array.append(object);
    return {{latin1("version"), latin1("1.0")}, {latin1("hardwareGroups"), array}};
}

/// All five groups, without tools.
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

/// The cameras reference document.
inline QJsonObject references(std::initializer_list<Row> rows)
{
    QJsonArray array;
    for (const Row &row : rows)
        array.append(QJsonObject{{latin1("model"), latin1(row.model)}, {latin1("type"), latin1(row.type)},
            {latin1("thumbnail"), latin1(row.thumbnail)}});
    return {{latin1("version"), latin1("1.0")}, {latin1("cameras"), array}};
}

struct Code
{
    const char *model;
    QStringList tools;
};

/// The compatibility document.
inline QJsonObject compatibility(std::initializer_list<Code> codes)
{
    QJsonObject cameras;
    for (const Code &code : codes)
        cameras.insert(latin1(code.model),
            QJsonObject{{latin1("tools"), QJsonArray::fromStringList(code.tools)},
                {latin1("notes"), latin1("Ignored.")}});
    return {{latin1("version"), latin1("1.0")}, {latin1("cameras"), cameras}};
}

inline QByteArray json(const QJsonObject &object)
{
    return QJsonDocument(object).toJson();
}

} // namespace ConfigDocuments
