#pragma once

#include "CvxCPP/Node.h"
#include "tools/camerasetup/tree/FeatureTreeModel.h"

#include <QSortFilterProxyModel>
#include <QString>
#include <QStringList>

#include <vector>

/// The part of the tree that a person wants to see: up to a level, and, if asked for, only what contains some
/// words, what has changed, or the favourites. What is above a match stays visible. If a category has the
/// words in its name, but contains no match, everything in it is shown.
class FeatureFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit FeatureFilter(FeatureTreeModel &model, QObject *parent = nullptr);

    /// Shows the features that contain all of the words of the text in their name, display name or
    /// description.
    void setText(const QString &text);
    void setLevel(CvxCPP::NodeVisibility level);
    void setOnlyChanged(bool isOnly);
    void setOnlyFavourites(bool isOnly);

    /// Takes back everything but the level.
    void clear();

    QString text() const { return m_text; }
    CvxCPP::NodeVisibility level() const { return m_level; }
    bool isOnlyChanged() const { return m_isOnlyChanged; }
    bool isOnlyFavourites() const { return m_isOnlyFavourites; }

    /// Returns true if more than the level can hide a feature.
    bool isNarrow() const { return !m_words.isEmpty() || m_isOnlyChanged || m_isOnlyFavourites; }

    /// Returns how many features would be shown if the level were Guru, besides those that are shown.
    int hiddenByLevel() const { return m_hiddenByLevel; }

    QModelIndex indexOf(int feature, int column = FeatureTreeModel::FeatureColumn) const
    {
        return mapFromSource(m_model.indexOf(feature, column));
    }
    QModelIndex indexOf(const QString &name, int column = FeatureTreeModel::FeatureColumn) const
    {
        return mapFromSource(m_model.indexOf(name, column));
    }
    int featureOf(const QModelIndex &index) const { return FeatureTreeModel::featureOf(mapToSource(index)); }
    FeatureTreeModel &model() const { return m_model; }

signals:
    void aboutToFilter();
    void filtered();

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    enum class Match : char
    {
        None,
        Own,
        Name ///< The words are in the name of a category.
    };

    void noteFeatures();
    void followMarks();
    void refilter();
    Match match(int feature) const;
    bool decide(int feature, bool isInNamedCategory);
    void update();

    FeatureTreeModel &m_model;
    QString m_text;
    QStringList m_words; // In lower case.
    CvxCPP::NodeVisibility m_level = CvxCPP::NodeVisibility::Expert;
    bool m_isOnlyChanged = false;
    bool m_isOnlyFavourites = false;
    std::vector<QString> m_names; // The texts to search, in lower case.
    std::vector<QString> m_texts;
    std::vector<char> m_isAccepted;
    int m_hiddenByLevel = 0;
};
