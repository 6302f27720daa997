#pragma once

#include "sdk/cvxcpp/CameraCatalogue.h"
#include "tests/sdk/support/CameraText.h"
#include "tests/sdk/support/FakeSource.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

using Ids = std::vector<std::string>;
using Interfaces = std::vector<InterfaceRecord>;

/// Returns a device. A device without vendor and model is never treated as a duplicate.
inline DeviceRecord camera(const std::string &id, const std::string &vendor = "",
    const std::string &model = "", const std::string &serial = "")
{
    return {id, vendor, model, serial, "Name", "GEV"};
}

inline InterfaceRecord network(
    const std::string &id, const std::vector<DeviceRecord> &devices, std::uint64_t number = 1)
{
    return {number, id, "Network", "GEV", devices};
}

/// A catalogue with three producers, and functions that report the result of a search to it.
class CatalogueTest : public testing::Test
{
protected:
    CatalogueTest()
    {
        for (const char *path : {"/cti/a.cti", "/cti/b.cti", "/later/\xFF.cti"})
            catalogue.addProducer(source, path);
    }

    bool search(
        std::size_t producer, const Interfaces &interfaces, SearchKind kind = SearchKind::SelfUpdating)
    {
        return catalogue.replaceInterfaces(producer, interfaces, kind, now);
    }

    bool searchOne(
        std::size_t producer, const InterfaceRecord &interface, SearchKind kind = SearchKind::SelfUpdating)
    {
        return catalogue.replaceInterface(producer, interface, kind, now);
    }

    /// Returns the extended IDs of the cameras that the program gets.
    Ids takenCameras() { return idsOf(catalogue.takeCameras()); }

    /// Returns the change in the order of the notifications. A camera is "-ID" or "+ID"; the ID of an
    /// interface is in brackets.
    Ids change()
    {
        const CameraListChange change = catalogue.takeChange();
        Ids result;
        for (const std::string &id : idsOf(change.removedCameras))
            result.push_back('-' + id);
        for (const auto &interface : change.removedInterfaces)
            result.push_back("-[" + interface->id() + ']');
        for (const auto &interface : change.addedInterfaces)
            result.push_back("+[" + interface->id() + ']');
        for (const std::string &id : idsOf(change.addedCameras))
            result.push_back('+' + id);
        return result;
    }

    static Ids idsOf(const CameraCatalogue::Cameras &cameras)
    {
        Ids ids;
        for (const auto &camera : cameras)
            ids.push_back(extendedId(*camera));
        return ids;
    }

    std::shared_ptr<FakeSource> source = std::make_shared<FakeSource>();
    CameraCatalogue catalogue;
    TimePoint now;
};
