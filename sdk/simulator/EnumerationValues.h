#pragma once

#include <cstddef>
#include <cstdint>

// Values of the enumerations in the register description that the camera's own code names.

constexpr std::int64_t singleFrame = 0; // AcquisitionMode.
constexpr std::int64_t multiFrame = 1;
constexpr std::int64_t continuousAcquisition = 2;

constexpr std::int64_t autoOff = 0; // ExposureAuto, GainAuto, BalanceWhiteAuto.
constexpr std::int64_t autoOnce = 1;

constexpr std::size_t acquisitionStartTrigger = 0; // TriggerSelector.
constexpr std::size_t frameStartTrigger = 1;
constexpr std::size_t lineStartTrigger = 2;
constexpr std::size_t triggerCount = 3;

constexpr std::int64_t softwareSource = 0; // TriggerSource.
constexpr std::int64_t line0Source = 1;
constexpr std::int64_t line1Source = 2;
constexpr std::int64_t encoderSource = 3;
constexpr std::size_t lineCount = 2; // LineSelector.

constexpr std::int64_t risingEdge = 0; // TriggerActivation.
constexpr std::int64_t fallingEdge = 1;
constexpr std::int64_t anyEdge = 2;

constexpr std::size_t chunkImage = 0; // ChunkSelector.
constexpr std::size_t chunkTimestamp = 1;
constexpr std::size_t chunkExposureTime = 2;
constexpr std::size_t chunkFrameId = 3;
constexpr std::size_t chunkGain = 4;
constexpr std::size_t chunkCount = 5;

constexpr std::int64_t defaultUserSet = 0; // UserSetSelector and UserSetDefault.
constexpr std::size_t userSetCount = 3;

/// The inputs that count pulses: one for software triggers of each kind, then the lines.
constexpr std::size_t lineInput = triggerCount;
constexpr std::size_t triggerInputCount = triggerCount + lineCount;
