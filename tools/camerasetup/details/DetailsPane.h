#pragma once

#include "tools/camerasetup/details/FeatureFacts.h"
#include "tools/kit/camera/FeatureClient.h"

#include <QHash>
#include <QString>
#include <QVector>
#include <QWidget>

#include <optional>

class ChangeHistory;
class Favourites;
class FeatureEditor;
class OpeningSnapshot;
class PresentSelectors;
class QFormLayout;
class QLabel;
class QPushButton;
class QToolButton;
class QVBoxLayout;
class StreamPauser;

/// Everything about one feature: its path, its editor in full size with the reason if it is locked, what the
/// camera says of it (description, type, unit, limits, increment, access, visibility, representation,
/// selectors, what it selects, what it depends on or is locked by), its name for programs (copy), the value
/// at opening (set back), and a mark for favourites. A category shows its description and what it contains.
class DetailsPane : public QWidget
{
    Q_OBJECT

public:
    /// What the pane works with; everything outlives it.
    struct Parts
    {
        FeatureClient &client;
        const PresentSelectors &selectors;
        const OpeningSnapshot &opening;
        ChangeHistory &history;
        Favourites &favourites;
    };

    explicit DetailsPane(const Parts &parts, QWidget *parent = nullptr);

    /// Allows changes that need a stopped stream.
    void setStreamPauser(StreamPauser *pauser);

    QString feature() const { return m_feature; }

public slots:
    /// Shows a feature; an empty name or an unknown one shows a hint. The feature is kept while the camera is
    /// lost, and when another camera has a feature of this name.
    void setFeature(const QString &name);

signals:
    /// A person wants to see another feature, for example the one that locks this one.
    void featureRequested(const QString &name);

    /// A person wants to see the values of all selector values side by side.
    void tableRequested(const QString &name);

private:
    QWidget *createTop();
    QWidget *createOpeningRow();
    void startAnew();
    void putEditorAway();
    void rebuild();
    void placeEditor(const CvxCPP::NodeInfo &info);
    FeatureEditor *createEditor(const CvxCPP::NodeInfo &info);
    void onStateChanged(const QString &name);
    void showFacts();
    void showOpening();
    void showFavourite();
    QString factText(const FeatureFact &fact) const;
    QString linkTo(const QString &feature) const;
    QVector<FeatureFact> facts(const CvxCPP::NodeInfo &info) const;
    std::optional<CvxCPP::NodeValue> valueAtOpening() const;
    void setBack();
    void copyName() const;

    Parts m_parts;
    StreamPauser *m_pauser = nullptr;
    QString m_feature;
    QWidget *m_content;
    QVBoxLayout *m_editorLayout;
    QFormLayout *m_factLayout;
    QVector<FeatureFact> m_shownFacts;
    FeatureEditor *m_editor = nullptr; ///< Null for a category and while nothing is shown.
    QHash<QString, FeatureEditor *> m_kept; ///< Hidden editors with edits, by their features.
    QLabel *m_hint;
    QLabel *m_path;
    QLabel *m_title;
    QLabel *m_name;
    QLabel *m_description;
    QToolButton *m_star;
    QToolButton *m_copy;
    QWidget *m_openingRow = nullptr;
    QLabel *m_openingText = nullptr;
    QPushButton *m_setBack = nullptr;
    QPushButton *m_table;
};
