#pragma once

#include "tools/kit/camera/FeatureClient.h"
#include "tools/kit/editors/NumberEditor.h"

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

class FeatureEditor;

/// What a FeatureRow shows.
struct FeatureRowContent
{
    QString label; ///< Translated; empty for the camera's own name of the feature.
    QStringList names; ///< Names that cameras use for the feature; the first one is the present standard's.
    NumberEditor::SliderUse slider = NumberEditor::SliderUse::Never;
    bool isSelector = false; ///< Only shown if there is a choice, and never alone.
};

/// Shows the first of a row's features that the camera implements, which is known once the feature was read.
/// Hidden until then, and if there is none.
class FeatureRow : public QWidget
{
    Q_OBJECT

public:
    FeatureRow(const FeatureRowContent &row, FeatureClient &client, QWidget *parent = nullptr);
    ~FeatureRow() override;

    /// Returns null until the feature is known.
    FeatureEditor *editor() const { return m_editor; }

    /// Returns true if the row only selects what other rows show.
    bool isSelector() const { return m_row.isSelector; }

signals:
    void found(FeatureEditor *editor);

private:
    void tryNext();
    void onStateChanged(const QString &name);
    void decide();
    void place();
    void stopWaiting();

    const FeatureRowContent m_row;
    QPointer<FeatureClient> m_client; ///< Null once it was destroyed.
    int m_next = 0; ///< Index of the name to be tried next.
    QString m_waitingFor; ///< The watched name whose state is not known yet.
    FeatureEditor *m_editor = nullptr;
};
