#include "sdk/address/AddressChange.h"
#include "sdk/address/AddressProbe.h"
#include "sdk/address/AddressProposal.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/NetworkCamera.h"
#include "tools/cvxctl/Terminal.h"

#include <cstdio>
#include <iostream>
#include <system_error>
#include <unistd.h>

namespace {

using Json = nlohmann::ordered_json;

struct AddressOptions
{
    std::string camera;
    std::string temporary;
    std::string lasting;
    std::string gateway;
    bool isAutomatic = false;
    bool isProposal = false;
    bool isConfirmed = false;
    bool isJson = false;
};

const char *controlText(ControlState control)
{
    static constexpr const char *texts[]
        = {"unknown", "no", "another program controls the camera", "another program has exclusive access"};
    return texts[static_cast<std::size_t>(control)];
}

Json toJson(const CameraAddress &address)
{
    const SeenCamera &seen = address.seen;
    const CameraData &data = seen.camera;
    Json json{{"camera", nameOf(data)}, {"mac", macToString(data.mac)},
        {"address", addressText(data.address, data.mask)}, {"gateway", ipv4ToString(data.gateway)},
        {"origin", originText(address.origin)}, {"offered", methodsText(seen.offeredMethods)},
        {"enabled", methodsText(seen.enabledMethods)}};
    if (address.persistent)
        json["stored"] = addressText(address.persistent->address, address.persistent->mask);
    json["networkInterface"] = seen.networkInterface.name;
    json["interfaceAddress"] = addressText(seen.networkInterface.address, seen.networkInterface.mask);
    json["reachable"] = seen.isInSubnet;
    json["inUse"] = controlText(address.control);
    if (!address.problem.empty())
        json["problem"] = address.problem;
    return json;
}

void print(const CameraAddress &address)
{
    const SeenCamera &seen = address.seen;
    const CameraData &data = seen.camera;
    const InterfaceAddress &own = seen.networkInterface;
    std::vector<std::vector<std::string>> rows{{"Camera", printable(nameOf(data))},
        {"MAC address", macToString(data.mac)}, {"Address", addressText(data.address, data.mask)},
        {"Gateway", data.gateway == 0 ? "none" : ipv4ToString(data.gateway)},
        {"Origin", originText(address.origin)}, {"Offered methods", methodsText(seen.offeredMethods)},
        {"Enabled methods", methodsText(seen.enabledMethods)}};
    if (address.persistent)
        rows.push_back(
            {"Stored address", addressText(address.persistent->address, address.persistent->mask)});
    rows.push_back({"Network interface", own.name + " (" + addressText(own.address, own.mask) + ')'});
    rows.push_back({"Reachable", seen.isInSubnet ? "yes" : "no, the camera is in another subnet"});
    rows.push_back({"In use", controlText(address.control)});
    printTable(rows);
    if (!address.problem.empty())
        std::printf("%s\n", address.problem.c_str());
}

ExitStatus show(const CameraAddress &address, bool isJson)
{
    if (isJson)
        printJson(toJson(address));
    else
        print(address);
    return exitSuccess;
}

ExitStatus propose(
    const AddressOptions &options, const SeenCamera &camera, const AddressSurroundings &surroundings)
{
    const auto proposal = proposeAddress(camera, surroundings, askNetwork);
    if (!proposal) {
        printError("no free address was found in the subnet of " + camera.networkInterface.name + " ("
            + addressText(camera.networkInterface.address, camera.networkInterface.mask) + ")");
        return exitFailure;
    }
    const std::string text = addressText(proposal->address, proposal->mask);
    if (options.isJson)
        printJson({{"address", text}, {"networkInterface", camera.networkInterface.name}});
    else
        std::printf("%s\n", text.c_str());
    return exitSuccess;
}

/// Returns true if the person agrees, on a terminal.
bool isConfirmed()
{
    std::fprintf(stderr, "Change the address? [y/N] ");
    std::string answer;
    std::getline(std::cin, answer);
    return answer == "y" || answer == "Y" || answer == "yes";
}

/// Prints what will change and asks for permission.
ExitStatus confirm(const AddressOptions &options, const AddressPlan &plan)
{
    if (!plan.obstacle.empty()) {
        printError(plan.obstacle);
        return plan.isInUse ? exitInUse : exitFailure;
    }
    for (const std::string &effect : plan.effects)
        std::fprintf(options.isJson ? stderr : stdout, "%s\n", effect.c_str());
    std::fflush(stdout);
    if (options.isConfirmed)
        return exitSuccess;
    if (isatty(STDIN_FILENO) == 0) {
        printError("nothing was changed; add --yes to change the address without a question");
        return exitUsage;
    }
    if (isConfirmed())
        return exitSuccess;
    printError("nothing was changed");
    return exitFailure;
}

ExitStatus toStatus(ChangeResult result)
{
    static constexpr ExitStatus statuses[] = {exitSuccess, exitInUse, exitFailure, exitLost, exitFailure};
    return statuses[static_cast<std::size_t>(result)];
}

ExitStatus change(const AddressOptions &options, const AddressPlan &plan)
{
    if (const ExitStatus status = confirm(options, plan))
        return status;
    const AddressChange result = changeAddress(plan);
    if (result.result != ChangeResult::Done)
        printError(result.text);
    else if (!options.isJson)
        std::printf("%s\n", result.text.c_str());
    if (options.isJson && result.camera)
        printJson(toJson(readCameraAddress(*result.camera)));
    return toStatus(result.result);
}

AddressPlan makePlan(
    const AddressOptions &options, const CameraAddress &camera, AddressSurroundings surroundings)
{
    if (options.isAutomatic)
        return planAddress(AddressChoice::Automatic, camera, {}, 0, surroundings);
    const bool isLasting = !options.lasting.empty();
    const auto written
        = parseWrittenAddress(isLasting ? options.lasting : options.temporary).value_or(WrittenAddress());
    if (const InterfaceAddress *subnet = subnetFor(camera.seen, written.address, surroundings))
        surroundings.neighbours = askNetwork(*subnet, {written.address});
    return planAddress(isLasting ? AddressChoice::Lasting : AddressChoice::Temporary, camera, written,
        parseIpv4(options.gateway).value_or(0), surroundings);
}

ExitStatus runOnNetwork(const AddressOptions &options)
{
    AddressSurroundings surroundings;
    surroundings.own = interfaceAddresses();
    surroundings.cameras = oncePerCamera(seenCameras(surroundings.own));
    SeenCamera seen;
    if (const ExitStatus status = findNetworkCamera(surroundings.cameras, options.camera, seen))
        return status;
    surroundings.neighbours = readNeighbours();
    if (options.isProposal)
        return propose(options, seen, surroundings);
    const CameraAddress camera = readCameraAddress(seen);
    if (options.isAutomatic || !options.temporary.empty() || !options.lasting.empty())
        return change(options, makePlan(options, camera, surroundings));
    return show(camera, options.isJson);
}

ExitStatus run(const AddressOptions &options)
{
    try {
        return runOnNetwork(options);
    } catch (const std::system_error &error) {
        printError(error.what());
        return exitFailure;
    }
}

std::string checkAddress(const std::string &text)
{
    return parseWrittenAddress(text) ? std::string()
                                     : "\"" + text + "\" is not an address such as 192.168.1.7/24";
}

std::string checkGateway(const std::string &text)
{
    return parseIpv4(text) ? std::string() : "\"" + text + "\" is not an address such as 192.168.1.1";
}

} // namespace

void addAddressCommand(CLI::App &program, ExitStatus &status)
{
    const auto options = std::make_shared<AddressOptions>();
    CLI::App *const command = program.add_subcommand("address",
        "Show the network address of a GigE camera, or change it. Also works for a camera in another subnet. "
        "Shows what will change, and asks before it does");
    command
        ->add_option("CAMERA", options->camera,
            "MAC address, ID, serial number or user name of the camera, or a part of the names that is "
            "unique")
        ->required();
    auto *const changes = command->add_option_group("Change");
    changes->require_option(0, 1);
    changes
        ->add_option("--temporary", options->temporary,
            "Give the camera this address until it is switched off. The prefix is the one of the network "
            "interface if it is left out")
        ->type_name("IP[/PREFIX]")
        ->check(checkAddress);
    auto *const lasting
        = changes->add_option("--lasting", options->lasting, "Give the camera this address and store it")
              ->type_name("IP[/PREFIX]")
              ->check(checkAddress);
    changes->add_flag("--automatic", options->isAutomatic,
        "Let the camera get an address from a DHCP server or choose a link-local one");
    changes->add_flag("--propose", options->isProposal,
        "Print an address that is free in the subnet of the network interface, and change nothing");
    command->add_option("--gateway", options->gateway, "Gateway that the camera stores, if it needs one")
        ->type_name("IP")
        ->check(checkGateway)
        ->needs(lasting);
    command->add_flag("--yes", options->isConfirmed, "Do not ask");
    command->add_flag("--json", options->isJson, "Print JSON");
    command->callback([options, &status] { status = run(*options); });
}
