// Parses the input as a settings file, and compares the file with itself.

#include "sdk/features/FeatureComparison.h"
#include "sdk/features/FeatureText.h"
#include "tests/fuzz/FuzzTarget.h"

using namespace CvxCPP;

namespace {

void requireSameAfterRoundTrip(const FeatureFile &file)
{
    const std::string text = formatFeatureFile(file.settings, "camera");
    const auto parsed = parseFeatureFile(text);
    const auto *const copy = std::get_if<FeatureFile>(&parsed);
    require(copy != nullptr, "a written file is a settings file");
    require(copy->problems.empty(), "every line of a written file can be read");
    require(copy->settings.size() >= file.settings.size(), "no setting is lost");
    require(
        formatFeatureFile(copy->settings, "camera") == text, "a file is the same when it is written again");
}

/// Every text that is a value of a type reads back as the same value.
void requireSameValues(const std::string &text)
{
    for (int type = 0; type <= static_cast<int>(NodeType::Register); ++type) {
        const auto value = settingValue(static_cast<NodeType>(type), text);
        const auto *const typed = std::get_if<NodeValue>(&value);
        if (!typed)
            continue;
        const auto copy = settingValue(static_cast<NodeType>(type), settingText(*typed));
        const auto *const copied = std::get_if<NodeValue>(&copy);
        require(copied && isSameValue(*copied, *typed), "a value reads back");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto parsed = parseFeatureFile(textOf(data, size));
    if (const auto *const refusal = std::get_if<std::string>(&parsed)) {
        require(!refusal->empty(), "a refusal has a reason");
        return 0;
    }
    const auto &file = std::get<FeatureFile>(parsed);
    for (const FeatureFileProblem &problem : file.problems)
        require(problem.line > 1 && !problem.text.empty(), "a problem has a line and a reason");
    for (const FeatureSetting &setting : file.settings) {
        require(!setting.name.empty() && fitsFeatureFile(setting.value), "a setting has a name and a value");
        requireSameValues(setting.value);
    }
    requireSameAfterRoundTrip(file);
    for (const ComparedFeature &feature : compareFeatures({file.settings, {}}, {file.settings, {}}))
        require(feature.difference == FeatureDifference::Equal, "a file equals itself");
    return 0;
}
