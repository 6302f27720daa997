#include "sdk/testing/Answer.h"
#include "sdk/testing/ScriptedCvxCPP.h"

#include <algorithm>

namespace CvxScripted {

using namespace CvxCPP;

namespace {

CvxError tellLength(const Text &text, unsigned &size)
{
    if (text.lengthError != CvxErrorSuccess)
        return text.lengthError;
    size = text.length.value_or(static_cast<unsigned>(text.value.size()) + (text.countsNul ? 1 : 0));
    return CvxErrorSuccess;
}

CvxError tellText(const Text &text, char *buffer, unsigned &size)
{
    if (text.textError != CvxErrorSuccess)
        return text.textError;
    const std::size_t needed = text.value.size() + (text.countsNul ? 1 : 0);
    if (size < needed)
        return CvxErrorBufferTooSmall;
    std::copy_n(text.value.c_str(), needed, buffer); // With the NUL of c_str() where it counts.
    size = text.writtenSize.value_or(static_cast<unsigned>(needed));
    return CvxErrorSuccess;
}

CvxError readText(
    Function function, const std::string &subject, const Text &text, char *buffer, unsigned &size)
{
    Call call{function, subject};
    call.asksLength = buffer == nullptr;
    if (const CvxError error = answer(call))
        return error;
    return buffer ? tellText(text, buffer, size) : tellLength(text, size);
}

class ScriptedFeature : public Feature
{
public:
    ScriptedFeature(std::string name, std::shared_ptr<InterfaceRecord> record)
        : m_name(std::move(name)), m_record(std::move(record))
    { }

    CvxError RunCommand() override { return answer({Function::RunCommand, m_name}); }

    CvxError GetRange(long &min, long &max) const override
    {
        const auto &devices = m_record->devices;
        min = m_record->min.value_or(devices.empty() ? 0 : devices.begin()->first);
        max = m_record->max.value_or(devices.empty() ? -1 : devices.rbegin()->first);
        return answer({Function::GetRange, m_name}); // A failed call may have written all the same.
    }

    CvxError SetValue(long value) override
    {
        Call call{Function::SetValue, m_name};
        call.value = value;
        if (const CvxError error = answer(call))
            return error;
        const auto device = m_record->devices.find(value);
        if (device == m_record->devices.end())
            return CvxErrorInvalidParameter;
        if (device->second.selectError != CvxErrorSuccess)
            return device->second.selectError;
        m_record->selected = value;
        return CvxErrorSuccess;
    }

    CvxError GetValue(char *buffer, unsigned &size) const override
    {
        static const DeviceRecord none = nothingSelected();
        const auto device = m_record->devices.find(m_record->selected);
        const DeviceRecord &record = device == m_record->devices.end() ? none : device->second;
        const Text &text = m_name == "DeviceVendorName" ? record.vendor : record.id;
        return readText(Function::GetValue, m_name, text, buffer, size);
    }

private:
    static DeviceRecord nothingSelected()
    {
        DeviceRecord record;
        record.id.lengthError = record.vendor.lengthError = CvxErrorNotAvailable;
        return record;
    }

    std::string m_name;
    std::shared_ptr<InterfaceRecord> m_record;
};

class ScriptedInterface : public Interface
{
public:
    explicit ScriptedInterface(std::shared_ptr<InterfaceRecord> record) : m_record(std::move(record)) { }

    CvxError GetFeatureByName(const char *name, std::shared_ptr<Feature> &feature) override
    {
        if (const CvxError error = answer({Function::GetFeatureByName, name}))
            return error;
        static const std::set<std::string> names{
            "DeviceUpdateList", "DeviceSelector", "DeviceID", "DeviceVendorName"};
        if (names.count(name) == 0 || m_record->missingFeatures.count(name) != 0)
            return CvxErrorNotFound;
        if (m_record->nullFeatures.count(name) != 0)
            feature.reset();
        else
            feature = std::make_shared<ScriptedFeature>(name, m_record);
        return CvxErrorSuccess;
    }

private:
    std::shared_ptr<InterfaceRecord> m_record;
};

class ScriptedCamera : public Camera
{
public:
    explicit ScriptedCamera(CameraRecord record) : m_record(std::move(record)) { }

    CvxError GetID(char *buffer, unsigned &size, bool extended) const override
    {
        return extended ? read(Function::GetExtendedId, m_record.extendedId, buffer, size)
                        : read(Function::GetId, m_record.id, buffer, size);
    }

    CvxError GetModel(char *buffer, unsigned &size) const override
    {
        return read(Function::GetModel, m_record.model, buffer, size);
    }

    CvxError GetName(char *buffer, unsigned &size) const override
    {
        return read(Function::GetName, m_record.name, buffer, size);
    }

    CvxError GetSerialNumber(char *buffer, unsigned &size) const override
    {
        return read(Function::GetSerialNumber, m_record.serialNumber, buffer, size);
    }

    CvxError GetInterfaceType(CvxTransportLayerType &type) const override
    {
        if (const CvxError error = answer({Function::GetInterfaceType, m_record.id.value}))
            return error;
        type = static_cast<CvxTransportLayerType>(m_record.type);
        return CvxErrorSuccess;
    }

    CvxError GetInterface(std::shared_ptr<Interface> &iface) const override
    {
        if (const CvxError error = answer({Function::GetInterface, m_record.id.value}))
            return error;
        iface = m_record.iface ? makeInterface(m_record.iface) : nullptr;
        return CvxErrorSuccess;
    }

private:
    CvxError read(Function function, const Text &text, char *buffer, unsigned &size) const
    {
        return readText(function, m_record.id.value, text, buffer, size);
    }

    CameraRecord m_record;
};

} // namespace

std::shared_ptr<Camera> makeCamera(const CameraRecord &record)
{
    return std::make_shared<ScriptedCamera>(record);
}

std::shared_ptr<Interface> makeInterface(const std::shared_ptr<InterfaceRecord> &record)
{
    return std::make_shared<ScriptedInterface>(record);
}

} // namespace CvxScripted
