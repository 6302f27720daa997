#pragma once

#include "tools/camerasetup/details/SelectorCalls.h"
#include "tools/kit/camera/FeatureClient.h"

#include <QAbstractTableModel>
#include <QVector>

/// The cells of a SelectorTable: one row per feature, one column per value of the selector.
class SelectorModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit SelectorModel(FeatureClient &client, QObject *parent = nullptr);

    /// Shows other features, without values.
    void setRows(const CvxCPP::NodeInfo &selector, const QVector<CvxCPP::NodeInfo> &features);

    /// Shows what was read for the present rows.
    void setValues(const SelectorValues &values);

    void clear();

    const CvxCPP::NodeInfo &info(const QModelIndex &index) const { return m_features[index.row()]; }
    const CvxCPP::NodeState &state(const QModelIndex &index) const;

    /// Returns the value of the selector to which the column belongs, as the text of a settings file.
    const std::string &selectorValue(const QModelIndex &index) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// Asks for a change; the cell shows it once it was read from the camera. Refuses a text.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

signals:
    void changeRequested(const QModelIndex &index, const CvxCPP::NodeValue &value);

    /// A person has typed something that is no value of the feature.
    void refused(const QModelIndex &index, const QString &text);

private:
    bool isEditable(const QModelIndex &index) const;
    QString lockReason(const QModelIndex &index) const;
    QString columnTitle(int column) const;

    FeatureClient &m_client;
    CvxCPP::NodeInfo m_selector;
    QVector<CvxCPP::NodeInfo> m_features;
    std::vector<SelectorColumn> m_columns;
};
