#pragma once

#include "CvxCPP/Device.h"
#include "sdk/protocol/DeviceMessages.h"

#include <exception>
#include <new>
#include <string>

/// Returns the error code that the program gets for a failure that a host reports.
CvxCPP::CvxError errorOf(DeviceFailure failure);

/// Makes the results of one camera's functions. The texts start with the camera's label.
class ResultMaker
{
public:
    explicit ResultMaker(std::string label) : m_label(std::move(label)) { }

    /// Returns for example: Orvelle Kx200 (24030117): "Width" does not exist.
    CvxCPP::CvxResult result(CvxCPP::CvxError code, const std::string &text) const;
    CvxCPP::CvxResult result(const RequestFailedReply &failure) const;

    /// Returns the text with the camera's label.
    std::string text(const std::string &text) const { return m_label + ": " + text; }

    /// Runs the body of a public function. Turns every exception except std::bad_alloc into CvxErrorFailed:
    /// no thread or descriptor is left.
    template <typename Body>
    CvxCPP::CvxResult guarded(const Body &body) const
    {
        try {
            return body();
        } catch (const std::bad_alloc &) {
            throw;
        } catch (const std::exception &exception) {
            return result(CvxCPP::CvxErrorFailed, exception.what());
        }
    }

private:
    const std::string m_label;
};
