#include "sdk/address/AddressPlan.h"

namespace {

bool isOffered(const AddressPlan &plan, std::uint32_t method)
{
    return (plan.camera.seen.offeredMethods & method) != 0;
}

/// Returns why no change is possible at all, whatever the new address is.
std::string generalObstacle(const AddressPlan &plan)
{
    const SeenCamera &seen = plan.camera.seen;
    if (seen.camera.mac == MacAddress{})
        return "The camera reports no MAC address, by which it would recognise the command. A simulated "
               "camera "
               "gets its address from the machine on which it runs.";
    if (plan.choice == AddressChoice::Lasting && !isOffered(plan, persistentAddressMethod))
        return "The camera cannot store an address. Give it a temporary one, or let a DHCP server assign the "
               "address.";
    const bool mustClearPersistent = (seen.enabledMethods & persistentAddressMethod) != 0;
    if (plan.choice == AddressChoice::Automatic && mustClearPersistent && !seen.isInSubnet)
        return "The camera uses its stored address, and this setting can only be changed in a subnet that "
               "this "
               "machine reaches. Give the camera a temporary address first.";
    return {};
}

bool isInUse(const AddressPlan &plan)
{
    return plan.camera.control == ControlState::Controlled || plan.camera.control == ControlState::Exclusive;
}

std::vector<std::string> effectsOf(const AddressPlan &plan, const InterfaceAddress *subnet)
{
    const CameraData &camera = plan.camera.seen.camera;
    const std::string present = addressText(camera.address, camera.mask);
    if (plan.choice == AddressChoice::Automatic)
        return {"The camera gives up the address " + present + '.',
            isOffered(plan, dhcpMethod)
                ? "It gets an address from a DHCP server or, if there is none, chooses one in 169.254.0.0/16."
                : "It chooses an address in 169.254.0.0/16."};
    std::vector<std::string> effects{"The address changes from " + present + " to "
        + addressText(plan.settings.address, plan.settings.mask) + '.'};
    if (plan.settings.gateway != 0)
        effects.push_back("The gateway will be " + ipv4ToString(plan.settings.gateway) + '.');
    effects.push_back(plan.choice == AddressChoice::Lasting
            ? "The camera stores the address and uses it again whenever it is switched on."
            : "The camera keeps the address until it is switched off.");
    if (subnet)
        effects.push_back("The network interface " + subnet->name + " ("
            + addressText(subnet->address, subnet->mask) + ") reaches the new address.");
    return effects;
}

} // namespace

AddressPlan planAddress(AddressChoice choice, const CameraAddress &camera, const WrittenAddress &written,
    std::uint32_t gateway, const AddressSurroundings &surroundings)
{
    AddressPlan plan;
    plan.choice = choice;
    plan.camera = camera;
    const InterfaceAddress *subnet = nullptr;
    if (choice != AddressChoice::Automatic) {
        subnet = subnetFor(camera.seen, written.address, surroundings);
        const std::uint32_t ownMask = (subnet ? *subnet : camera.seen.networkInterface).mask;
        plan.settings = {written.address, written.prefix ? maskOfPrefix(*written.prefix) : ownMask, gateway};
    }
    plan.effects = effectsOf(plan, subnet);
    plan.obstacle = generalObstacle(plan);
    if (plan.obstacle.empty() && choice != AddressChoice::Automatic)
        plan.obstacle = whyUnusable(camera.seen, plan.settings, surroundings).value_or(std::string());
    if (plan.obstacle.empty() && isInUse(plan)) {
        plan.isInUse = true;
        plan.obstacle = "Another program controls the camera. Close the program first.";
    }
    return plan;
}
