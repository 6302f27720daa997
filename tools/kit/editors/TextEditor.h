#pragma once

#include "tools/kit/editors/FeatureEditor.h"

class QLineEdit;

/// A line of text. A text that a person is typing is not replaced.
class TextEditor : public FeatureEditor
{
    Q_OBJECT

public:
    TextEditor(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent = nullptr);

protected:
    void showState(const CvxCPP::NodeState &state) override;
    void setEditable(bool isEditable) override;
    void labelChanged() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void onEditingFinished();

    QLineEdit *m_line;
    QString m_value; ///< What the camera has.
};
