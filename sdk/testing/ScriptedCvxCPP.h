#pragma once

#include "sdk/testing/Script.h"

#include <cstddef>
#include <vector>

/// A test double of libCvxCPP.so, which tests link instead of the library. Every function returns what the
/// script of the test defines, and every call is recorded. GetCameras() does not require Startup().
namespace CvxScripted {

/// Returns the script. Change it only while no SDK call is running.
Script &script();

/// Clears the script, the recorded calls and the observers. Call it before every test.
void reset();

/// Returns all calls since the last reset, in order.
std::vector<Call> calls();

/// Returns the number of calls of `function` since the last reset.
std::size_t callCount(Function function);

/// Creates a camera object as GetCameras() does.
std::shared_ptr<CvxCPP::Camera> makeCamera(const CameraRecord &record);

/// Creates an interface object as Camera::GetInterface() does.
std::shared_ptr<CvxCPP::Interface> makeInterface(const std::shared_ptr<InterfaceRecord> &record);

/// Notifies all camera-list observers, each on a new thread, and blocks until all of them have returned.
void announceCamera(const CameraRecord &record, CvxCPP::UpdateTriggerType reason);

/// Notifies all interface-list observers, each on a new thread, and blocks until all of them have returned.
void announceInterface(const std::shared_ptr<InterfaceRecord> &record, CvxCPP::UpdateTriggerType reason);

} // namespace CvxScripted
