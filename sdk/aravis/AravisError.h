#pragma once

#include "sdk/producer/OpenCamera.h"

#include <arv.h>
#include <string>

/// Receives the error of one call of libaravis.
class AravisError
{
public:
    AravisError() = default;
    ~AravisError() { g_clear_error(&m_error); }
    AravisError(const AravisError &) = delete;
    AravisError &operator=(const AravisError &) = delete;

    /// Returns the last argument of the call.
    GError **receiver() { return &m_error; }

    bool isSet() const { return m_error != nullptr; }

    /// Returns true if the connection to the camera is broken for good.
    bool isDisconnected() const;

    /// Returns the error for the consumer: "<action>: <text of libaravis>".
    GenTlError toGenTl(const std::string &action) const;

private:
    GError *m_error = nullptr;
};
