#include "tools/camerasetup/details/FeatureFacts.h"

#include "tools/camerasetup/values/LevelText.h"
#include "tools/camerasetup/values/ValueText.h"
#include "tools/kit/editors/NumberText.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace CvxCPP;

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("FeatureFacts", source);
}

/// In the order of NodeType.
constexpr std::array typeTexts{
    QT_TRANSLATE_NOOP("FeatureFacts", "Category"),
    QT_TRANSLATE_NOOP("FeatureFacts", "Integer"),
    QT_TRANSLATE_NOOP("FeatureFacts", "Floating-point number"),
    QT_TRANSLATE_NOOP("FeatureFacts", "Switch"),
    QT_TRANSLATE_NOOP("FeatureFacts", "Enumeration"),
    QT_TRANSLATE_NOOP("FeatureFacts", "Text"),
    QT_TRANSLATE_NOOP("FeatureFacts", "Command"),
    QT_TRANSLATE_NOOP("FeatureFacts", "Register"),
};

/// In the order of NodeAccess.
constexpr std::array accessTexts{
    QT_TRANSLATE_NOOP("FeatureFacts", "Not in this camera"),
    QT_TRANSLATE_NOOP("FeatureFacts", "Not available at present"),
    QT_TRANSLATE_NOOP("FeatureFacts", "Read only"),
    QT_TRANSLATE_NOOP("FeatureFacts", "Write only"),
    QT_TRANSLATE_NOOP("FeatureFacts", "Read and write"),
};

/// In the order of NodeRepresentation; the first one says nothing.
constexpr std::array representationTexts{
    "",
    QT_TRANSLATE_NOOP("FeatureFacts", "Linear"),
    QT_TRANSLATE_NOOP("FeatureFacts", "Logarithmic"),
    QT_TRANSLATE_NOOP("FeatureFacts", "Switch"),
    QT_TRANSLATE_NOOP("FeatureFacts", "Number without slider"),
    QT_TRANSLATE_NOOP("FeatureFacts", "Hexadecimal"),
    QT_TRANSLATE_NOOP("FeatureFacts", "IPv4 address"),
    QT_TRANSLATE_NOOP("FeatureFacts", "MAC address"),
};

/// Collects the facts that have something to say.
class Facts
{
public:
    void add(const char *title, const QString &value)
    {
        if (!value.isEmpty())
            m_facts.append({text(title), value, {}});
    }

    void addFeatures(const char *title, const std::vector<std::string> &names)
    {
        QStringList features;
        for (const std::string &name : names)
            features.append(QString::fromStdString(name));
        if (!features.isEmpty())
            m_facts.append({text(title), {}, features});
    }

    const QVector<FeatureFact> &facts() const { return m_facts; }

private:
    QVector<FeatureFact> m_facts;
};

void addLimits(Facts &facts, const NodeInfo &info, const NodeState &state)
{
    facts.add(QT_TRANSLATE_NOOP("FeatureFacts", "Minimum"), plainValueText(info, state.minimum));
    facts.add(QT_TRANSLATE_NOOP("FeatureFacts", "Maximum"), plainValueText(info, state.maximum));
    facts.add(QT_TRANSLATE_NOOP("FeatureFacts", "Increment"), plainValueText(info, state.increment));
    if (state.maxLength <= 0)
        return;
    const auto length = static_cast<int>(std::min<std::int64_t>(state.maxLength, INT32_MAX));
    if (info.type == NodeType::Register)
        facts.add(QT_TRANSLATE_NOOP("FeatureFacts", "Length"),
            QCoreApplication::translate("FeatureFacts", "%n byte(s)", nullptr, length));
    else
        facts.add(QT_TRANSLATE_NOOP("FeatureFacts", "Maximum length"),
            QCoreApplication::translate("FeatureFacts", "%n character(s)", nullptr, length));
}

QString unavailableEntries(const NodeInfo &info, const NodeState &state)
{
    QStringList names;
    const auto &available = state.availableEntries;
    if (available.empty())
        return {}; // The feature itself is not available.
    for (const EnumerationEntry &entry : info.entries) {
        if (std::find(available.begin(), available.end(), entry.name) == available.end())
            names.append(entryText(info, entry.name));
    }
    return names.join(QStringLiteral(", "));
}

QString pollingText(const NodeInfo &info)
{
    if (info.pollingTime == 0)
        return {};
    return QCoreApplication::translate("FeatureFacts", "Every %1 ms").arg(info.pollingTime);
}

} // namespace

QVector<FeatureFact> featureFacts(const NodeInfo &info, const NodeState *state)
{
    Facts facts;
    const bool isCategory = info.type == NodeType::Category;
    facts.add(
        QT_TRANSLATE_NOOP("FeatureFacts", "Type"), text(typeTexts.at(static_cast<std::size_t>(info.type))));
    if (info.representation != NodeRepresentation::Undefined)
        facts.add(QT_TRANSLATE_NOOP("FeatureFacts", "Shown as"),
            text(representationTexts.at(static_cast<std::size_t>(info.representation))));
    facts.add(QT_TRANSLATE_NOOP("FeatureFacts", "Unit"), unitText(info.unit));
    if (state) {
        addLimits(facts, info, *state);
        facts.add(QT_TRANSLATE_NOOP("FeatureFacts", "Not allowed now"), unavailableEntries(info, *state));
        if (!isCategory)
            facts.add(QT_TRANSLATE_NOOP("FeatureFacts", "Access"),
                text(accessTexts.at(static_cast<std::size_t>(state->access))));
    }
    facts.add(QT_TRANSLATE_NOOP("FeatureFacts", "Level"), levelText(info.visibility));
    if (!isCategory && info.type != NodeType::Command)
        facts.add(QT_TRANSLATE_NOOP("FeatureFacts", "In settings files"),
            info.isStreamable ? text(QT_TRANSLATE_NOOP("FeatureFacts", "Yes"))
                              : text(QT_TRANSLATE_NOOP("FeatureFacts", "No")));
    facts.add(QT_TRANSLATE_NOOP("FeatureFacts", "Changes by itself"), pollingText(info));
    facts.addFeatures(QT_TRANSLATE_NOOP("FeatureFacts", "Selected by"), info.selectors);
    facts.addFeatures(QT_TRANSLATE_NOOP("FeatureFacts", "Selects"), info.selected);
    if (state && !state->lockingNode.empty())
        facts.addFeatures(QT_TRANSLATE_NOOP("FeatureFacts", "Depends on"), {state->lockingNode});
    if (state)
        facts.add(QT_TRANSLATE_NOOP("FeatureFacts", "Problem"), QString::fromStdString(state->problem));
    return facts.facts();
}
