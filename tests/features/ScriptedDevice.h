#pragma once

#include "CvxCPP/Device.h"

#include <functional>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// A camera in memory whose features, limits, locks and failures a test defines. Features have a value for
/// each combination of their selectors' values.
class ScriptedDevice : public CvxCPP::Device
{
public:
    struct Feature
    {
        CvxCPP::NodeInfo info;
        CvxCPP::NodeState state; ///< Access, limits and entries; the value is the initial one.
        std::function<void(CvxCPP::NodeState &)> rule; ///< Changes the state before it is used.
        std::function<void(CvxCPP::NodeValue &)>
            onWrite; ///< Changes the value, or other features; also executes a command.
    };

    /// Adds a feature that belongs into a settings file and can be written.
    Feature &add(const std::string &name, const CvxCPP::NodeValue &value);
    Feature &addEntries(const std::string &name, const std::vector<std::string> &entries);
    Feature &addCommand(const std::string &name);
    void select(const std::string &selector, const std::vector<std::string> &names);

    Feature &feature(const std::string &name) { return m_features.at(name); }
    CvxCPP::NodeValue value(const std::string &name) { return storedValue(name); }
    void set(const std::string &name, const CvxCPP::NodeValue &value) { storedValue(name) = value; }

    /// Returns the values that differ from the initial ones, for example "TriggerMode/TriggerSelector=Start".
    std::map<std::string, CvxCPP::NodeValue> changedValues() const;

    std::vector<std::string> writes; ///< Names of the features that were written, and of the commands.
    std::size_t callsUntilLoss = std::numeric_limits<std::size_t>::max();
    std::size_t callCount = 0;

    CvxCPP::CvxResult GetNodes(std::vector<CvxCPP::NodeInfo> &nodes) const override;
    CvxCPP::CvxResult ReadStates(
        const std::vector<std::string> &names, std::vector<CvxCPP::NodeState> &states) override;
    CvxCPP::CvxResult Read(const std::string &name, CvxCPP::NodeValue &value) override;
    CvxCPP::CvxResult Write(const std::string &name, const CvxCPP::NodeValue &value) override;
    CvxCPP::CvxResult Execute(const std::string &name) override;

    CvxCPP::CvxResult ReadText(const std::string &, std::string &) override { return unused(); }
    CvxCPP::CvxResult WriteText(const std::string &, const std::string &) override { return unused(); }
    CvxCPP::CvxResult BeginTemporaryChanges() override;
    CvxCPP::CvxResult EndTemporaryChanges(CvxCPP::TemporaryChanges how) override;
    CvxCPP::CvxResult StartStream(unsigned, CvxCPP::StreamPolicy, std::shared_ptr<CvxCPP::Stream> &) override
    {
        return unused();
    }
    CvxCPP::CvxResult AddObserver(const std::shared_ptr<CvxCPP::IDeviceObserver> &) override
    {
        return unused();
    }
    CvxCPP::CvxResult RemoveObserver(const std::shared_ptr<CvxCPP::IDeviceObserver> &) override
    {
        return unused();
    }
    CvxCPP::DeviceState GetState(std::uint32_t &) const override { return CvxCPP::DeviceState::Open; }
    CvxCPP::CvxResult Close() override { return unused(); }

private:
    static CvxCPP::CvxResult unused() { return {CvxCPP::CvxErrorFailed, "Not scripted."}; }
    CvxCPP::CvxResult check(const std::string &name);
    CvxCPP::NodeState stateOf(const std::string &name);
    CvxCPP::NodeValue &storedValue(const std::string &name);

    std::vector<std::string> m_order;
    std::map<std::string, Feature> m_features;
    std::map<std::string, CvxCPP::NodeValue> m_values; // By name and values of the selectors.
    std::optional<std::map<std::string, CvxCPP::NodeValue>> m_valuesBefore; // During temporary changes.
};
