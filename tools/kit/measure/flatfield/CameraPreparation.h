#pragma once

#include "CvxCPP/Device.h"
#include "tools/kit/measure/run/Sentence.h"

#include <string>
#include <vector>

/// Switches everything off that would change the values of the pixels from image to image or in a way that is
/// not linear: automatic functions, gamma, tables, test patterns, and a correction by the camera itself,
/// which is recognised by its name. Adds what was changed to `changes`, for example "GainAuto=Off". Returns
/// why a feature could not be changed.
Sentence prepareCamera(CvxCPP::Device &device, std::vector<std::string> &changes);

/// Returns true if the camera has a line scan sensor.
bool isLineScanCamera(CvxCPP::Device &device);

/// Returns the exposure time in microseconds; 0 if the camera does not tell.
double exposureTimeOf(CvxCPP::Device &device);
