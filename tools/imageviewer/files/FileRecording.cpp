#include "tools/imageviewer/files/FileRecording.h"
