#pragma once

#include "tools/kit/editors/FeatureEditor.h"

class QComboBox;

/// A choice between the entries of an enumeration. Entries that the camera does not allow at present are
/// greyed out.
class EnumerationEditor : public FeatureEditor
{
    Q_OBJECT

public:
    EnumerationEditor(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent = nullptr);

protected:
    void showState(const CvxCPP::NodeState &state) override;
    void setEditable(bool isEditable) override;
    void labelChanged() override;

private:
    void onActivated(int index);

    QComboBox *m_box;
};
