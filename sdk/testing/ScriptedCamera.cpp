#include "CvxCPP/Device.h"
#include "sdk/testing/ScriptedCvxCPP.h"

#include <algorithm>

namespace CvxScripted {

using namespace CvxCPP;

namespace {

CvxError readString(
    Function function, const std::string &subject, const StringField &field, char *buffer, unsigned &size)
{
    if (const CvxError error = answer({function, subject, buffer == nullptr}))
        return error;
    const std::size_t needed = field.value.size() + (field.countsNul ? 1 : 0);
    if (buffer && size < needed)
        return CvxErrorBufferTooSmall;
    if (buffer)
        std::copy_n(field.value.c_str(), needed, buffer); // c_str() also provides the terminating NUL.
    size = static_cast<unsigned>(needed);
    return CvxErrorSuccess;
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
        return answer({Function::GetRange, m_name}); // A failing call writes its outputs too.
    }

    CvxError SetValue(long value) override
    {
        if (const CvxError error = answer({Function::SetValue, m_name, false, value}))
            return error;
        if (m_record->devices.count(value) == 0)
            return CvxErrorInvalidParameter;
        m_record->selected = value;
        return CvxErrorSuccess;
    }

    CvxError GetValue(char *buffer, unsigned &size) const override
    {
        const auto device = m_record->devices.find(m_record->selected);
        if (device == m_record->devices.end())
            return CvxErrorNotAvailable;
        const DeviceRecord &record = device->second;
        const StringField &field = m_name == "DeviceVendorName" ? record.vendor : record.id;
        return readString(Function::GetValue, m_name, field, buffer, size);
    }

private:
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
        if (m_record->features.count(name) == 0)
            return CvxErrorNotFound;
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
        return read(extended ? Function::GetExtendedId : Function::GetId, buffer, size);
    }

    CvxError GetModel(char *b, unsigned &size) const override { return read(Function::GetModel, b, size); }
    CvxError GetName(char *b, unsigned &size) const override { return read(Function::GetName, b, size); }
    CvxError GetSerialNumber(char *buffer, unsigned &size) const override
    {
        return read(Function::GetSerialNumber, buffer, size);
    }

    CvxError GetUserName(char *buffer, unsigned &size) const override
    {
        return read(Function::GetUserName, buffer, size);
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

    CvxResult Open(CvxAccess, std::shared_ptr<Device> &) override
    {
        return {CvxErrorNotAvailable, "Scripted cameras cannot be opened."};
    }

private:
    CvxError read(Function function, char *buffer, unsigned &size) const
    {
        static const std::map<Function, StringField CameraRecord::*> fields{
            {Function::GetId, &CameraRecord::id}, {Function::GetExtendedId, &CameraRecord::extendedId},
            {Function::GetModel, &CameraRecord::model}, {Function::GetName, &CameraRecord::name},
            {Function::GetSerialNumber, &CameraRecord::serialNumber},
            {Function::GetUserName, &CameraRecord::userName}};
        return readString(function, m_record.id.value, m_record.*fields.at(function), buffer, size);
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
