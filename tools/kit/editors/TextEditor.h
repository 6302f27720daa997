#pragma once

#include "tools/kit/editors/FeatureEditor.h"

class QLabel;
class QLineEdit;

/// A line of text. A text that a person is typing is not replaced. The longest text that the camera accepts
/// is said by the tool tip, and beside the line while a person is typing.
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
    void showLength();

    QLineEdit *m_line;
    QLabel *m_length;
    int m_maxLength = 0; ///< 0 if the camera does not say it.
    QString m_value; ///< What the camera has.
};
