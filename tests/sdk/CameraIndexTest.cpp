#include "sdk/cvxcpp/CameraIndex.h"

#include <gtest/gtest.h>

namespace {

DeviceRecord camera(const char *id, const char *vendor, const char *model, const char *serial)
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
        {"all equal", camera("1", "V", "M", "S"), camera("2", "V", "M", "S"), true},
        {"letter case", camera("1", "VENDOR", "model", "sN1"), camera("2", "Vendor", "Model", "Sn1"), true},
        {"surrounding white space", camera("1", " V\t", "M ", " S"), camera("2", "V", "  M", "S  "), true},
        {"inner white space", camera("1", "V V", "M", "S"), camera("2", "VV", "M", "S"), false},
        {"other vendor", camera("1", "V", "M", "S"), camera("2", "W", "M", "S"), false},
        {"other model", camera("1", "V", "M", "S"), camera("2", "V", "N", "S"), false},
        {"same ID only", camera("1", "V", "M", "S"), camera("1", "V", "M", "T"), false},
        {"same letters in other fields", camera("1", "VM", "M", "S"), camera("2", "V", "MM", "S"), false},
        {"no vendor", camera("1", "", "M", "S"), camera("2", "", "M", "S"), false},
        {"no model", camera("1", "V", "", "S"), camera("2", "V", "", "S"), false},
        {"blank serial number", camera("1", "V", "M", " "), camera("2", "V", "M", " "), false},
        {"letters outside ASCII", camera("1", "\xC3\x84", "M", "S"), camera("2", "\xC3\xA4", "M", "S"),
            false},
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
        {"ID and ID", camera(mac, "V", "M", "S"), camera("DEV_001122aabbcc", "V", "M", ""), true},
        {"both without serial number", camera(mac, "V", "M", ""), camera("001122AABBCC", "v", "m", ""), true},
        {"inside a longer word", camera(mac, "V", "M", "S"), camera("DEV001122AABBCC7", "V", "M", ""), true},
        {"other separators", camera(mac, "V", "M", "S"), camera("n.001122.AABBCC", "V", "M", ""), true},
        {"MAC address as serial number", camera("1", "V", "M", "001122AABBCC"), camera(mac, "V", "M", ""),
            true},
        {"both as serial number", camera("1", "V", "M", "001122AABBCC"), camera("2", "V", "M", mac), false},
        {"other serial number", camera(mac, "V", "M", "S"), camera(mac, "V", "M", "T"), false},
        {"other model", camera(mac, "V", "M", "S"), camera(mac, "V", "N", ""), false},
        {"other vendor", camera(mac, "V", "M", "S"), camera(mac, "W", "M", ""), false},
        {"no vendor", camera(mac, "", "M", ""), camera(mac, "", "M", ""), false},
        {"other MAC address", camera(mac, "V", "M", "S"), camera("DEV_001122AABBCD", "V", "M", ""), false},
        {"no MAC address", camera("Camera 1", "V", "M", ""), camera("Camera 1", "V", "M", ""), false},
        {"zeros", camera("DEV_000000000000", "V", "M", ""), camera("DEV_000000000000", "V", "M", ""), false},
        {"no proper MAC address", camera("x1122334455667", "V", "M", ""),
            camera("y1122334455667", "V", "M", ""), false},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(isSame(row.one, row.other), row.isSame) << row.name;
        EXPECT_EQ(isSame(row.other, row.one), row.isSame) << row.name << ", exchanged";
    }
}

TEST(CameraIndexTest, camerasOfTheSameProducerAreNotCompared)
{
    const CameraIdentity identity = identityOf(camera("1", "V", "M", "S"));
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
