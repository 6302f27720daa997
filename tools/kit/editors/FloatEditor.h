#pragma once

#include "tools/kit/editors/NumberEditor.h"

/// A number with decimals.
class FloatEditor : public NumberEditor
{
    Q_OBJECT

public:
    FloatEditor(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent = nullptr);

protected:
    QString textOf(const CvxCPP::NodeValue &value) const override;
    CvxCPP::NodeValue parse(const QString &text) const override;
    CvxCPP::NodeValue nearest(const CvxCPP::NodeValue &value) const override;
    CvxCPP::NodeValue stepped(const CvxCPP::NodeValue &value, int steps) const override;
    double toDouble(const CvxCPP::NodeValue &value) const override;
    CvxCPP::NodeValue fromDouble(double value) const override;
    bool wantsSlider() const override;
};
