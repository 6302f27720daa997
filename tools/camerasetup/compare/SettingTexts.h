#pragma once

#include "sdk/features/FeatureComparison.h"
#include "tools/camerasetup/compare/DifferenceRow.h"

#include <QString>

/// Turns the names and values of features into texts for people, with what the cameras of both sides know.
/// The raw texts stay where no camera knows the feature.
class SettingTexts
{
public:
    /// The directories must outlive the object.
    SettingTexts(const FeatureDirectory &left, const FeatureDirectory &right) : m_left(left), m_right(right)
    { }

    std::vector<DifferenceRow> rows(const std::vector<ComparedFeature> &features) const;

    /// Returns the display name with the selectors, for example "Gain [All]".
    QString title(const ComparedFeature &feature) const;

    QString category(const std::string &name) const;

    /// Returns the value of a settings file as a person reads it, for example "10,000 µs".
    QString value(const std::string &name, const std::string &text) const;

    /// Returns the name for programs with the selectors, for example "Gain [GainSelector=All]".
    static QString rawTitle(const std::string &name, const std::vector<SelectorSetting> &selectors);

private:
    QString displayName(const std::string &name) const;
    const CvxCPP::NodeInfo *find(const std::string &name) const;

    const FeatureDirectory &m_left;
    const FeatureDirectory &m_right;
};
