#pragma once

#include "CvxCPP/Device.h"
#include "sdk/device/DeviceCore.h"

#include <memory>

/// The API object for one opened camera.
class DeviceObject final : public CvxCPP::Device
{
public:
    explicit DeviceObject(std::shared_ptr<DeviceCore> core);
    ~DeviceObject() override; ///< Closes the camera.
    DeviceObject(const DeviceObject &) = delete;
    DeviceObject &operator=(const DeviceObject &) = delete;

    CvxCPP::CvxResult GetNodes(std::vector<CvxCPP::NodeInfo> &nodes) const override;
    CvxCPP::CvxResult ReadStates(
        const std::vector<std::string> &names, std::vector<CvxCPP::NodeState> &states) override;
    CvxCPP::CvxResult Read(const std::string &name, CvxCPP::NodeValue &value) override;
    CvxCPP::CvxResult Write(const std::string &name, const CvxCPP::NodeValue &value) override;
    CvxCPP::CvxResult Execute(const std::string &name) override;
    CvxCPP::CvxResult ReadText(const std::string &name, std::string &text) override;
    CvxCPP::CvxResult WriteText(const std::string &name, const std::string &text) override;
    CvxCPP::CvxResult BeginTemporaryChanges() override;
    CvxCPP::CvxResult EndTemporaryChanges(CvxCPP::TemporaryChanges how) override;
    CvxCPP::CvxResult StartStream(
        unsigned buffers, CvxCPP::StreamPolicy policy, std::shared_ptr<CvxCPP::Stream> &stream) override;
    CvxCPP::CvxResult AddObserver(const std::shared_ptr<CvxCPP::IDeviceObserver> &observer) override;
    CvxCPP::CvxResult RemoveObserver(const std::shared_ptr<CvxCPP::IDeviceObserver> &observer) override;
    CvxCPP::DeviceState GetState(std::uint32_t &reopenCount) const override;
    CvxCPP::CvxResult Close() override;

private:
    const std::shared_ptr<DeviceCore> m_core;
};
