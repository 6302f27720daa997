#include "sdk/names/CameraNames.h"

#include "sdk/testing/ScriptedCvxCPP.h"

#include <gtest/gtest.h>

namespace {

using namespace CvxScripted;

CameraRecord gigeCamera()
{
    CameraRecord record{
        "CAM-1", "Kx200", "Orvelle Kx200", "2403", "a.cti/net/CAM-1", CvxCPP::CvxTransportLayerGigE};
    record.userName = "Conveyor";
    return record;
}

std::vector<std::string> texts(const CameraNames &names)
{
    return {names.id, names.extendedId, names.model, names.serial, names.name, names.userName};
}

class CameraNamesTest : public testing::Test
{
protected:
    CameraNamesTest() { reset(); }
};

} // namespace

TEST_F(CameraNamesTest, allStringsAreRead)
{
    const std::vector<std::string> expected{
        "CAM-1", "a.cti/net/CAM-1", "Kx200", "2403", "Orvelle Kx200", "Conveyor"};
    EXPECT_EQ(texts(readCameraNames(*makeCamera(gigeCamera()))), expected);
}

TEST_F(CameraNamesTest, unreadableStringIsEmpty)
{
    script().errors[Function::GetUserName] = CvxCPP::CvxErrorFailed;
    const CameraNames names = readCameraNames(*makeCamera(gigeCamera()));
    EXPECT_EQ(names.userName, "");
    EXPECT_EQ(names.serial, "2403");
}

TEST_F(CameraNamesTest, technologyIsNamed)
{
    CameraRecord record = gigeCamera();
    EXPECT_STREQ(technologyName(*makeCamera(record)), "GigE");
    record.type = 99;
    EXPECT_STREQ(technologyName(*makeCamera(record)), "unknown");
    record.type = CvxCPP::CvxTransportLayerMixed;
    EXPECT_STREQ(technologyName(*makeCamera(record)), "mixed");
    script().errors[Function::GetInterfaceType] = CvxCPP::CvxErrorNotStarted;
    EXPECT_STREQ(technologyName(*makeCamera(record)), "unknown");
}
