#include "tools/imageviewer/files/VideoWriter.h"
