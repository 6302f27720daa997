#pragma once

#include "tools/kit/editors/FeatureEditor.h"
#include "tools/kit/editors/HexBytes.h"

class HexView;
class QLabel;
class QPushButton;

/// The bytes of a register. They are written together: what was typed stays in the view, marked, until it is
/// written or discarded. A register that can only be written begins with zeros. A register that cannot be
/// read at present is not written, because the bytes that nobody typed are unknown.
class RegisterEditor : public FeatureEditor
{
    Q_OBJECT

public:
    RegisterEditor(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent = nullptr);

    bool hasEdits() const override;

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
    bool m_isWriteOnly = false;
    bool m_isKnown = false; ///< The view contains what the camera has, or what it can be given.
};
