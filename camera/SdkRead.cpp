#include "camera/SdkText.h"

#include <new>
#include <string>

bool SdkText::read(const Reader &reader, QByteArray &text)
{
    try {
        unsigned size = 0;
        if (reader(nullptr, size) != CvxCPP::CvxErrorSuccess)
            return false;
        std::string buffer(size, '\0');
        if (size > 0 && reader(buffer.data(), size) != CvxCPP::CvxErrorSuccess)
            return false;
        text = QByteArray(buffer.c_str()); // The length may count a NUL; a stored text never carries one.
        return true;
    } catch (const std::bad_alloc &) {
        return false;
    }
}

bool SdkText::read(const Reader &reader, QString &text)
{
    try {
        QByteArray bytes;
        if (!read(reader, bytes))
            return false;
        text = QString::fromUtf8(bytes);
        return true;
    } catch (const std::bad_alloc &) {
        return false;
    }
}
