#include "tools/camerasetup/values/ValueText.h"

#include "sdk/features/FeatureText.h"
#include "tools/kit/editors/NumberText.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

using namespace CvxCPP;

namespace {

constexpr std::size_t shownBytes = 8; ///< The rest of a register is shown by the details.

QString text(const char *source)
{
    return QCoreApplication::translate("ValueText", source);
}

QString withUnit(const QString &number, const NodeInfo &info)
{
    return info.unit.empty() ? number : number + QLatin1Char(' ') + unitText(info.unit);
}

QString registerText(const std::vector<std::uint8_t> &bytes)
{
    const auto size = std::min(bytes.size(), shownBytes);
    const QByteArray shown(reinterpret_cast<const char *>(bytes.data()), int(size));
    const QString hex = QString::fromLatin1(shown.toHex(' ').toUpper());
    if (size == bytes.size())
        return hex;
    return QCoreApplication::translate("ValueText", "%1 … (%n bytes)", nullptr, int(bytes.size())).arg(hex);
}

/// Returns why there is no value.
QString missingText(const NodeState &state)
{
    if (state.access == NodeAccess::NotImplemented)
        return text(QT_TRANSLATE_NOOP("ValueText", "not in this camera"));
    if (state.access == NodeAccess::NotAvailable)
        return text(QT_TRANSLATE_NOOP("ValueText", "not available"));
    if (!state.problem.empty())
        return text(QT_TRANSLATE_NOOP("ValueText", "cannot be read"));
    if (state.access == NodeAccess::WriteOnly)
        return text(QT_TRANSLATE_NOOP("ValueText", "can only be written"));
    return {};
}

/// Writes the values of all types.
struct ValueWriter
{
    const NodeInfo &info;

    QString operator()(std::monostate) const { return {}; }
    QString operator()(std::int64_t value) const
    {
        return withUnit(integerText(value, info.representation), info);
    }
    QString operator()(double value) const { return withUnit(floatText(value), info); }
    QString operator()(bool value) const
    {
        return value ? text(QT_TRANSLATE_NOOP("ValueText", "On"))
                     : text(QT_TRANSLATE_NOOP("ValueText", "Off"));
    }
    QString operator()(const std::string &value) const
    {
        return info.type == NodeType::Enumeration ? entryText(info, value)
                                                  : QString::fromStdString(value).simplified();
    }
    QString operator()(const std::vector<std::uint8_t> &value) const { return registerText(value); }
};

QString commandText(const NodeState &state)
{
    if (state.access == NodeAccess::NotImplemented || state.access == NodeAccess::NotAvailable)
        return missingText(state);
    return state.isCommandDone ? text(QT_TRANSLATE_NOOP("ValueText", "Run"))
                               : text(QT_TRANSLATE_NOOP("ValueText", "Running …"));
}

} // namespace

QString valueText(const NodeInfo &info, const NodeState &state)
{
    switch (info.type) {
    case NodeType::Category:
        return {};
    case NodeType::Command:
        return commandText(state);
    default:
        return state.value == NodeValue() ? missingText(state) : plainValueText(info, state.value);
    }
}

QString plainValueText(const NodeInfo &info, const NodeValue &value)
{
    return std::visit(ValueWriter{info}, value);
}

QString settingValueText(const NodeInfo *info, const std::string &text)
{
    const QString raw = QString::fromStdString(text);
    if (!info || text.empty() || info->type == NodeType::String || info->type == NodeType::Register)
        return raw;
    const auto value = settingValue(info->type, text);
    const auto *const parsed = std::get_if<NodeValue>(&value);
    return parsed ? plainValueText(*info, *parsed) : raw;
}

QString withSelectors(const QString &title, const QStringList &selectors)
{
    return selectors.isEmpty() ? title
                               : QStringLiteral("%1 [%2]").arg(title, selectors.join(QStringLiteral(", ")));
}
