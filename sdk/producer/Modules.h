#pragma once

#include "sdk/producer/DeviceSource.h"
#include "sdk/producer/UpdatedList.h"

#include <memory>
#include <utility>

/// The open system module, which a TL_HANDLE identifies.
struct SystemModule
{
    explicit SystemModule(std::shared_ptr<DeviceSource> deviceSource) : source(std::move(deviceSource)) { }

    const std::shared_ptr<DeviceSource> source;
    UpdatedList<InterfaceRecord> interfaces;
};

/// An open interface module, which an IF_HANDLE identifies. Each interface has its own list with its own
/// lock, so several interfaces can be searched at the same time.
struct InterfaceModule
{
    InterfaceModule(std::shared_ptr<DeviceSource> deviceSource, InterfaceRecord record)
        : source(std::move(deviceSource)), openedAs(std::move(record))
    { }

    const std::shared_ptr<DeviceSource> source;
    const InterfaceRecord openedAs; ///< The interface's entry in the system's list when it was opened.
    UpdatedList<DeviceRecord> devices;
};
