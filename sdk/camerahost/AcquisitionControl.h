#pragma once

#include "sdk/camerahost/NodeMap.h"
#include "sdk/camerahost/PictureReader.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

/// Whether this program may control the acquisition, or only receives what another program lets the camera
/// send.
enum class StreamRole
{
    Controller,
    Watcher
};

/// The features of a camera that a stream needs. Tolerates cameras that lack some of them. With
/// StreamRole::Watcher, nothing is written to the camera: lock(), unlock(), start() and stop() do nothing.
class AcquisitionControl
{
public:
    AcquisitionControl(NodeMap &nodes, StreamRole role) : m_nodes(nodes), m_role(role) { }

    bool isWatching() const { return m_role == StreamRole::Watcher; }

    /// Locks the features that must not change during a stream, or unlocks them.
    void lock();
    void unlock();

    /// Lets the camera send images. Returns a text for people if it refuses.
    std::optional<std::string> start();
    void stop();

    /// Returns the number of bytes that an image needs; 0 if the camera does not tell.
    std::uint64_t payloadSize() const;

    /// Returns the picture that the camera is configured for.
    PictureLayout configuredPicture() const;

    /// The values of the features that determine the size and the layout of an image; nothing for a feature
    /// that cannot be read.
    using ImageFormat = std::array<std::optional<std::int64_t>, 4>;

    /// Returns the present format. Leaves out features that depend on a selector, because their values also
    /// change when only another region or component is selected.
    ImageFormat imageFormat() const;

    /// Returns true if a feature that `before` contains has another value now. Stops at the first feature
    /// that cannot be read, because the camera may be gone and each further read would have to time out.
    bool hasFormatChanged(const ImageFormat &before) const;

    /// Returns the features whose values are sent with the images.
    std::vector<ChunkFeature> chunkFeatures() const;

private:
    std::uint64_t number(const char *name) const;
    bool hasNode(const char *name) const;
    bool isSelected(const char *name) const;
    bool isTransferControlled() const;

    NodeMap &m_nodes;
    const StreamRole m_role;
};
