#include "tools/cvxctl/CameraSession.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/Terminal.h"

namespace {

struct ListOptions
{
    bool isJson = false;
};

void printCameras(const std::vector<ListedCamera> &cameras)
{
    std::vector<std::vector<std::string>> rows{{"ID", "MODEL", "SERIAL", "USER NAME", "TYPE"}};
    for (const ListedCamera &camera : cameras) {
        const CameraNames &names = camera.names;
        rows.push_back({printable(names.id), printable(names.model), printable(names.serial),
            printable(names.userName), camera.type});
    }
    printTable(rows);
}

nlohmann::ordered_json toJson(const std::vector<ListedCamera> &cameras)
{
    auto json = nlohmann::ordered_json::array();
    for (const ListedCamera &camera : cameras) {
        const CameraNames &names = camera.names;
        json.push_back({{"id", names.id}, {"extendedId", names.extendedId}, {"model", names.model},
            {"serial", names.serial}, {"name", names.name}, {"userName", names.userName},
            {"type", camera.type}});
    }
    return json;
}

ExitStatus run(const ListOptions &options)
{
    CameraSession session;
    std::vector<ListedCamera> cameras;
    if (const ExitStatus status = session.listLate(cameras))
        return status;
    if (options.isJson)
        printJson(toJson(cameras));
    else if (cameras.empty())
        printError("there is no camera");
    else
        printCameras(cameras);
    return exitSuccess;
}

} // namespace

void addListCommand(CLI::App &program, ExitStatus &status)
{
    const auto options = std::make_shared<ListOptions>();
    CLI::App *const command = program.add_subcommand("list", "List all cameras, which takes a second");
    command->add_flag("--json", options->isJson, "Print JSON");
    command->callback([options, &status] { status = run(*options); });
}
