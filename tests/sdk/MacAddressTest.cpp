#include "sdk/cvxcpp/MacAddress.h"

#include <gtest/gtest.h>
#include <string>

using Addresses = std::vector<MacAddress>;

TEST(MacAddressTest, macAddressesAreFoundOnlyInTheirUsualForms)
{
    const struct
    {
        const char *text;
        Addresses addresses;
    } rows[] = {
        {"00:11:22:aa:bb:cc", {0x001122AABBCC}},
        {"00-11-22-AA-BB-CC", {0x001122AABBCC}},
        {"001122aabbCC", {0x001122AABBCC}},
        {"GEV:00-11-22-33-44-55", {0x001122334455}},
        {"GEV:00:11:22:33:44:55", {0x001122334455}},
        {"DEV_000F31012345", {0x000F31012345}},
        {"Vendor Model (00:11:22:33:44:55)", {0x001122334455}},
        {"000F31012345_Vendor_Model", {0x000F31012345}},
        {"192.168.1.7/00:11:22:33:44:55", {0x001122334455}},
        {"00:11:22:33:44:55,66-77-88-99-AA-BB", {0x001122334455, 0x66778899AABB}},
        {"", {}},
        {"00:11:22:33:44", {}},
        {"00:11:22:33:44:55:66", {}},
        {"00:11:22:33:44:55:66:77:88:99:AA:BB", {}},
        {"00:11:22-33-44-55", {}},
        {"00_11_22_33_44_55", {}},
        {"00 11 22 33 44 55", {}},
        {"0:11:22:33:44:55", {}},
        {"000:11:22:33:44:55", {}},
        {"00::11:22:33:44:55", {}},
        {"00:11:22:33:44:5G", {}},
        {"00:11:22:33:44:556", {}},
        {"00112233445", {}},
        {"0011223344556", {}},
        {"DEV000F31012345", {}},
        {"00112233445G", {}},
        {"001122 334455", {}},
        {"\xC3\xA4"
         "001122334455",
            {}},
        {"00:00:00:00:00:00", {}},
        {"FFFFFFFFFFFF", {}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(macAddressesIn(row.text), row.addresses) << row.text;
}

TEST(MacAddressTest, digitSequencesIgnoreSeparators)
{
    EXPECT_EQ(digitSequencesIn("x00-11:22 33_44.55"), Addresses{0x001122334455});
    EXPECT_EQ(
        digitSequencesIn("00112233445566"), (Addresses{0x001122334455, 0x011223344556, 0x112233445566}));
    EXPECT_EQ(digitSequencesIn("001122z334455"), Addresses{});
    EXPECT_EQ(digitSequencesIn("000000000000"), Addresses{});
    EXPECT_LT(digitSequencesIn(std::string(100000, '1')).size(), 1000U) << "the time for one text is limited";
}
