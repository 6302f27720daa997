#include "tools/imageviewer/files/ImageKeeper.h"

ImageKeeper::ImageKeeper(unsigned maxHeld, std::size_t maxCopied) : m_maxHeld(maxHeld), m_maxCopied(maxCopied)
{ }
