#include "tests/sdk/support/CatalogueTest.h"

#include <utility>

class CameraCatalogueTest : public CatalogueTest
{
protected:
    static Interfaces cameras(const Ids &ids)
    {
        InterfaceRecord record = network("net", {});
        for (const std::string &id : ids)
            record.devices.push_back(camera(id));
        return {record};
    }
};

TEST_F(CameraCatalogueTest, camerasAreSortedByProducerInterfaceAndDevice)
{
    search(1, cameras({"2", "1"}));
    search(0, {network("z", {camera("2"), camera("1")}), network("y", {camera("3")})});
    EXPECT_EQ(takenCameras(), (Ids{"a.cti/y/3", "a.cti/z/1", "a.cti/z/2", "b.cti/net/1", "b.cti/net/2"}));
}

TEST_F(CameraCatalogueTest, equalListChangesNothing)
{
    EXPECT_TRUE(search(0, cameras({"1", "2"})));
    const auto before = catalogue.takeCameras();
    EXPECT_FALSE(search(0, cameras({"2", "1"})));
    EXPECT_EQ(catalogue.takeCameras(), before) << "the same objects";
    EXPECT_EQ(change(), Ids{});
}

TEST_F(CameraCatalogueTest, numberOfCamerasPerProducerIsLimited)
{
    InterfaceRecord crowd = network("a", {});
    for (int i = 0; i < 1200; ++i)
        crowd.devices.push_back(camera(std::to_string(i)));
    search(0, {crowd, network("b", crowd.devices)});
    EXPECT_EQ(catalogue.reportedCameras(0), 1200U);
    EXPECT_EQ(catalogue.takeCameras().size(), 1000U);
}

TEST_F(CameraCatalogueTest, replaceInterfaceFindsTheInterfaceByItsNumber)
{
    search(0, {network("x", {camera("1")}, 7), network("y", {}, 8)});
    takenCameras();
    EXPECT_FALSE(searchOne(0, network("x", {camera("1")}, 7)));
    EXPECT_FALSE(searchOne(0, network("x", {}, 9)));
    EXPECT_TRUE(searchOne(0, network("x", {camera("3"), camera("2")}, 7)));
    EXPECT_EQ(takenCameras(), (Ids{"a.cti/x/2", "a.cti/x/3"}));
    ASSERT_TRUE(catalogue.findInterface(0, "x"));
    EXPECT_EQ(catalogue.findInterface(0, "x")->number, 7U);
    EXPECT_FALSE(catalogue.findInterface(0, "z"));
    EXPECT_FALSE(catalogue.findInterface(1, "x"));
}

TEST_F(CameraCatalogueTest, observersAreNotNotifiedOfAFirstListThatWasReturnedBefore)
{
    search(1, cameras({"1"}));
    EXPECT_TRUE(catalogue.reportChangesFromNowOn(1));
    EXPECT_FALSE(catalogue.reportChangesFromNowOn(1));
    EXPECT_EQ(change(), (Ids{"+[net]", "+b.cti/net/1"}));
    EXPECT_EQ(change(), Ids{});

    search(0, cameras({"1"}));
    EXPECT_EQ(change(), Ids{}) << "the program has no list yet";
    takenCameras();
    EXPECT_EQ(change(), Ids{});
    EXPECT_FALSE(catalogue.reportChangesFromNowOn(0));
    EXPECT_EQ(change(), Ids{});
    search(0, cameras({"1", "2"}));
    takenCameras();
    EXPECT_EQ(change(), Ids{"+a.cti/net/2"}) << "observers are notified of every later change";
}

TEST_F(CameraCatalogueTest, changeContainsAddedAndRemovedObjects)
{
    const DeviceRecord one = camera("1"), two = camera("2");
    const struct
    {
        const char *name;
        Interfaces before, after;
        Ids change;
    } rows[] = {
        {"camera", {network("x", {one})}, {network("x", {two})}, {"-a.cti/x/1", "+a.cti/x/2"}},
        {"interface", {network("x", {})}, {network("y", {})}, {"-[x]", "+[y]"}},
        {"one ID on two interfaces", {network("x", {one}), network("y", {one}, 2)},
            {network("x", {one}), network("y", {}, 2)}, {}},
        {"moved camera", {network("x", {one}), network("y", {}, 2)},
            {network("x", {}), network("y", {one}, 2)}, {"-a.cti/x/1", "+a.cti/y/1"}},
        {"one of two equal devices", {network("x", {one, one})}, {network("x", {one})}, {"-a.cti/x/1"}},
        {"new number and name of the interface", {network("x", {one}, 1)}, {{2, "x", "Other", "GEV", {one}}},
            {}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        search(0, row.before);
        takenCameras();
        change();
        search(0, row.after);
        EXPECT_EQ(change(), row.change);
    }
}

TEST_F(CameraCatalogueTest, changedFieldIsReportedAsARemovedAndAnAddedCamera)
{
    DeviceRecord device{"D", "", "", "", "", ""};
    search(0, {network("n", {device, camera("E")})});
    takenCameras();
    for (std::string *field : {&device.vendor, &device.model, &device.serial, &device.name, &device.type}) {
        *field = "changed";
        search(0, {network("n", {device, camera("E")})});
        EXPECT_EQ(change(), (Ids{"-a.cti/n/D", "+a.cti/n/D"}));
    }
}

TEST_F(CameraCatalogueTest, searchOrderOfTheProducersDecidesForTheFirstList)
{
    const Interfaces same{
        network("net", {camera("1", "Vendor", "Model", "42"), camera("2", "Vendor", "Model", "42")})};
    search(2, same);
    search(1, {network("net", {camera("1", "Vendor", "Model", "42"), camera("3", "V", "M", "S")})});
    search(0, same);
    EXPECT_EQ(takenCameras(), (Ids{"a.cti/net/1", "a.cti/net/2", "b.cti/net/3"}))
        << "one producer may report a camera twice";
    EXPECT_EQ(catalogue.findInterface(1, "net")->devices.size(), 2U)
        << "the interface keeps the hidden camera";
    search(1, {});
    EXPECT_EQ(change(), (Ids{"-b.cti/net/3", "-[net]"})) << "no notification reports a hidden camera";
    search(0, {});
    EXPECT_EQ(takenCameras(), (Ids{"\xEF\xBF\xBD.cti/net/1", "\xEF\xBF\xBD.cti/net/2"}));
}
