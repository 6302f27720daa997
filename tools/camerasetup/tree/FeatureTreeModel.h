#pragma once

#include "CvxCPP/Node.h"
#include "tools/camerasetup/tree/FeatureTree.h"
#include "tools/kit/camera/FeatureClient.h"

#include <QAbstractItemModel>
#include <QFlags>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

/// The features of the connected camera with their values. Rows are replaced only when another camera is
/// opened; while the camera is lost, the model keeps what was read last.
class FeatureTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column
    {
        FeatureColumn,
        ValueColumn,
        columns
    };

    /// What a row is marked with besides its text.
    enum Mark
    {
        ChangedMark = 1, ///< Since the camera was opened.
        FavouriteMark = 2,
        LockedMark = 4 ///< Could be written, but not at present.
    };
    Q_DECLARE_FLAGS(Marks, Mark)

    enum Role
    {
        MarksRole = Qt::UserRole
    };

    using Test = std::function<bool(const QString &name)>;

    explicit FeatureTreeModel(FeatureClient &client, QObject *parent = nullptr);

    /// Sets how it is known which features are marked; call updateMarks() when the answers change.
    void setMarkTests(Test isChanged, Test isFavourite);
    void updateMarks(const QStringList &names);
    void updateAllRows();

    /// Features that the stream locks do not count as locked if the stream can be paused.
    void setStreamCanPause(bool canPause);

    const FeatureTree &tree() const { return m_tree; }
    int featureCount() const { return m_nodes.size(); }

    /// Returns the index of the feature of a row in the list of the camera; FeatureTree::none if invalid.
    static int featureOf(const QModelIndex &index)
    {
        return index.isValid() ? int(index.internalId()) : FeatureTree::none;
    }
    QModelIndex indexOf(int feature, int column = FeatureColumn) const;
    QModelIndex indexOf(const QString &name, int column = FeatureColumn) const;

    const CvxCPP::NodeInfo &info(int feature) const { return m_nodes[feature]; }
    QString name(int feature) const { return QString::fromStdString(m_nodes[feature].name); }
    Marks marks(int feature) const;

    /// Returns what was read last; null if nothing was read.
    const CvxCPP::NodeState *state(int feature) const;

    /// Returns why a person cannot change the feature now; empty if it can be changed.
    QString lockReason(int feature) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    /// Lets a person set a check box.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

signals:
    /// The value of a feature differs from the one that was read before.
    void valueChanged(const QString &name);

    /// updateMarks() or updateAllRows() was called.
    void marksChanged();

private:
    void follow();
    void noteGone();
    void takeState(const QString &name);
    void updateRow(int feature);
    bool isUsable(int feature) const;
    QVariant featureData(int feature, int role) const;
    QVariant valueData(int feature, int role) const;
    QVariant colour(int feature, Column column) const;
    QString textOf(int feature) const;
    QString toolTip(int feature) const;
    QString accessibleText(int feature) const;

    FeatureClient &m_client;
    Test m_isChanged;
    Test m_isFavourite;
    QVector<CvxCPP::NodeInfo> m_nodes;
    FeatureTree m_tree;
    QHash<QString, int> m_features; // By their names.
    QHash<int, CvxCPP::NodeState> m_states;
    bool m_isGone = true;
    bool m_canPause = false;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(FeatureTreeModel::Marks)
