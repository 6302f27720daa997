#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// The value that a selector has, as text.
struct SelectorSetting
{
    std::string name;
    std::string value;

    bool operator==(const SelectorSetting &other) const { return name == other.name && value == other.value; }
};

/// One value of a feature, as text.
struct FeatureSetting
{
    std::vector<SelectorSetting> selectors; ///< For which the value holds; outer selectors first.
    std::string name;
    std::string value;
    unsigned line = 0; ///< Line of the file, starting with 1; 0 if the setting comes from a camera.
};

/// Why a line of a file was skipped.
struct FeatureFileProblem
{
    unsigned line = 0;
    std::string text; ///< A sentence for people.
};

/// The content of a settings file: the plain text, one feature per line, in which GenICam programs exchange
/// the settings of a camera.
struct FeatureFile
{
    /// In the order of the file, with repeats. A selector is a setting of its own and holds for the settings
    /// after it. Only lines with braces have `FeatureSetting::selectors`.
    std::vector<FeatureSetting> settings;
    std::vector<FeatureFileProblem> problems; ///< One for each line that was skipped.
};

/// Parses the text of a settings file. Returns a sentence for people if the text is no settings file at all;
/// a single bad line is only a problem of this line.
std::variant<FeatureFile, std::string> parseFeatureFile(std::string_view text);

/// Returns the text of a settings file. Selectors become lines of their own, which every reader understands.
/// `device` is a comment. The values must not be empty or contain control characters.
std::string formatFeatureFile(const std::vector<FeatureSetting> &settings, const std::string &device);

/// Returns true if a line of a settings file can hold the value.
bool fitsFeatureFile(std::string_view value);
