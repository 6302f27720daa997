#pragma once

#include "tools/kit/editors/FeatureEditor.h"

class QCheckBox;

/// A check box.
class BooleanEditor : public FeatureEditor
{
    Q_OBJECT

public:
    BooleanEditor(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent = nullptr);

protected:
    void showState(const CvxCPP::NodeState &state) override;
    void setEditable(bool isEditable) override;
    void labelChanged() override;

private:
    QCheckBox *m_box;
};
