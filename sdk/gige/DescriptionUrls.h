#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// Reads registers; throws GenTlError.
using RegisterReader = std::function<void(std::uint64_t address, void *data, std::size_t size)>;

/// Returns where a GigE Vision camera says that its register description lies: in its own registers
/// ("Local:…"), in a file or in the network. The best one comes first.
std::vector<std::string> readDescriptionUrls(const RegisterReader &read);

/// Returns true if the description lies in the registers of the camera.
bool isLocalUrl(const std::string &url);
