#include "sdk/camerahost/NodeMap.h"

#include "sdk/camerahost/ChunkFeatureFinder.h"
#include "sdk/camerahost/DescriptionParser.h"
#include "sdk/camerahost/GLibLog.h"
#include "sdk/camerahost/NodeDependents.h"
#include "sdk/camerahost/NodeWriter.h"
#include "sdk/text/Utf8.h"

using namespace CvxCPP;

namespace {

/// The node map over the engine of libaravis.
class ArvNodeMap : public NodeMap
{
public:
    ArvNodeMap(RegisterPort &port, Description description)
        : m_description(std::move(description)),
          m_references(m_description),
          m_list(m_description, m_references),
          m_engine(port, m_description, m_references),
          m_rules(m_description, m_references, m_list, m_engine),
          m_reader(m_description, m_engine, m_rules),
          m_writer(m_description, m_engine, m_rules, m_reader),
          m_dependents(m_description, m_references, m_list),
          m_chunkFinder(m_description, m_references, m_list, m_engine)
    { }

    const std::vector<NodeInfo> &nodes() const override { return m_list.infos(); }

    std::variant<NodeState, Failure> state(const std::string &name) override
    {
        const auto node = findListed(name);
        if (!node)
            return notFound(name);
        return m_reader.readState(*node);
    }

    std::variant<NodeValue, Failure> read(const std::string &name) override
    {
        const auto node = findListed(name);
        if (!node)
            return notFound(name);
        const NodeType type = *nodeType(m_description[*node].kind);
        if (type == NodeType::Category || type == NodeType::Command)
            return Failure{DeviceFailure::WrongType, "The feature \"" + name + "\" has no value."};
        const CurrentAccess access = m_rules.evaluate(*node);
        if (!access.isReadable())
            return notReadable(name, access);
        auto value = m_reader.readValue(*node);
        if (const auto *const problem = std::get_if<AccessProblem>(&value))
            return Failure{
                DeviceFailure::Device, "The feature \"" + name + "\" cannot be read: " + problem->text + '.'};
        return std::get<NodeValue>(std::move(value));
    }

    std::optional<Failure> write(const std::string &name, const NodeValue &value) override
    {
        const auto node = findListed(name);
        if (!node)
            return notFound(name);
        return m_writer.write(*node, value);
    }

    std::vector<std::string> dependents(const std::string &name) const override
    {
        const auto node = m_description.find(name);
        return node ? m_dependents.of(*node) : std::vector<std::string>();
    }

    std::optional<std::int64_t> readInteger(const std::string &name) override
    {
        const auto node = m_description.find(name);
        const auto result = node ? m_engine.readInteger(*node) : AccessResult<std::int64_t>(AccessProblem{});
        const auto *const value = std::get_if<std::int64_t>(&result);
        return value ? std::optional(*value) : std::nullopt;
    }

    bool writeInteger(const std::string &name, std::int64_t value) override
    {
        const auto node = m_description.find(name);
        return node && !m_writer.writeNumber(*node, value);
    }

    bool execute(const std::string &name) override
    {
        const auto node = m_description.find(name);
        return node && m_description[*node].kind == NodeKind::Command && !m_writer.execute(*node);
    }

    std::vector<ChunkFeature> chunkFeatures() override { return m_chunkFinder.find(); }
    void setWatching(bool isWatching) override { m_rules.setWatching(isWatching); }
    void setStreaming(bool isStreaming) override { m_rules.setStreaming(isStreaming); }

private:
    std::optional<NodeIndex> findListed(const std::string &name) const
    {
        const auto node = m_description.find(name);
        return node && m_list.contains(*node) ? node : std::nullopt;
    }

    static Failure notFound(const std::string &name)
    {
        return {DeviceFailure::NotFound, "The camera has no feature \"" + toPrintable(name) + "\"."};
    }

    static Failure notReadable(const std::string &name, const CurrentAccess &access)
    {
        const char *const reason = access.access == NodeAccess::NotImplemented ? "the camera does not have it"
            : access.access == NodeAccess::WriteOnly                           ? "it can only be written"
                                                     : "it is not available at present";
        std::string text = "The feature \"" + name + "\" cannot be read: " + reason;
        if (!access.lockingNode.empty() && access.access == NodeAccess::NotAvailable)
            text += ", which depends on \"" + access.lockingNode + '"';
        text += access.problem.empty() ? "." : ". " + access.problem;
        return {DeviceFailure::NotAvailable, text};
    }

    const Description m_description;
    const NodeReferences m_references;
    const NodeList m_list;
    NodeEngine m_engine;
    NodeAccessRules m_rules;
    NodeReader m_reader;
    NodeWriter m_writer;
    const NodeDependents m_dependents;
    ChunkFeatureFinder m_chunkFinder;
};

} // namespace

std::variant<std::unique_ptr<NodeMap>, NodeMap::Failure> NodeMap::create(
    RegisterPort &port, const std::string &description)
{
    discardGLibMessages();
    auto parsed = parseDescription(description);
    if (const auto *const problem = std::get_if<DescriptionProblem>(&parsed))
        return Failure{DeviceFailure::Device,
            "The register description of the camera cannot be used: " + problem->text + '.'};
    return std::make_unique<ArvNodeMap>(port, std::get<Description>(std::move(parsed)));
}
