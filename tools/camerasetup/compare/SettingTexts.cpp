#include "tools/camerasetup/compare/SettingTexts.h"

#include "tools/camerasetup/values/ValueText.h"

#include <QCoreApplication>
#include <QStringList>

using namespace CvxCPP;

std::vector<DifferenceRow> SettingTexts::rows(const std::vector<ComparedFeature> &features) const
{
    std::vector<DifferenceRow> rows;
    rows.reserve(features.size());
    for (const ComparedFeature &feature : features) {
        DifferenceRow row{feature, title(feature), category(feature.category),
            value(feature.name, feature.left), value(feature.name, feature.right)};
        const bool looksEqual = feature.difference == FeatureDifference::Different && row.left == row.right;
        if (looksEqual) { // For example, two entries with the same display name.
            row.left = QString::fromStdString(feature.left);
            row.right = QString::fromStdString(feature.right);
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

QString SettingTexts::title(const ComparedFeature &feature) const
{
    QStringList selectors;
    for (const SelectorSetting &selector : feature.selectors)
        selectors.append(value(selector.name, selector.value));
    return withSelectors(displayName(feature.name), selectors);
}

QString SettingTexts::category(const std::string &name) const
{
    return name.empty() ? QCoreApplication::translate("SettingTexts", "Without category") : displayName(name);
}

QString SettingTexts::value(const std::string &name, const std::string &text) const
{
    return settingValueText(find(name), text);
}

QString SettingTexts::rawTitle(const std::string &name, const std::vector<SelectorSetting> &selectors)
{
    QStringList texts;
    for (const SelectorSetting &selector : selectors)
        texts.append(QString::fromStdString(selector.name + '=' + selector.value));
    return withSelectors(QString::fromStdString(name), texts);
}

QString SettingTexts::displayName(const std::string &name) const
{
    const NodeInfo *const node = find(name);
    return QString::fromStdString(node && !node->displayName.empty() ? node->displayName : name);
}

const NodeInfo *SettingTexts::find(const std::string &name) const
{
    const NodeInfo *const node = m_left.find(name);
    return node ? node : m_right.find(name);
}
