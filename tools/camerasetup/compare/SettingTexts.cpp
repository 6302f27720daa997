#include "tools/camerasetup/compare/SettingTexts.h"

#include "sdk/features/FeatureText.h"
#include "tools/kit/editors/NumberText.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

using namespace CvxCPP;

namespace {

QString withUnit(const QString &number, const NodeInfo &node)
{
    return node.unit.empty() ? number : number + QLatin1Char(' ') + unitText(node.unit);
}

QString entryText(const NodeInfo &node, const std::string &name)
{
    const auto entry = std::find_if(node.entries.begin(), node.entries.end(),
        [&name](const EnumerationEntry &other) { return other.name == name; });
    const bool hasTitle = entry != node.entries.end() && !entry->displayName.empty();
    return QString::fromStdString(hasTitle ? entry->displayName : name);
}

QString typedText(const NodeInfo &node, const NodeValue &value, const QString &raw)
{
    if (const auto *const number = std::get_if<std::int64_t>(&value))
        return withUnit(integerText(*number, node.representation), node);
    if (const auto *const number = std::get_if<double>(&value))
        return withUnit(floatText(*number), node);
    if (const auto *const isOn = std::get_if<bool>(&value))
        return *isOn ? QCoreApplication::translate("SettingTexts", "On")
                     : QCoreApplication::translate("SettingTexts", "Off");
    if (const auto *const text = std::get_if<std::string>(&value); text && node.type == NodeType::Enumeration)
        return entryText(node, *text);
    return raw;
}

QString withSelectors(const QString &title, const QStringList &selectors)
{
    return selectors.isEmpty() ? title
                               : QStringLiteral("%1 [%2]").arg(title, selectors.join(QStringLiteral(", ")));
}

} // namespace

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
    const QString raw = QString::fromStdString(text);
    const NodeInfo *const node = find(name);
    if (!node || text.empty())
        return raw;
    const auto value = settingValue(node->type, text);
    const auto *const typed = std::get_if<NodeValue>(&value);
    return typed ? typedText(*node, *typed, raw) : raw;
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
