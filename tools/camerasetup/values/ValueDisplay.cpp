#include "tools/camerasetup/values/ValueDisplay.h"

#include "sdk/features/FeatureText.h"
#include "tools/kit/editors/NumberText.h"

#include <QCoreApplication>

#include <algorithm>

using namespace CvxCPP;

namespace {

QString withUnit(const QString &number, const NodeInfo &node)
{
    const QString unit = unitText(node.unit);
    return unit.isEmpty() ? number : number + QLatin1Char(' ') + unit;
}

QString entryText(const NodeInfo &node, const std::string &name)
{
    const auto entry = std::find_if(node.entries.begin(), node.entries.end(),
        [&name](const EnumerationEntry &other) { return other.name == name; });
    const bool hasText = entry != node.entries.end() && !entry->displayName.empty();
    return QString::fromStdString(hasText ? entry->displayName : name);
}

} // namespace

QString displayValue(const NodeInfo *node, const std::string &setting)
{
    const QString text = QString::fromStdString(setting);
    if (!node || setting.empty())
        return text;
    if (node->type == NodeType::Enumeration)
        return entryText(*node, setting);
    const auto parsed = settingValue(node->type, setting);
    const auto *const value = std::get_if<NodeValue>(&parsed);
    if (!value)
        return text;
    if (const auto *const integer = std::get_if<std::int64_t>(value))
        return withUnit(integerText(*integer, node->representation), *node);
    if (const auto *const real = std::get_if<double>(value))
        return withUnit(floatText(*real), *node);
    if (const auto *const boolean = std::get_if<bool>(value))
        return *boolean ? QCoreApplication::translate("ValueDisplay", "On")
                        : QCoreApplication::translate("ValueDisplay", "Off");
    return text;
}
