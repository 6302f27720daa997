#pragma once

#include "tools/kit/editors/FeatureEditor.h"

#include <functional>

class QPushButton;

/// A button that executes a command. It is greyed out until the camera has done the command.
class CommandButton : public FeatureEditor
{
    Q_OBJECT

public:
    CommandButton(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent = nullptr);

    /// Asks before the command is executed. `question` is called at each click; an empty text asks nothing.
    void setQuestion(std::function<QString()> question);

protected:
    void showState(const CvxCPP::NodeState &state) override;
    void setEditable(bool isEditable) override;
    void labelChanged() override;

private:
    void onClicked();

    QPushButton *m_button;
    std::function<QString()> m_question;
    bool m_isDone = true;
};
