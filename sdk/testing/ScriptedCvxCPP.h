#pragma once

#include "sdk/testing/Script.h"

#include <cstddef>
#include <vector>

/// A double of libCvxCPP.so that tests link in its place. It answers by the test's script and records every
/// call. It keeps no state of its own: GetCameras() works without Startup().
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

/// Notifies all camera-list observers, each on a new thread, and returns when they have returned.
void announceCamera(const CameraRecord &record, CvxCPP::UpdateTriggerType reason);

/// Notifies all interface-list observers in the same way.
void announceInterface(const std::shared_ptr<InterfaceRecord> &record, CvxCPP::UpdateTriggerType reason);

} // namespace CvxScripted
