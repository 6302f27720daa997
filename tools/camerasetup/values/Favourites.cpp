#include "tools/camerasetup/values/Favourites.h"

#include "tools/kit/start/ToolSettings.h"

#include <QStringList>
#include <QUrl>

Favourites::Favourites(ToolSettings &settings, QObject *parent) : QObject(parent), m_settings(settings) { }

namespace {

/// Returns the key of a model. A slash in a model's name would begin a group of settings.
QString favouritesKey(const QString &model)
{
    return QStringLiteral("favourites/%1").arg(QString::fromLatin1(QUrl::toPercentEncoding(model)));
}

} // namespace

void Favourites::setModel(const QString &model)
{
    m_model = model;
    const QStringList features = m_settings.value(favouritesKey(model), QStringList());
    m_features = QSet<QString>(features.begin(), features.end());
    emit modelChanged();
}

void Favourites::set(const QString &feature, bool isFavourite)
{
    if (isFavourite == contains(feature))
        return;
    if (isFavourite)
        m_features.insert(feature);
    else
        m_features.remove(feature);
    QStringList features = m_features.values();
    features.sort();
    m_settings.setValue(favouritesKey(m_model), features);
    emit changed(feature);
}
