#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

// The registers of a simulated camera. The camera and the register description are both made from this one
// table, so they cannot disagree about addresses.

/// How a register is stored. Every element starts at a multiple of 8 bytes; all values are little endian.
enum class RegisterType
{
    Integer, ///< 4 bytes, unsigned.
    Long, ///< 8 bytes.
    Float, ///< 8 bytes.
    Text ///< 64 bytes, padded with NUL.
};

/// Who changes a register, and when.
enum class RegisterUse
{
    Constant, ///< Nobody.
    Status, ///< The camera.
    Setting, ///< The consumer at any time; part of the user sets.
    Locked, ///< The consumer while TLParamsLocked is 0; part of the user sets.
    Free, ///< The consumer at any time; not part of the user sets, for example a selector.
    Kept, ///< The consumer at any time; the value survives a restart of the camera.
    Command, ///< The consumer at any time; reads as 0.
    LockedCommand, ///< The consumer while TLParamsLocked is 0; reads as 0.
    Internal ///< The camera; not in the register description.
};

// X(name, type, elements, use, selector, register whose change may change this one)
// The camera may change registers with "*" at any time.
// The elements of a register are selected by the value of the selector's register.
// clang-format off
#define CORVIX_SIMULATOR_REGISTERS(X) \
    X(DeviceVendorName, Text, 1, Constant, "", "") \
    X(DeviceModelName, Text, 1, Constant, "", "") \
    X(DeviceManufacturerInfo, Text, 1, Constant, "", "") \
    X(DeviceVersion, Text, 1, Constant, "", "") \
    X(DeviceFirmwareVersion, Text, 1, Constant, "", "") \
    X(DeviceSerialNumber, Text, 1, Constant, "", "") \
    X(DeviceID, Text, 1, Constant, "", "") \
    X(DeviceUserID, Text, 1, Kept, "", "") \
    X(DeviceScanType, Integer, 1, Constant, "", "") \
    X(DeviceReset, Integer, 1, Command, "", "") \
    X(DeviceTemperatureSelector, Integer, 1, Free, "", "") \
    X(DeviceTemperature, Float, 2, Status, "DeviceTemperatureSelector", "") \
    X(DeviceLinkSpeed, Long, 1, Constant, "", "") \
    X(DeviceLinkThroughputLimitMode, Integer, 1, Locked, "", "") \
    X(DeviceLinkThroughputLimit, Long, 1, Locked, "", "") \
    X(Timestamp, Long, 1, Status, "", "") \
    X(TimestampReset, Integer, 1, Command, "", "") \
    X(TimestampLatch, Integer, 1, Command, "", "") \
    X(TimestampLatchValue, Long, 1, Status, "", "") \
    X(TimestampOrigin, Long, 1, Internal, "", "") \
    X(TemperatureBase, Float, 1, Internal, "", "") \
    X(TemperatureTime, Long, 1, Internal, "", "") \
    X(TemperatureTimeConstant, Float, 1, Internal, "", "") \
    X(SensorWidth, Integer, 1, Constant, "", "") \
    X(SensorHeight, Integer, 1, Constant, "", "") \
    X(IsColor, Integer, 1, Internal, "", "") \
    X(TapCount, Integer, 1, Internal, "", "") \
    X(BinningHorizontalMode, Integer, 1, Setting, "", "") \
    X(BinningHorizontal, Integer, 1, Locked, "", "") \
    X(BinningVertical, Integer, 1, Locked, "", "") \
    X(Width, Integer, 1, Locked, "", "BinningHorizontal") \
    X(Height, Integer, 1, Locked, "", "BinningVertical") \
    X(OffsetX, Integer, 1, Setting, "", "BinningHorizontal") \
    X(OffsetY, Integer, 1, Setting, "", "BinningVertical") \
    X(ReverseX, Integer, 1, Setting, "", "") \
    X(ReverseY, Integer, 1, Setting, "", "") \
    X(PixelFormat, Integer, 1, Locked, "", "") \
    X(TestPattern, Integer, 1, Setting, "", "") \
    X(SceneTarget, Integer, 1, Setting, "", "") \
    X(AcquisitionMode, Integer, 1, Locked, "", "") \
    X(AcquisitionStart, Integer, 1, Command, "", "") \
    X(AcquisitionStop, Integer, 1, Command, "", "") \
    X(AcquisitionFrameCount, Integer, 1, Setting, "", "") \
    X(AcquisitionFrameRateEnable, Integer, 1, Setting, "", "") \
    X(AcquisitionFrameRate, Float, 1, Setting, "", "*") \
    X(AcquisitionLineRateEnable, Integer, 1, Setting, "", "") \
    X(AcquisitionLineRate, Float, 1, Setting, "", "*") \
    X(AcquisitionActive, Integer, 1, Status, "", "") \
    X(AcquisitionStarts, Long, 1, Internal, "", "") \
    X(UsedPulses, Integer, 5, Internal, "", "") \
    X(TriggerSelector, Integer, 1, Free, "", "") \
    X(TriggerMode, Integer, 3, Setting, "TriggerSelector", "") \
    X(TriggerSource, Integer, 3, Setting, "TriggerSelector", "") \
    X(TriggerActivation, Integer, 3, Setting, "TriggerSelector", "") \
    X(TriggerDelay, Float, 3, Setting, "TriggerSelector", "") \
    X(TriggerDivider, Integer, 3, Setting, "TriggerSelector", "") \
    X(TriggerMultiplier, Integer, 3, Setting, "TriggerSelector", "") \
    X(TriggerSoftware, Integer, 3, Command, "TriggerSelector", "") \
    X(ExposureAuto, Integer, 1, Setting, "", "*") \
    X(ExposureTime, Float, 1, Setting, "", "*") \
    X(LineSelector, Integer, 1, Free, "", "") \
    X(LineStatus, Integer, 2, Status, "LineSelector", "") \
    X(LineSignalFrequency, Float, 2, Setting, "LineSelector", "") \
    X(GainSelector, Integer, 1, Free, "", "") \
    X(GainRaw, Integer, 9, Setting, "GainSelector", "*") \
    X(GainAuto, Integer, 1, Setting, "", "*") \
    X(BlackLevelSelector, Integer, 1, Free, "", "") \
    X(BlackLevelRaw, Integer, 9, Setting, "BlackLevelSelector", "") \
    X(Gamma, Float, 1, Setting, "", "") \
    X(BalanceRatioSelector, Integer, 1, Free, "", "") \
    X(BalanceRatio, Float, 3, Setting, "BalanceRatioSelector", "*") \
    X(BalanceWhiteAuto, Integer, 1, Setting, "", "*") \
    X(LensFocusPosition, Integer, 1, Setting, "", "") \
    X(EncoderSelector, Integer, 1, Free, "", "") \
    X(EncoderSourceA, Integer, 1, Setting, "", "") \
    X(EncoderSourceB, Integer, 1, Setting, "", "") \
    X(EncoderMode, Integer, 1, Setting, "", "") \
    X(EncoderDivider, Integer, 1, Setting, "", "") \
    X(EncoderResolution, Float, 1, Setting, "", "") \
    X(EncoderSpeed, Float, 1, Setting, "", "") \
    X(EncoderReset, Integer, 1, Command, "", "") \
    X(EncoderValue, Long, 1, Status, "", "") \
    X(EncoderOrigin, Long, 1, Internal, "", "") \
    X(UserSetSelector, Integer, 1, Free, "", "") \
    X(UserSetLoad, Integer, 1, LockedCommand, "", "") \
    X(UserSetSave, Integer, 1, Command, "", "") \
    X(UserSetDefault, Integer, 1, Kept, "", "") \
    X(ChunkModeActive, Integer, 1, Locked, "", "") \
    X(ChunkSelector, Integer, 1, Free, "", "") \
    X(ChunkEnable, Integer, 5, Locked, "ChunkSelector", "") \
    X(TLParamsLocked, Integer, 1, Free, "", "") \
    X(PayloadSize, Long, 1, Status, "", "") \
    X(DeviceTapGeometry, Integer, 1, Constant, "", "")
// clang-format on

enum class RegisterId : std::size_t
{
#define CORVIX_REGISTER_ID(name, ...) name,
    CORVIX_SIMULATOR_REGISTERS(CORVIX_REGISTER_ID)
#undef CORVIX_REGISTER_ID
};

struct RegisterInfo
{
    RegisterId id;
    std::string_view name;
    RegisterType type;
    std::size_t elements;
    RegisterUse use;
    std::string_view selector; ///< Name of the register that selects the element; empty if there is none.
    std::string_view invalidator; ///< Name of a register; "*" if the camera changes the register.
    std::size_t offset = 0; ///< Offset of the first element, in bytes from the start of the registers.

    std::size_t elementSize() const { return type == RegisterType::Text ? 64 : 8; } ///< Includes padding.
    std::size_t valueSize() const { return type == RegisterType::Integer ? 4 : elementSize(); }
    std::size_t end() const { return offset + elements * elementSize(); }
    bool isIn(std::initializer_list<RegisterUse> uses) const
    {
        for (const RegisterUse candidate : uses)
            if (candidate == use)
                return true;
        return false;
    }
    bool isChangedByCamera() const
    {
        return isIn({RegisterUse::Status, RegisterUse::Command, RegisterUse::LockedCommand})
            || invalidator == "*";
    }
    bool isInUserSet() const { return isIn({RegisterUse::Setting, RegisterUse::Locked}); }
};

constexpr std::array registerNames{
#define CORVIX_REGISTER_NAME(name, ...) std::string_view(#name),
    CORVIX_SIMULATOR_REGISTERS(CORVIX_REGISTER_NAME)
#undef CORVIX_REGISTER_NAME
};
constexpr std::size_t registerCount = registerNames.size();

/// Address of the first register, and of the register description.
constexpr std::uint64_t registersAddress = 0x1000;
constexpr std::uint64_t descriptionAddress = 0x100000;

/// Returns all registers in the order of their addresses.
const std::array<RegisterInfo, registerCount> &registerTable();

/// Returns one register.
const RegisterInfo &registerInfo(RegisterId id);

/// Number of bytes that all registers use.
constexpr std::size_t registersSize = [] {
    std::size_t size = 0;
#define CORVIX_REGISTER_SIZE(name, type, elements, ...)                                                      \
    size += (RegisterType::type == RegisterType::Text ? 64U : 8U) * (elements);
    CORVIX_SIMULATOR_REGISTERS(CORVIX_REGISTER_SIZE)
#undef CORVIX_REGISTER_SIZE
    return size;
}();
