#include "tools/imageviewer/files/VideoFrames.h"
