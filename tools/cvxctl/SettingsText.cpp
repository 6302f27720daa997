#include "tools/cvxctl/SettingsText.h"

#include "sdk/features/FeatureFileStorage.h"
#include "sdk/features/SettingLabel.h"
#include "tools/cvxctl/Interruption.h"
#include "tools/cvxctl/Terminal.h"

std::string printableLabel(const std::string &name, const std::vector<SelectorSetting> &selectors)
{
    return printable(settingLabel(name, selectors));
}

nlohmann::ordered_json selectorsJson(const std::vector<SelectorSetting> &selectors)
{
    auto json = nlohmann::ordered_json::object();
    for (const SelectorSetting &selector : selectors)
        json[selector.name] = selector.value;
    return json;
}

void printNotes(const std::vector<FeatureNote> &notes)
{
    for (const FeatureNote &note : notes)
        printError(note.text);
}

ExitStatus readSettings(const std::string &path, FeatureFile &file)
{
    auto parsed = readFeatureFile(path);
    if (const auto *const refusal = std::get_if<std::string>(&parsed)) {
        printError(*refusal);
        return exitFailure;
    }
    file = std::get<FeatureFile>(std::move(parsed));
    for (const FeatureFileProblem &problem : file.problems)
        printError(path + ':' + std::to_string(problem.line) + ": " + problem.text);
    return exitSuccess;
}

bool continueUnlessInterrupted(std::size_t, std::size_t)
{
    return !isInterrupted();
}
