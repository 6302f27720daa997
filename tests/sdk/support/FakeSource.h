#pragma once

#include "sdk/cvxcpp/InterfaceSource.h"

#include <atomic>
#include <functional>
#include <memory>
#include <string>

/// Replaces the discovery session in tests of API objects. The test sets the function that searches.
class FakeSource final : public InterfaceSource
{
public:
    RunningFlag runningFlag() const override { return isRunning; }
    SearchResult searchInterface(std::size_t, const std::string &) override { return search(); }

    CvxCPP::CvxResult openDevice(std::size_t, const std::string &, const DeviceRecord &, CvxCPP::CvxAccess,
        std::shared_ptr<CvxCPP::Device> &) override
    {
        return {CvxCPP::CvxErrorNotAvailable, "This source opens no devices."};
    }

    std::shared_ptr<std::atomic<bool>> isRunning = std::make_shared<std::atomic<bool>>(true);
    std::function<SearchResult()> search;
};
