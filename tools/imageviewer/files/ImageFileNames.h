#pragma once

#include "CvxCPP/Image.h"
#include "sdk/imagefile/CameraRecord.h"
#include "tools/imageviewer/files/FileNamePattern.h"

/// Returns the values of the placeholders for an image of a camera.
FileNameValues fileNameValues(const CameraRecord &camera, const CvxCPP::Image &image);

/// Returns the values for a file that begins now, whose first image is not known yet.
FileNameValues fileNameValues(const CameraRecord &camera);
