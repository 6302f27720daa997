#pragma once

#include "sdk/testing/Script.h"

#include <chrono>
#include <cstddef>
#include <vector>

/// A stand-in for libCvxCPP.so, chosen at link time, that answers as a test says and remembers what it was
/// asked. It answers in whatever state it is: a list needs no Startup().
namespace CvxScripted {

/// What is answered. To be changed only while no call is under way.
Script &script();

/// Forgets script, record and observers. To be called before every test.
void reset();

/// All calls since the last reset, in order.
std::vector<Call> calls();

/// How many of them went to `function`.
std::size_t callCount(Function function);

/// True when `function` was called at least `count` times within `bound`.
bool waitForCalls(
    Function function, std::size_t count, std::chrono::milliseconds bound = std::chrono::seconds(10));

/// A camera as the SDK would hand it out.
std::shared_ptr<CvxCPP::Camera> makeCamera(const CameraRecord &record);

/// An interface as the SDK would hand it out.
std::shared_ptr<CvxCPP::Interface> makeInterface(const std::shared_ptr<InterfaceRecord> &record);

/// Calls all camera-list observers, each time on a new thread, and returns when they have returned.
void announceCamera(const CameraRecord &record, CvxCPP::UpdateTriggerType reason);

/// As above, for interfaces.
void announceInterface(const std::shared_ptr<InterfaceRecord> &record, CvxCPP::UpdateTriggerType reason);

/// How many observers, of both kinds, are registered.
std::size_t observerCount();

} // namespace CvxScripted
