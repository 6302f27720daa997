#pragma once

#include <QObject>
#include <QSet>
#include <QString>

class ToolSettings;

/// The features that a person has marked, for each camera model. Kept in the settings of the tool.
class Favourites : public QObject
{
    Q_OBJECT

public:
    explicit Favourites(ToolSettings &settings, QObject *parent = nullptr);

    /// Reads the favourites of a model. The model may be empty.
    void setModel(const QString &model);

    bool contains(const QString &feature) const { return m_features.contains(feature); }
    void set(const QString &feature, bool isFavourite);

signals:
    void changed(const QString &feature);
    void modelChanged();

private:
    ToolSettings &m_settings;
    QString m_model;
    QSet<QString> m_features;
};
