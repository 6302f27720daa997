#pragma once

#include "sdk/producer/ModuleFeature.h"
#include "sdk/producer/Port.h"

#include <mutex>

/// The registers of one of the producer's own modules: one register for each feature, and the register
/// description. All registers are little endian.
class ModulePort final : public Port
{
public:
    /// `description` says what the module is; its version is that of the producer.
    ModulePort(PortDescription description, std::vector<ModuleFeature> features);

    PortDescription description() const override { return m_description; }
    std::vector<PortUrl> urls() const override;

    /// Reads any part of one register or of the register description.
    void read(std::uint64_t address, void *data, std::size_t size) override;

    /// Writes one register as a whole.
    void write(std::uint64_t address, const void *data, std::size_t size) override;

private:
    const std::string &xml() const;

    const PortDescription m_description;
    const std::vector<ModuleFeature> m_features;
    mutable std::once_flag m_hasXml;
    mutable std::string m_xml; // Written once, because most consumers never read it.
};
