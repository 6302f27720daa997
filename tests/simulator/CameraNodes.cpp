#include <arv.h>

#include "tests/simulator/CameraNodes.h"

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <regex>
#include <set>

namespace {

/// A device of libaravis that reads and writes registers of an open camera.
struct PortDevice
{
    ArvDevice parent;
    OpenCamera *camera;
};
struct PortDeviceClass
{
    ArvDeviceClass parent;
};
G_DEFINE_TYPE(PortDevice, port_device, ARV_TYPE_DEVICE)

void port_device_init(PortDevice *) { }

template <typename Access>
gboolean tryAccess(GError **error, Access access)
{
    try {
        access();
        return TRUE;
    } catch (const GenTlError &problem) {
        g_set_error(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_TRANSFER_ERROR, "%s", problem.what());
        return FALSE;
    }
}

gboolean readMemory(ArvDevice *device, guint64 address, guint32 size, void *buffer, GError **error)
{
    return tryAccess(
        error, [&] { reinterpret_cast<PortDevice *>(device)->camera->read(address, buffer, size); });
}

gboolean writeMemory(ArvDevice *device, guint64 address, guint32 size, void *buffer, GError **error)
{
    return tryAccess(
        error, [&] { reinterpret_cast<PortDevice *>(device)->camera->write(address, buffer, size); });
}

void port_device_class_init(PortDeviceClass *type)
{
    type->parent.read_memory = readMemory;
    type->parent.write_memory = writeMemory;
}

/// Receives the error of a call.
class CallError
{
public:
    ~CallError() { g_clear_error(&m_error); }
    GError **get() { return &m_error; }
    bool isSet() const { return m_error != nullptr; }

private:
    GError *m_error = nullptr;
};

std::string readDescription(OpenCamera &camera)
{
    const std::string url = camera.descriptionUrls().at(0);
    const std::size_t addressStart = url.find(';') + 1;
    const std::size_t lengthStart = url.find(';', addressStart) + 1;
    std::string data(std::stoull(url.substr(lengthStart), nullptr, 16), '\0');
    camera.read(std::stoull(url.substr(addressStart), nullptr, 16), data.data(), data.size());
    return data;
}

std::string unzipped(const std::string &data)
{
    if (data.rfind("PK", 0) != 0)
        return data;
    ArvZip *const zip = arv_zip_new(data.data(), data.size());
    const GSList *const files = arv_zip_get_file_list(zip);
    std::size_t size = 0;
    auto *const file = static_cast<char *>(
        arv_zip_get_file(zip, arv_zip_file_get_name(static_cast<ArvZipFile *>(files->data)), &size));
    std::string text(file, size);
    g_free(file);
    arv_zip_free(zip);
    return text;
}

} // namespace

struct CameraNodes::State
{
    PortDevice *device = static_cast<PortDevice *>(g_object_new(port_device_get_type(), nullptr));
    ArvGc *nodes = nullptr;

    ~State()
    {
        g_object_unref(nodes);
        g_object_unref(device);
    }
    ArvGcNode *node(const std::string &name) const { return arv_gc_get_node(nodes, name.c_str()); }
    ArvGcFeatureNode *feature(const std::string &name) const { return ARV_GC_FEATURE_NODE(node(name)); }
};

CameraNodes::CameraNodes(OpenCamera &camera)
    : m_state(std::make_unique<State>()), m_text(unzipped(readDescription(camera)))
{
    m_state->device->camera = &camera;
    m_state->nodes = arv_gc_new(ARV_DEVICE(m_state->device), m_text.data(), m_text.size());
}

CameraNodes::~CameraNodes() = default;

std::vector<std::string> CameraNodes::features() const
{
    std::vector<std::string> names{"Root"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        ArvGcNode *const node = m_state->node(names[i]);
        if (!ARV_IS_GC_CATEGORY(node))
            continue;
        for (const GSList *entry = arv_gc_category_get_features(ARV_GC_CATEGORY(node)); entry;
             entry = entry->next)
            names.emplace_back(static_cast<const char *>(entry->data));
    }
    return names;
}

std::vector<std::string> CameraNodes::missingNodes() const
{
    const std::regex reference("<p[A-Z][^>]*>([^<]*)</p[A-Z]");
    std::vector<std::string> missing;
    for (std::sregex_iterator match(m_text.begin(), m_text.end(), reference), end; match != end; ++match)
        if (!m_state->node((*match)[1]))
            missing.push_back((*match)[1]);
    return missing;
}

CameraNodes::Kind CameraNodes::kind(const std::string &name) const
{
    ArvGcNode *const node = m_state->node(name);
    if (ARV_IS_GC_CATEGORY(node))
        return Kind::Category;
    if (ARV_IS_GC_ENUMERATION(node))
        return Kind::Enumeration;
    if (ARV_IS_GC_INTEGER(node))
        return Kind::Integer;
    if (ARV_IS_GC_COMMAND(node))
        return Kind::Command;
    return ARV_IS_GC_FLOAT(node) ? Kind::Float : Kind::Other;
}

bool CameraNodes::isAvailable(const std::string &name) const
{
    CallError error;
    return arv_gc_feature_node_is_available(m_state->feature(name), error.get()) && !error.isSet();
}

bool CameraNodes::isWritable(const std::string &name) const
{
    CallError error;
    ArvGcFeatureNode *const node = m_state->feature(name);
    return arv_gc_feature_node_get_actual_access_mode(node) != ARV_GC_ACCESS_MODE_RO
        && !arv_gc_feature_node_is_locked(node, error.get()) && !error.isSet();
}

std::string CameraNodes::value(const std::string &name) const
{
    CallError error;
    const char *const value = arv_gc_feature_node_get_value_as_string(m_state->feature(name), error.get());
    EXPECT_FALSE(error.isSet()) << name << ": " << (*error.get() ? (*error.get())->message : "");
    EXPECT_NE(value, nullptr) << name;
    return value ? value : "";
}

CameraNodes::Limits CameraNodes::limits(const std::string &name) const
{
    ArvGcNode *const node = m_state->node(name);
    CallError min;
    CallError max;
    CallError increment;
    Limits limits{};
    if (kind(name) == Kind::Integer) {
        limits.min = static_cast<double>(arv_gc_integer_get_min(ARV_GC_INTEGER(node), min.get()));
        limits.max = static_cast<double>(arv_gc_integer_get_max(ARV_GC_INTEGER(node), max.get()));
        limits.increment = static_cast<double>(arv_gc_integer_get_inc(ARV_GC_INTEGER(node), increment.get()));
    } else {
        limits.min = arv_gc_float_get_min(ARV_GC_FLOAT(node), min.get());
        limits.max = arv_gc_float_get_max(ARV_GC_FLOAT(node), max.get());
    }
    EXPECT_FALSE(min.isSet() || max.isSet()) << name;
    return limits;
}

std::vector<std::string> CameraNodes::entries(const std::string &name) const
{
    CallError error;
    guint count = 0;
    const char **const names = arv_gc_enumeration_dup_available_string_values(
        ARV_GC_ENUMERATION(m_state->node(name)), &count, error.get());
    EXPECT_FALSE(error.isSet()) << name;
    std::vector<std::string> entries(names, names + count);
    g_free(names);
    return entries;
}

bool CameraNodes::execute(const std::string &command) const
{
    CallError error;
    arv_gc_command_execute(ARV_GC_COMMAND(m_state->node(command)), error.get());
    return !error.isSet();
}

bool CameraNodes::setNumber(const std::string &name, double value) const
{
    CallError error;
    ArvGcNode *const node = m_state->node(name);
    if (kind(name) == Kind::Integer)
        arv_gc_integer_set_value(ARV_GC_INTEGER(node), static_cast<gint64>(value), error.get());
    else
        arv_gc_float_set_value(ARV_GC_FLOAT(node), value, error.get());
    return !error.isSet();
}

bool CameraNodes::setText(const std::string &name, const std::string &value) const
{
    CallError error;
    arv_gc_feature_node_set_value_from_string(m_state->feature(name), value.c_str(), error.get());
    return !error.isSet();
}
