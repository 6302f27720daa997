#pragma once

#include "sdk/producer/ModuleFeature.h"
#include "sdk/producer/Port.h"

/// The versions of the register descriptions of our modules.
constexpr PortUrl::Version moduleSchemaVersion{1, 1, 0};
constexpr PortUrl::Version moduleFileVersion{1, 0, 0};

/// Returns the address and the size of the register of the feature with this index.
std::uint64_t registerAddress(std::size_t index);
std::size_t registerSize(const ModuleFeature &feature);

struct RegisterPlace
{
    std::size_t index; ///< Index of the feature.
    std::uint64_t offset; ///< Offset from the start of the register; may be past its end.
};

/// Returns the register at or before the address, or nothing if it does not belong to one of `count`
/// features.
std::optional<RegisterPlace> findRegister(std::uint64_t address, std::size_t count);

/// Returns the register description of a module as GenICam XML.
std::string describeModule(const PortDescription &port, const std::vector<ModuleFeature> &features);
