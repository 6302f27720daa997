#include "sdk/cvxcpp/CameraIndex.h"

#include <gtest/gtest.h>

namespace {

DeviceRecord indexedCamera(const char *id, const char *vendor, const char *model, const char *serial)
{
    return {id, vendor, model, serial, "", ""};
}

bool isSame(const DeviceRecord &one, const DeviceRecord &other)
{
    CameraIndex index;
    index.add(identityOf(one), 0);
    return index.hasSame(identityOf(other), 1);
}

} // namespace

TEST(CameraIndexTest, sameVendorModelAndSerialNumberMeanTheSameCamera)
{
    const struct
    {
        const char *name;
        DeviceRecord one, other;
        bool isSame;
    } rows[] = {
        {"all equal", indexedCamera("1", "V", "M", "S"), indexedCamera("2", "V", "M", "S"), true},
        {"letter case", indexedCamera("1", "VENDOR", "model", "sN1"),
            indexedCamera("2", "Vendor", "Model", "Sn1"), true},
        {"surrounding white space", indexedCamera("1", " V\t", "M ", " S"),
            indexedCamera("2", "V", "  M", "S  "), true},
        {"inner white space", indexedCamera("1", "V V", "M", "S"), indexedCamera("2", "VV", "M", "S"), false},
        {"other vendor", indexedCamera("1", "V", "M", "S"), indexedCamera("2", "W", "M", "S"), false},
        {"other model", indexedCamera("1", "V", "M", "S"), indexedCamera("2", "V", "N", "S"), false},
        {"same ID only", indexedCamera("1", "V", "M", "S"), indexedCamera("1", "V", "M", "T"), false},
        {"same letters in other fields", indexedCamera("1", "VM", "M", "S"),
            indexedCamera("2", "V", "MM", "S"), false},
        {"no vendor", indexedCamera("1", "", "M", "S"), indexedCamera("2", "", "M", "S"), false},
        {"no model", indexedCamera("1", "V", "", "S"), indexedCamera("2", "V", "", "S"), false},
        {"blank serial number", indexedCamera("1", "V", "M", " "), indexedCamera("2", "V", "M", " "), false},
        {"letters outside ASCII", indexedCamera("1", "\xC3\x84", "M", "S"),
            indexedCamera("2", "\xC3\xA4", "M", "S"), false},
    };
    for (const auto &row : rows)
        EXPECT_EQ(isSame(row.one, row.other), row.isSame) << row.name;
}

TEST(CameraIndexTest, macAddressIdentifiesACameraWithoutSerialNumber)
{
    const char *mac = "00:11:22:AA:BB:CC";
    const struct
    {
        const char *name;
        DeviceRecord one, other;
        bool isSame;
    } rows[] = {
        {"ID and ID", indexedCamera(mac, "V", "M", "S"), indexedCamera("DEV_001122aabbcc", "V", "M", ""),
            true},
        {"both without serial number", indexedCamera(mac, "V", "M", ""),
            indexedCamera("001122AABBCC", "v", "m", ""), true},
        {"inside a longer word", indexedCamera(mac, "V", "M", "S"),
            indexedCamera("DEV001122AABBCC7", "V", "M", ""), true},
        {"other separators", indexedCamera(mac, "V", "M", "S"),
            indexedCamera("n.001122.AABBCC", "V", "M", ""), true},
        {"MAC address as serial number", indexedCamera("1", "V", "M", "001122AABBCC"),
            indexedCamera(mac, "V", "M", ""), true},
        {"both as serial number", indexedCamera("1", "V", "M", "001122AABBCC"),
            indexedCamera("2", "V", "M", mac), false},
        {"other serial number", indexedCamera(mac, "V", "M", "S"), indexedCamera(mac, "V", "M", "T"), false},
        {"other model", indexedCamera(mac, "V", "M", "S"), indexedCamera(mac, "V", "N", ""), false},
        {"other vendor", indexedCamera(mac, "V", "M", "S"), indexedCamera(mac, "W", "M", ""), false},
        {"no vendor", indexedCamera(mac, "", "M", ""), indexedCamera(mac, "", "M", ""), false},
        {"other MAC address", indexedCamera(mac, "V", "M", "S"),
            indexedCamera("DEV_001122AABBCD", "V", "M", ""), false},
        {"no MAC address", indexedCamera("Camera 1", "V", "M", ""), indexedCamera("Camera 1", "V", "M", ""),
            false},
        {"zeros", indexedCamera("DEV_000000000000", "V", "M", ""),
            indexedCamera("DEV_000000000000", "V", "M", ""), false},
        {"no proper MAC address", indexedCamera("x1122334455667", "V", "M", ""),
            indexedCamera("y1122334455667", "V", "M", ""), false},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(isSame(row.one, row.other), row.isSame) << row.name;
        EXPECT_EQ(isSame(row.other, row.one), row.isSame) << row.name << ", exchanged";
    }
}

TEST(CameraIndexTest, camerasOfTheSameProducerAreNotCompared)
{
    const CameraIdentity identity = identityOf(indexedCamera("1", "V", "M", "S"));
    CameraIndex index;
    EXPECT_FALSE(index.hasSame(identity, 1));
    index.add(identity, 1);
    EXPECT_FALSE(index.hasSame(identity, 1));
    EXPECT_TRUE(index.hasSame(identity, 0));
    index.add(identity, 2);
    index.add(identity, 0);
    for (const std::size_t producer : {0, 1, 2, 3})
        EXPECT_TRUE(index.hasSame(identity, producer)) << producer;
}
