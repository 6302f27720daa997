#pragma once

#include "tools/kit/editors/NumberEditor.h"

/// An integer of 64 bits with limits and increment, written as the camera wants it to be shown.
class IntegerEditor : public NumberEditor
{
    Q_OBJECT

public:
    IntegerEditor(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent = nullptr);

protected:
    QString textOf(const CvxCPP::NodeValue &value) const override;
    CvxCPP::NodeValue parse(const QString &text) const override;
    CvxCPP::NodeValue nearest(const CvxCPP::NodeValue &value) const override;
    CvxCPP::NodeValue stepped(const CvxCPP::NodeValue &value, int steps) const override;
    double toDouble(const CvxCPP::NodeValue &value) const override;
    CvxCPP::NodeValue fromDouble(double value) const override;
    bool wantsSlider() const override;
};
