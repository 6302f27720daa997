// Two producers that report the same camera.

#include "tests/sdk/support/SystemTest.h"

using Ids = std::vector<std::string>;
using Calls = std::vector<std::string>;

namespace {

std::string camera(
    const std::string &id, const std::string &vendor, const std::string &model, const std::string &serial)
{
    return "device net|" + id + '|' + vendor + '|' + model + '|' + serial + "|Name|GEV\n";
}

const std::string net = "interface net|Net|GEV\n";
const std::string maker = net + camera("M", "Vendor", "Model", "42");
const std::string fallback = net + camera("F", "Vendor", "Model", "42");

} // namespace

/// Directories "cti" and "later", searched in this order.
class DoubleListingTest : public SystemTest
{
protected:
    DoubleListingTest()
    {
        std::filesystem::create_directory(directory.path() / "bin");
        std::filesystem::create_directory(directory.path() / "later");
        setOrder("<Path>cti</Path><Path>later</Path>");
    }

    void setOrder(const std::string &paths)
    {
        writeFile(options.configurationFile, "<c><CtiPaths>" + paths + "</CtiPaths></c>");
    }
    void setLaterScript(const std::string &script) { writeFile(directory.path() / "later/b.script", script); }
    void addLaterProducer(const std::string &script)
    {
        setLaterScript(script);
        std::filesystem::copy_file(TEST_PRODUCER, directory.path() / "later/b.cti");
    }
};

TEST_F(DoubleListingTest, TheEarlierDirectoryShowsTheCamera)
{
    addProducer("a", maker);
    addLaterProducer(fallback + camera("Other", "Vendor", "Model", "43"));
    start();
    EXPECT_EQ(listIds(), (Ids{"a.cti/net/M", "b.cti/net/Other"}));
}

TEST_F(DoubleListingTest, TheOrderIsThatOfTheDirectoriesAndNotOfTheNames)
{
    setOrder("<Path>later</Path><Path>cti</Path>");
    addProducer("a", maker);
    addLaterProducer(fallback);
    start();
    EXPECT_EQ(listIds(), Ids{"b.cti/net/F"});
}

TEST_F(DoubleListingTest, ACameraThatChangesHandsGoesAndComes)
{
    addProducer("a", maker);
    addLaterProducer(fallback);
    start();
    const auto recorder = recordCameras();
    EXPECT_EQ(listIds(), Ids{"a.cti/net/M"});

    setScript("a", net);
    ASSERT_TRUE(waitUntil([&] { return recorder->calls().size() >= 2; }));
    EXPECT_EQ(listIds(), Ids{"b.cti/net/F"});
    setScript("a", maker);
    ASSERT_TRUE(waitUntil([&] { return recorder->calls().size() >= 4; }));
    EXPECT_EQ(listIds(), Ids{"a.cti/net/M"});
    EXPECT_EQ(recorder->calls(), (Calls{"-a.cti/net/M", "+b.cti/net/F", "-b.cti/net/F", "+a.cti/net/M"}));
}

TEST_F(DoubleListingTest, WhenTheLaterProducerLosesItNothingIsAnnounced)
{
    addProducer("a", maker);
    addLaterProducer(fallback);
    start();
    const auto recorder = recordCameras();
    list();
    setLaterScript(net + camera("New", "Vendor", "Model", "44"));
    ASSERT_TRUE(waitUntil([&] { return !recorder->calls().empty(); }));
    setLaterScript(fallback);
    ASSERT_TRUE(waitUntil([&] { return recorder->calls().size() >= 2; }));
    EXPECT_EQ(recorder->calls(), (Calls{"+b.cti/net/New", "-b.cti/net/New"}));
}

TEST_F(DoubleListingTest, ACrashOfTheEarlierProducerBringsTheLaterOnesCamera)
{
    options.firstRestartDelay = std::chrono::hours(1);
    options.maxRestartDelay = options.firstRestartDelay;
    addProducer("a", maker);
    addLaterProducer(fallback);
    start();
    EXPECT_EQ(listIds(), Ids{"a.cti/net/M"});
    setScript("a", maker + "fault IFUpdateDeviceList crash\n");
    EXPECT_TRUE(waitUntil([&] { return listIds() == Ids{"b.cti/net/F"}; }));
}

TEST_F(DoubleListingTest, WithinAProducerOrADirectoryNothingIsLeftOut)
{
    addProducer("a", maker + camera("Again", "Vendor", "Model", "42"));
    addProducer("c", maker);
    start();
    EXPECT_EQ(listIds(), (Ids{"a.cti/net/Again", "a.cti/net/M", "c.cti/net/M"}));
}

TEST_F(DoubleListingTest, TheInterfaceOfAHiddenCameraStillListsIt)
{
    addProducer("a", maker);
    addLaterProducer(fallback + camera("Other", "Vendor", "Model", "43"));
    start();
    const Cameras found = list();
    ASSERT_EQ(found.size(), 2U);
    const auto interface = interfaceOf(found, 1);
    long min = 0, max = -1;
    EXPECT_EQ(feature(*interface, "DeviceSelector")->GetRange(min, max), CvxCPP::CvxErrorSuccess);
    EXPECT_EQ(max, 1) << "two devices, as the producer says";
}

struct Pair
{
    const char *name;
    std::string earlier;
    std::string later;
    bool isSame;
};

std::ostream &operator<<(std::ostream &stream, const Pair &pair)
{
    return stream << pair.name;
}

class SameCamera : public DoubleListingTest, public testing::WithParamInterface<Pair>
{ };

TEST_P(SameCamera, IsToldByVendorModelAndSerialNumber)
{
    addProducer("a", net + GetParam().earlier);
    addLaterProducer(net + GetParam().later);
    start();
    EXPECT_EQ(listIds().size(), GetParam().isSame ? 1U : 2U);
}

INSTANTIATE_TEST_SUITE_P(Cameras, SameCamera,
    testing::Values(Pair{"AllEqual", camera("1", "V", "M", "S"), camera("2", "V", "M", "S"), true},
        Pair{
            "LetterCase", camera("1", "VENDOR", "model", "sN1"), camera("2", "Vendor", "Model", "Sn1"), true},
        Pair{"BlanksAround", camera("1", " V\t", "M ", " S"), camera("2", "V", "  M", "S  "), true},
        Pair{"BlanksWithin", camera("1", "V V", "M", "S"), camera("2", "VV", "M", "S"), false},
        Pair{"OtherVendor", camera("1", "V", "M", "S"), camera("2", "W", "M", "S"), false},
        Pair{"OtherModel", camera("1", "V", "M", "S"), camera("2", "V", "N", "S"), false},
        Pair{"OtherSerial", camera("1", "V", "M", "S"), camera("2", "V", "M", "T"), false},
        Pair{"FieldsMoved", camera("1", "VM", "M", "S"), camera("2", "V", "MM", "S"), false},
        Pair{"NoVendor", camera("1", "", "M", "S"), camera("2", "", "M", "S"), false},
        Pair{"NoModel", camera("1", "V", "", "S"), camera("2", "V", "", "S"), false},
        Pair{"NoSerial", camera("1", "V", "M", ""), camera("2", "V", "M", ""), false},
        Pair{"BlankSerial", camera("1", "V", "M", "  "), camera("2", "V", "M", "  "), false},
        Pair{"SerialOfOneOnly", camera("1", "V", "M", "S"), camera("2", "V", "M", ""), false},
        Pair{"SameIdOnly", camera("1", "V", "M", "S"), camera("1", "V", "M", "T"), false}),
    [](const auto &parameter) { return std::string(parameter.param.name); });
