#pragma once

#include "sdk/producer/OpenCamera.h"

#include <memory>
#include <string>
#include <vector>

/// The features of an open camera, as a consumer sees them: read from the register description by libaravis.
class CameraNodes
{
public:
    /// Reads the description, which may be compressed, from the camera.
    explicit CameraNodes(OpenCamera &camera);
    ~CameraNodes();
    CameraNodes(const CameraNodes &) = delete;
    CameraNodes &operator=(const CameraNodes &) = delete;

    const std::string &text() const { return m_text; } ///< The description without compression.

    /// Returns the names of all features below Root, and the names that features refer to but that no node
    /// has.
    std::vector<std::string> features() const;
    std::vector<std::string> missingNodes() const;

    enum class Kind
    {
        Category,
        Integer,
        Float,
        Enumeration,
        Command,
        Other
    };
    Kind kind(const std::string &name) const;
    bool isAvailable(const std::string &name) const;
    bool isWritable(const std::string &name) const;

    /// Returns the value as text. Fails the test if the value cannot be read.
    std::string value(const std::string &name) const;

    struct Limits
    {
        double min;
        double max;
        double increment; ///< 0 if there is none.
    };
    Limits limits(const std::string &name) const;

    /// Returns the entries of an enumeration that are available.
    std::vector<std::string> entries(const std::string &name) const;

    /// Executes a command, and returns true if the camera has accepted it.
    bool execute(const std::string &command) const;

    /// Each of these functions writes a value without looking at its limits, and returns true if the camera
    /// has accepted it.
    bool setNumber(const std::string &name, double value) const;
    bool setText(const std::string &name, const std::string &value) const;

private:
    struct State;
    const std::unique_ptr<State> m_state;
    std::string m_text;
};
