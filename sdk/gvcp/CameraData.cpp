#include "sdk/gvcp/CameraData.h"

#include <cstdio>
#include <tuple>

bool operator==(const CameraData &left, const CameraData &right)
{
    const auto fields = [](const CameraData &camera) {
        return std::tie(camera.mac, camera.address, camera.mask, camera.gateway, camera.vendor, camera.model,
            camera.version, camera.serial, camera.userName);
    };
    return fields(left) == fields(right);
}

std::string identityOf(const CameraData &camera)
{
    if (camera.mac != MacAddress{})
        return macToString(camera.mac);
    return camera.vendor + '-' + camera.model + '-' + camera.serial;
}

std::string macToString(const MacAddress &mac)
{
    char text[sizeof "00:00:00:00:00:00"];
    std::snprintf(
        text, sizeof text, "%02x:%02x:%02x:%02x:%02x:%02x", mac[0], mac[1], mac[2], mac[3], mac[4], mac[5]);
    return text;
}

std::string ipv4ToString(std::uint32_t address)
{
    char text[sizeof "255.255.255.255"];
    std::snprintf(text, sizeof text, "%u.%u.%u.%u", address >> 24, address >> 16 & 0xFF, address >> 8 & 0xFF,
        address & 0xFF);
    return text;
}
