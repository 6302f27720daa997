// These tests read registers from a simulated camera. They must run in a network namespace that contains only
// lo.

#include "sdk/gige/GvcpReader.h"
#include "sdk/gige/DescriptionUrls.h"
#include "sdk/gige/GigECamera.h"
#include "sdk/gige/RegisterWords.h"
#include "sdk/gige/WatchedCamera.h"
#include "tests/aravis/FakeCameraRegisters.h"
#include "tests/gvcp/RegisterResponder.h"

#include <algorithm>
#include <atomic>
#include <gtest/gtest.h>
#include <numeric>

using namespace GenTL;
using Bytes = RegisterResponder::Bytes;
using Send = RegisterResponder::Send;

namespace {

constexpr std::uint32_t loopback = INADDR_LOOPBACK;

std::size_t number(const Bytes &bytes, std::size_t offset, std::size_t size)
{
    std::size_t result = 0;
    for (std::size_t index = 0; index < size; ++index)
        result = result << 8 | bytes.at(offset + index);
    return result;
}

/// Returns the answer of a camera whose every byte is the low byte of its address.
Bytes goodAnswer(const Bytes &command)
{
    const std::size_t address = number(command, 8, 4);
    const bool isSingle = number(command, 2, 2) == 0x0080;
    const std::size_t size = isSingle ? 4 : number(command, 14, 2);
    EXPECT_EQ(number(command, 0, 2), 0x4201U);
    EXPECT_EQ(address % 4, 0U);
    EXPECT_EQ(size % 4, 0U);
    EXPECT_LE(size, 512U);
    Bytes data(isSingle ? Bytes{} : Bytes(command.begin() + 8, command.begin() + 12));
    for (std::size_t index = 0; index < size; ++index)
        data.push_back(static_cast<std::uint8_t>(address + index));
    return RegisterResponder::answerTo(command, 0, data);
}

Bytes readBytes(std::uint64_t address, std::size_t size)
{
    Bytes bytes(size);
    GvcpReader(loopback, loopback).read(address, bytes.data(), size);
    return bytes;
}

} // namespace

TEST(GvcpReader, anyNumberOfBytesIsReadAtAnyAddress)
{
    const RegisterResponder camera([](const Bytes &command, const Send &send) { send(goodAnswer(command)); });
    for (const std::size_t size : {0U, 1U, 4U, 5U, 512U, 513U, 1030U}) {
        for (const std::uint64_t address : {0x1000U, 0x1001U, 0x1003U}) {
            Bytes expected(size);
            std::iota(expected.begin(), expected.end(), static_cast<std::uint8_t>(address));
            EXPECT_EQ(readBytes(address, size), expected) << size << " bytes at " << address;
        }
    }
    EXPECT_EQ(errorOf([] { readBytes(0xFFFFFFFE, 4); }), GC_ERR_INVALID_ADDRESS);
    EXPECT_EQ(errorOf([] { readBytes(0xF000000000000000, 4); }), GC_ERR_INVALID_ADDRESS);
}

TEST(GvcpReader, onlyTheAnswerToTheCommandCounts)
{
    const RegisterResponder camera([](const Bytes &command, const Send &send) {
        Bytes wrongId = goodAnswer(command), wrongCode = wrongId;
        wrongId[7] ^= 2;
        wrongCode[3] ^= 4;
        wrongId.back() = wrongCode.back() = 0xEE;
        for (const Bytes &datagram : {Bytes(3), wrongId, wrongCode, goodAnswer(command)})
            send(datagram);
    });
    EXPECT_EQ(readBytes(0x1000, 4), (Bytes{0, 1, 2, 3}));
}

TEST(GvcpReader, lostCommandIsRepeated)
{
    int commands = 0;
    const RegisterResponder camera([&](const Bytes &command, const Send &send) {
        if (++commands == ControlConnection::maxAttempts)
            send(goodAnswer(command));
    });
    EXPECT_EQ(readBytes(0x1000, 4), (Bytes{0, 1, 2, 3}));
}

TEST(GvcpReader, busyCameraIsWaitedFor)
{
    std::atomic<const RegisterResponder *> responder{nullptr};
    const RegisterResponder camera([&](const Bytes &command, const Send &send) {
        constexpr std::uint16_t pendingAnswer = 0x0089;
        const Bytes tenSeconds{0, 0, 0x27, 0x10};
        send(RegisterResponder::datagram(
            0, pendingAnswer, static_cast<std::uint16_t>(number(command, 6, 2)), tenSeconds));
        EXPECT_FALSE(responder.load()->hasCommandWithin(2 * ControlConnection::answerTimeout));
        send(goodAnswer(command));
    });
    responder = &camera;
    EXPECT_EQ(readBytes(0x1000, 4), (Bytes{0, 1, 2, 3}));
}

TEST(GvcpReader, failuresHaveCodes)
{
    std::atomic<std::uint16_t> status{0};
    const RegisterResponder camera([&](const Bytes &command, const Send &send) {
        send(RegisterResponder::answerTo(command, status, {}));
    });
    const std::pair<std::uint16_t, GC_ERROR> cases[]
        = {{0x8003, GC_ERR_INVALID_ADDRESS}, {0x8005, GC_ERR_INVALID_ADDRESS}, {0x8006, GC_ERR_ACCESS_DENIED},
            {0x8002, GC_ERR_INVALID_VALUE}, {0x8FFF, GC_ERR_IO}, {0, GC_ERR_IO}};
    for (const auto &[cameraStatus, expected] : cases) {
        status = cameraStatus;
        EXPECT_EQ(errorOf([] { readBytes(0x1000, 4); }), expected) << cameraStatus;
    }
}

TEST(GigECamera, programThatControlsTheCameraIsNamed)
{
    constexpr std::size_t controllerAddress = 0x0A14;
    std::atomic<std::uint16_t> status{0};
    std::atomic<bool> isNamed{true};
    const RegisterResponder camera([&](const Bytes &command, const Send &send) {
        const bool isAsked = number(command, 8, 4) == controllerAddress;
        const Bytes controller = isNamed ? Bytes{10, 0, 2, 15} : Bytes{0, 0, 0, 0};
        send(isAsked ? RegisterResponder::answerTo(command, status, controller) : goodAnswer(command));
    });
    const auto text = [] {
        try {
            openGigECamera({"Cam", loopback, loopback}, DEVICE_ACCESS_CONTROL);
        } catch (const GenTlError &error) {
            EXPECT_EQ(error.code(), GC_ERR_ACCESS_DENIED);
            return std::string(error.what());
        }
        return std::string("It is open.");
    };
    EXPECT_EQ(text(), "Cam is in use: a program at 10.0.2.15 controls it.");
    isNamed = false;
    EXPECT_EQ(text(), "Cam is in use: another program controls it.");
    status = 0x8003;
    EXPECT_EQ(text(), "Cam is in use: another program controls it.") << "the camera has no such register";
}

TEST(WatchedCamera, silentCameraIsLost)
{
    std::atomic<bool> isSilent{false};
    const RegisterResponder responder([&](const Bytes &command, const Send &send) {
        if (!isSilent)
            send(goodAnswer(command));
    });
    WatchedCamera camera(loopback, loopback);
    int losses = 0;
    camera.setLossHandler([&] { ++losses; });
    EXPECT_EQ(readNumber(camera, 0x1000), 0x00010203U);
    EXPECT_EQ(camera.timestampFrequency(), 0x3C3D3E3F40414243U);
    EXPECT_EQ(camera.imageSource(), nullptr);
    EXPECT_EQ(errorOf([&] { writeNumber(camera, 0x1000, 1); }), GC_ERR_ACCESS_DENIED);
    EXPECT_EQ(camera.accessStatus(), DEVICE_ACCESS_STATUS_OPEN_READONLY);
    isSilent = true;
    for (const GC_ERROR expected : {GC_ERR_TIMEOUT, GC_ERR_TIMEOUT, GC_ERR_IO})
        EXPECT_EQ(errorOf([&] { readNumber(camera, 0x1000); }), expected);
    EXPECT_EQ(losses, 1);
    EXPECT_EQ(camera.accessStatus(), DEVICE_ACCESS_STATUS_NOACCESS);
}

TEST(DescriptionUrls, registersOfTheCameraComeFirst)
{
    const auto urls = [](const std::string &first, const std::string &second) {
        return readDescriptionUrls([&](std::uint64_t address, void *data, std::size_t size) {
            const std::string &url = address == 0x0200 ? first : second;
            std::copy_n(url.data(), std::min(size, url.size()), static_cast<char *>(data));
        });
    };
    using Urls = std::vector<std::string>;
    EXPECT_EQ(urls("Local:a.zip;1;2", ""), (Urls{"Local:a.zip;1;2"}));
    EXPECT_EQ(urls("http://a", "LOCAL:b;1;2"), (Urls{"LOCAL:b;1;2", "http://a"}));
    EXPECT_EQ(urls("", std::string(600, 'x')), (Urls{std::string(512, 'x')})) << "a text without a NUL";
}

TEST(RegisterWords, wholeRegistersContainTheRange)
{
    const RegisterWords words = wordsAround(0x1003, 2);
    EXPECT_EQ(words.start, 0x1000U);
    EXPECT_EQ(words.size, 8U);
    EXPECT_EQ(words.offset, 3U);
    EXPECT_EQ(wordsAround(0xFFFFFFFC, 4).size, 4U) << "the last register";
}
