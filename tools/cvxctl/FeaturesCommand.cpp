#include "tools/cvxctl/CameraSession.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/Terminal.h"
#include "tools/cvxctl/ValueText.h"

#include <unordered_map>

using namespace CvxCPP;

namespace {

struct FeaturesOptions
{
    std::string camera;
    std::string category;
    NodeVisibility level = NodeVisibility::Expert;
    bool isJson = false;
};

const std::map<std::string, NodeVisibility> levels{{"beginner", NodeVisibility::Beginner},
    {"expert", NodeVisibility::Expert}, {"guru", NodeVisibility::Guru},
    {"invisible", NodeVisibility::Invisible}};

/// Returns whether the node is in this category or in one of its sub-categories.
bool isInCategory(const NodeInfo &node, const std::string &category,
    const std::unordered_map<std::string, std::string> &parents)
{
    std::string current = node.category;
    for (std::size_t depth = 0; depth <= parents.size() && !current.empty(); ++depth) {
        if (current == category)
            return true;
        const auto parent = parents.find(current);
        current = parent == parents.end() ? std::string() : parent->second;
    }
    return category.empty();
}

std::vector<NodeInfo> selectNodes(const std::vector<NodeInfo> &nodes, const FeaturesOptions &options)
{
    std::unordered_map<std::string, std::string> parents; // The category of each category.
    for (const NodeInfo &node : nodes) {
        if (node.type == NodeType::Category)
            parents[node.name] = node.category;
    }
    std::vector<NodeInfo> selected;
    for (const NodeInfo &node : nodes) {
        if (node.type != NodeType::Category && node.visibility <= options.level
            && isInCategory(node, options.category, parents))
            selected.push_back(node);
    }
    return selected;
}

std::string rangeText(const NodeInfo &info, const NodeState &state)
{
    std::string text;
    if (info.type == NodeType::Enumeration) {
        for (const std::string &entry : state.availableEntries)
            text += (text.empty() ? "" : ", ") + printable(entry);
    } else if (state.minimum.index() != 0 || state.maximum.index() != 0) {
        text = valueText(state.minimum, info.representation) + " … "
            + valueText(state.maximum, info.representation);
    }
    return text;
}

void printNodes(const std::vector<NodeInfo> &nodes, const std::vector<NodeState> &states)
{
    std::vector<std::vector<std::string>> rows{{"NAME", "ACCESS", "VALUE", "UNIT", "RANGE"}};
    std::string category;
    for (std::size_t index = 0; index < nodes.size(); ++index) {
        const NodeInfo &info = nodes[index];
        const NodeState &state = states[index];
        if (info.category != category) {
            category = info.category;
            rows.push_back({category + ':'});
        }
        const std::string value
            = info.type == NodeType::Command ? "(command)" : valueText(state.value, info.representation);
        rows.push_back({"  " + info.name, accessText(state.access), printable(value), info.unit,
            rangeText(info, state)});
    }
    printTable(rows);
}

ExitStatus run(const FeaturesOptions &options)
{
    CameraSession session;
    if (const ExitStatus status = session.open(options.camera, CvxAccessWatch))
        return status;
    std::vector<NodeInfo> all;
    if (const CvxResult result = session.device().GetNodes(all); !result)
        return reportFailure(result);
    const std::vector<NodeInfo> nodes = selectNodes(all, options);
    if (nodes.empty() && !options.category.empty()) {
        printError("the camera has no category \"" + options.category + "\" with features of this level");
        return exitFeature;
    }
    std::vector<NodeState> states;
    for (const NodeInfo &node :
        nodes) { // One by one: a slow camera then has the whole time for each feature.
        std::vector<NodeState> state;
        if (const CvxResult result = session.device().ReadStates({node.name}, state); !result)
            return reportFailure(result);
        states.push_back(std::move(state.at(0)));
    }
    if (!options.isJson) {
        printNodes(nodes, states);
        return exitSuccess;
    }
    auto json = nlohmann::ordered_json::array();
    for (std::size_t index = 0; index < nodes.size(); ++index)
        json.push_back(nodeJson(nodes[index], states[index]));
    printJson(json);
    return exitSuccess;
}

} // namespace

void addFeaturesCommand(CLI::App &program, ExitStatus &status)
{
    const auto options = std::make_shared<FeaturesOptions>();
    CLI::App *const command
        = program.add_subcommand("features", "List the features of a camera with their values");
    command->add_option("CAMERA", options->camera, cameraHelp)->required();
    command->add_option("--category", options->category, "Only list this category");
    command->add_option("--level", options->level, "Show features up to this level of knowledge")
        ->transform(CLI::CheckedTransformer(levels, CLI::ignore_case))
        ->default_str("expert");
    command->add_flag("--json", options->isJson, "Print JSON");
    command->callback([options, &status] { status = run(*options); });
}
