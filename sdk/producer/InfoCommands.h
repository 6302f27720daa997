#pragma once

#include "sdk/producer/DeviceSource.h"
#include "sdk/producer/InfoOutput.h"

// The version of the GenTL standard that each of our producers reports.
constexpr std::uint32_t genTlMajor = 1;
constexpr std::uint32_t genTlMinor = 5;

// These functions implement the info commands of each kind of module. Each function writes the value of one
// command to a complete output. It returns GC_ERR_SUCCESS, GC_ERR_BUFFER_TOO_SMALL, or GC_ERR_NOT_IMPLEMENTED
// for an unknown command. writeDeviceInfo() returns GC_ERR_NOT_AVAILABLE for a value that only an open device
// can report.

GenTL::GC_ERROR writeProducerInfo(const ProducerIdentity &identity, const std::filesystem::path &producerFile,
    GenTL::TL_INFO_CMD command, const InfoOutput &output);
GenTL::GC_ERROR writeInterfaceInfo(
    const InterfaceRecord &record, GenTL::INTERFACE_INFO_CMD command, const InfoOutput &output);
GenTL::GC_ERROR writeDeviceInfo(
    const DeviceRecord &record, GenTL::DEVICE_INFO_CMD command, const InfoOutput &output);
