#pragma once

#include "CvxCPP/CvxCPP.h"

#include <QByteArray>
#include <QString>

#include <functional>

/// Reads one text of the SDK, with the two calls that the SDK wants.
namespace SdkText {

/// One text operation of the SDK: buffer (null asks for the length) and size, as CvxCPP.h describes.
using Reader = std::function<CvxCPP::CvxError(char *buffer, unsigned &size)>;

/// Stores the text, up to its first NUL, in `text` and returns true. When either call fails, or memory runs
/// out, `text` stays as it was and the result is false.
bool read(const Reader &reader, QByteArray &text);

/// The same for a text to be shown: `text` is what the bytes mean in UTF-8.
bool read(const Reader &reader, QString &text);

} // namespace SdkText
