#include <arv.h>

#include "tests/producer/PortNodes.h"
#include "tests/producer/StrictRead.h"

#include <gtest/gtest.h>

using namespace GenTL;

extern "C" {

struct PortDevice
{
    ArvDevice parent;
    const LoadedProducer *producer;
    PORT_HANDLE port;
};
struct PortDeviceClass
{
    ArvDeviceClass parent;
};

} // extern "C"

namespace {

G_DEFINE_TYPE(PortDevice, port_device, ARV_TYPE_DEVICE)

gboolean checkAccess(GC_ERROR code, GError **error)
{
    if (code != GC_ERR_SUCCESS)
        g_set_error(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_TRANSFER_ERROR, "GenTL code %d", code);
    return code == GC_ERR_SUCCESS;
}

gboolean readMemory(ArvDevice *device, guint64 address, guint32 size, void *buffer, GError **error)
{
    const auto *const self = reinterpret_cast<PortDevice *>(device);
    std::size_t length = size;
    return checkAccess(self->producer->GCReadPort(self->port, address, buffer, &length), error);
}

gboolean writeMemory(ArvDevice *device, guint64 address, guint32 size, void *buffer, GError **error)
{
    const auto *const self = reinterpret_cast<PortDevice *>(device);
    std::size_t length = size;
    return checkAccess(self->producer->GCWritePort(self->port, address, buffer, &length), error);
}

void port_device_init(PortDevice *) { }

void port_device_class_init(PortDeviceClass *type)
{
    ARV_DEVICE_CLASS(type)->read_memory = readMemory;
    ARV_DEVICE_CLASS(type)->write_memory = writeMemory;
}

/// Returns the first file of a zip archive.
std::string unzipped(const std::string &archive)
{
    ArvZip *const zip = arv_zip_new(archive.data(), archive.size());
    auto *const first = static_cast<ArvZipFile *>(arv_zip_get_file_list(zip)->data);
    std::size_t size = 0;
    char *const content = static_cast<char *>(arv_zip_get_file(zip, arv_zip_file_get_name(first), &size));
    std::string xml(content, size);
    g_free(content);
    arv_zip_free(zip);
    return xml;
}

/// Fetches the register description from the place that the first URL of the port names.
std::string readXml(const LoadedProducer &producer, PORT_HANDLE port)
{
    const auto info = [&](URL_INFO_CMD command) {
        return infoCall(producer.GCGetPortURLInfo, port, std::uint32_t(0), command);
    };
    std::string xml(readLong(info(URL_INFO_FILE_SIZE), INFO_DATATYPE_UINT64), '\0');
    std::size_t size = xml.size();
    EXPECT_EQ(producer.GCReadPort(port, readLong(info(URL_INFO_FILE_REGISTER_ADDRESS), INFO_DATATYPE_UINT64),
                  xml.data(), &size),
        GC_ERR_SUCCESS);
    return xml.rfind("PK", 0) == 0 ? unzipped(xml) : xml;
}

/// Returns whether there is no error, and frees the error.
bool succeeds(GError *error)
{
    if (error)
        g_error_free(error);
    return !error;
}

std::vector<std::string> featuresOf(ArvGc *tree, const std::string &category)
{
    ArvGcNode *const node = arv_gc_get_node(tree, category.c_str());
    std::vector<std::string> names;
    for (const GSList *entry = arv_gc_category_get_features(ARV_GC_CATEGORY(node)); entry;
         entry = entry->next)
        names.emplace_back(static_cast<const char *>(entry->data));
    return names;
}

} // namespace

struct PortNodes::Tree
{
    ArvDevice *device;
    ArvGc *nodes;

    ArvGcFeatureNode *feature(const std::string &name) const
    {
        return ARV_GC_FEATURE_NODE(arv_gc_get_node(nodes, name.c_str()));
    }
};

PortNodes::PortNodes(const LoadedProducer &producer, PORT_HANDLE port)
    : m_xml(readXml(producer, port)), m_tree(std::make_unique<Tree>())
{
    auto *const device = static_cast<PortDevice *>(g_object_new(port_device_get_type(), nullptr));
    device->producer = &producer;
    device->port = port;
    m_tree->device = ARV_DEVICE(device);
    m_tree->nodes = arv_gc_new(m_tree->device, m_xml.data(), m_xml.size());
    arv_gc_set_range_check_policy(m_tree->nodes, ARV_RANGE_CHECK_POLICY_ENABLE);
    arv_gc_set_access_check_policy(m_tree->nodes, ARV_ACCESS_CHECK_POLICY_ENABLE);
}

PortNodes::~PortNodes()
{
    g_object_unref(m_tree->nodes);
    g_object_unref(m_tree->device);
}

std::vector<std::string> PortNodes::dump() const
{
    std::vector<std::string> lines;
    for (const std::string &category : featuresOf(m_tree->nodes, "Root"))
        for (const std::string &name : featuresOf(m_tree->nodes, category)) {
            ArvGcFeatureNode *const feature = m_tree->feature(name);
            const bool isWritable
                = arv_gc_feature_node_get_actual_access_mode(feature) == ARV_GC_ACCESS_MODE_RW;
            const std::string value
                = ARV_IS_GC_COMMAND(feature) ? "command" : read(name).value_or("not available");
            lines.push_back(category + '.' + name + (isWritable ? " (writable): " : ": ") + value);
        }
    return lines;
}

bool PortNodes::write(const std::string &name, const std::string &value) const
{
    GError *error = nullptr;
    arv_gc_feature_node_set_value_from_string(m_tree->feature(name), value.c_str(), &error);
    return succeeds(error);
}

bool PortNodes::execute(const std::string &name) const
{
    GError *error = nullptr;
    arv_gc_command_execute(ARV_GC_COMMAND(m_tree->feature(name)), &error);
    return succeeds(error);
}

std::optional<std::string> PortNodes::read(const std::string &name) const
{
    ArvGcFeatureNode *const feature = m_tree->feature(name);
    if (!arv_gc_feature_node_is_available(feature, nullptr))
        return std::nullopt;
    GError *error = nullptr;
    const char *const value = arv_gc_feature_node_get_value_as_string(feature, &error);
    return succeeds(error) && value ? std::optional<std::string>(value) : std::nullopt;
}
