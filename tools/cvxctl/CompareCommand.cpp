#include "sdk/features/FeatureComparison.h"
#include "sdk/features/FeatureSaver.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/SettingsText.h"
#include "tools/cvxctl/Terminal.h"

#include <algorithm>
#include <cstdio>
#include <unistd.h>

using namespace CvxCPP;

namespace {

struct CompareOptions
{
    std::string left;
    std::string right;
    bool isComplete = false;
    bool isJson = false;
};

/// One of the two arguments.
struct ComparedArgument
{
    std::string text;
    bool isFile = false;
    FeatureFile file; // Empty for a camera.
    ComparedSide side;
};

constexpr const char *differenceNames[] = {"equal", "different", "only left", "only right"};

bool looksLikeFile(const std::string &text)
{
    static constexpr const char *endings[] = {".txt", ".pfs", ".features"};
    const auto endsWith = [&text](const std::string &ending) {
        return text.size() > ending.size()
            && text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
    };
    return text.find('/') != std::string::npos
        || std::any_of(std::begin(endings), std::end(endings), endsWith);
}

ExitStatus countCameras(const std::string &text, std::size_t &count)
{
    CameraSession session;
    std::vector<ListedCamera> cameras;
    if (const ExitStatus status = session.listLate(cameras)) // A camera may answer late.
        return status;
    std::vector<CameraNames> names;
    for (const ListedCamera &listed : cameras)
        names.push_back(listed.names);
    count = matchCameras(names, text).size();
    return exitSuccess;
}

/// Finds out whether the text means a file or a camera. Only an unclear text needs a look at the cameras: a
/// file without an extension, or the complete ID of a camera, which contains "/".
ExitStatus classify(ComparedArgument &argument)
{
    const bool doesExist = ::access(argument.text.c_str(), F_OK) == 0;
    argument.isFile = looksLikeFile(argument.text);
    if (doesExist == argument.isFile)
        return exitSuccess;
    std::size_t count = 0;
    if (const ExitStatus status = countCameras(argument.text, count))
        return status;
    argument.isFile = count == 0 || doesExist;
    if (count == 0 || !doesExist)
        return exitSuccess;
    printError('"' + argument.text + "\" is a file, and a camera matches too; write \"./" + argument.text
        + "\" for the file, or the complete ID of the camera");
    return exitAmbiguous;
}

/// Reads the settings of the camera, and the features that the other side, a file, contains besides.
ExitStatus readCamera(ComparedArgument &argument, const FeatureFile &other)
{
    CameraSession session;
    if (const ExitStatus status = session.openToRead(argument.text))
        return status;
    std::vector<NodeInfo> nodes;
    if (const CvxResult result = session.device().GetNodes(nodes); !result)
        return reportFailure(result);
    FeatureDirectory &directory = argument.side.directory;
    directory = FeatureDirectory(std::move(nodes));
    const std::vector<std::string> names = settingNames(directory, other.settings);
    SavedFeatures read;
    if (const CvxResult result
        = readFeatures(session.device(), directory, names, read, continueUnlessInterrupted);
        !result)
        return reportFailure(result);
    printNotes(read.notes);
    argument.side.settings = std::move(read.settings);
    return read.isCancelled ? exitInterrupted : exitSuccess;
}

ExitStatus readArguments(ComparedArgument &left, ComparedArgument &right)
{
    for (ComparedArgument *const argument : {&left, &right}) {
        if (const ExitStatus status = classify(*argument))
            return status;
        if (!argument->isFile)
            continue;
        if (const ExitStatus status = readSettings(argument->text, argument->file))
            return status;
        argument->side.settings = argument->file.settings;
    }
    // One camera after the other, because a session ends the camera system.
    if (const ExitStatus status = left.isFile ? exitSuccess : readCamera(left, right.file))
        return status;
    return right.isFile ? exitSuccess : readCamera(right, left.file);
}

void printTexts(const std::vector<ComparedFeature> &features)
{
    std::vector<std::vector<std::string>> rows{{"FEATURE", "LEFT", "RIGHT", ""}};
    std::string category;
    for (const ComparedFeature &feature : features) {
        if (feature.category != category) {
            category = feature.category;
            rows.push_back({(category.empty() ? "Unknown" : printable(category)) + ':'});
        }
        const auto side = [&feature](const std::string &text, FeatureDifference missing) {
            return feature.difference == missing ? "-" : printable(text);
        };
        rows.push_back({"  " + printableLabel(feature.name, feature.selectors),
            side(feature.left, FeatureDifference::OnlyRight),
            side(feature.right, FeatureDifference::OnlyLeft),
            feature.isIgnorable                                  ? "(ignored)"
                : feature.difference == FeatureDifference::Equal ? "(equal)"
                                                                 : ""});
    }
    printTable(rows);
}

void printAsJson(const std::vector<ComparedFeature> &features)
{
    auto json = nlohmann::ordered_json::array();
    for (const ComparedFeature &feature : features) {
        const auto side = [&feature](const std::string &text, FeatureDifference missing) {
            return feature.difference == missing ? nlohmann::ordered_json() : nlohmann::ordered_json(text);
        };
        json.push_back({{"name", feature.name}, {"selectors", selectorsJson(feature.selectors)},
            {"category", feature.category}, {"left", side(feature.left, FeatureDifference::OnlyRight)},
            {"right", side(feature.right, FeatureDifference::OnlyLeft)},
            {"difference", differenceNames[static_cast<std::size_t>(feature.difference)]},
            {"ignorable", feature.isIgnorable}});
    }
    printJson(json);
}

ExitStatus run(const CompareOptions &options)
{
    ComparedArgument left, right;
    left.text = options.left;
    right.text = options.right;
    if (const ExitStatus status = readArguments(left, right))
        return status;
    std::vector<ComparedFeature> features = compareFeatures(left.side, right.side);
    const auto isMinor = [](const ComparedFeature &feature) {
        return feature.isIgnorable || feature.difference == FeatureDifference::Equal;
    };
    const auto majorCount = features.size()
        - static_cast<std::size_t>(std::count_if(features.begin(), features.end(), isMinor));
    const std::size_t allCount = features.size();
    if (!options.isComplete)
        features.erase(std::remove_if(features.begin(), features.end(), isMinor), features.end());
    if (options.isJson) {
        printAsJson(features);
    } else {
        if (!features.empty())
            printTexts(features);
        std::printf("%zu of %zu settings differ\n", majorCount, allCount);
    }
    const bool isEverythingRead = left.file.problems.empty() && right.file.problems.empty();
    return majorCount == 0 && isEverythingRead ? exitSuccess : exitDifferent;
}

} // namespace

void addCompareCommand(CLI::App &program, ExitStatus &status)
{
    constexpr char help[]
        = "Camera, or settings file: a name that exists, contains \"/\" or ends in .txt, .pfs "
          "or .features";
    const auto options = std::make_shared<CompareOptions>();
    CLI::App *const command = program.add_subcommand("compare",
        "Compare the settings of two cameras, two files, or a camera and a file. Exit status 9 means that "
        "they "
        "differ");
    command->add_option("LEFT", options->left, help)->required();
    command->add_option("RIGHT", options->right, help)->required();
    command->add_flag("--all", options->isComplete,
        "Also print equal settings, and those that belong to one camera or one moment");
    command->add_flag("--json", options->isJson, "Print JSON");
    command->callback([options, &status] { status = run(*options); });
}
