#pragma once

#include "sdk/cvxcpp/CameraIdentity.h"

#include <cstddef>
#include <map>
#include <string>
#include <unordered_map>

/// Finds out whether another producer has the same camera. Two cameras are the same
/// - if their vendors, models and serial numbers are equal, or
/// - if at least one of them has no serial number, their vendors and models are equal, and the ID or serial
///   number of one contains the MAC address of the other.
/// A camera without vendor or model is never the same as another one.
class CameraIndex
{
public:
    void add(const CameraIdentity &camera, std::size_t producer);

    /// Returns true if the index contains the same camera from a producer other than `producer`.
    bool hasSame(const CameraIdentity &camera, std::size_t producer) const;

private:
    /// The producers of the cameras with one property. Two different producers are enough to answer every
    /// question, because one of them is not the producer of the question.
    class Producers
    {
    public:
        void add(std::size_t producer);
        bool hasOtherThan(std::size_t producer) const;

    private:
        std::size_t m_first = 0, m_second = 0; // One more than the index; 0 means that there is none.
    };
    using ByAddress = std::unordered_map<MacAddress, Producers>;

    struct Addresses
    {
        // The producers for each element of the members of CameraIdentity with these names.
        ByAddress addresses, digits;

        void add(const CameraIdentity &camera, std::size_t producer);
        bool hasMatch(const CameraIdentity &camera, std::size_t producer) const;
    };

    /// The cameras of one vendor and model.
    struct Model
    {
        std::unordered_map<std::string, Producers> serials;
        Addresses withSerial, withoutSerial;
    };

    std::map<std::string, Model> m_models;
};
