#pragma once

#include "CvxCPP/Node.h"

#include <QString>

#include <deque>
#include <optional>

/// A write or a command that waits for its turn.
struct FeatureOperation
{
    QString name;
    std::optional<CvxCPP::NodeValue> value; ///< No value for a command.
};

/// The waiting operations. Keeps their order, but of several writes of one feature between two commands,
/// only the last one stays.
class FeatureOperations
{
public:
    void addWrite(const QString &name, const CvxCPP::NodeValue &value);
    void addCommand(const QString &name);
    std::optional<FeatureOperation> takeNext();
    bool hasWrite(const QString &name) const;
    bool isEmpty() const { return m_waiting.empty(); }
    void clear() { m_waiting.clear(); }

private:
    std::deque<FeatureOperation> m_waiting;
};
