#pragma once

#include "tools/kit/editors/FeatureEditor.h"
#include "tools/kit/editors/HexBytes.h"

class HexView;
class QLabel;
class QPushButton;

/// The bytes of a register. They are written together: what was typed stays in the view, marked, until it is
/// written or discarded.
class RegisterEditor : public FeatureEditor
{
    Q_OBJECT

public:
    RegisterEditor(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent = nullptr);

protected:
    void showState(const CvxCPP::NodeState &state) override;
    void setEditable(bool isEditable) override;
    void labelChanged() override;

private:
    void write();
    void discard();
    void onEdited();
    void onWritten(const QString &name);
    void showButtons();

    QLabel *m_size;
    QPushButton *m_write;
    QPushButton *m_discard;
    HexView *m_view;
    HexBytes::Bytes m_submitted; ///< What was written last.
};
