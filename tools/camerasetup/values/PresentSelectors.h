#pragma once

#include "sdk/features/FeatureDirectory.h"
#include "tools/kit/camera/FeatureClient.h"

#include <QObject>
#include <QStringList>

#include <optional>
#include <vector>

/// The values that the selectors of the connected camera have at present. Watches all selectors, which are
/// few, so that a change of a selected feature can be recorded with its selectors.
class PresentSelectors : public QObject
{
    Q_OBJECT

public:
    explicit PresentSelectors(FeatureClient &client, QObject *parent = nullptr);
    ~PresentSelectors() override;

    /// The features of the connected camera by their names; empty while there is none.
    const FeatureDirectory &directory() const { return m_directory; }

    /// Returns the selectors of the feature with their values, outer selectors first; empty if the feature
    /// has none. No value if one of the selectors cannot be read, or was not read since it may have changed.
    std::optional<std::vector<SelectorSetting>> of(const std::string &name) const;

private:
    void follow();
    void forget();

    FeatureClient &m_client;
    FeatureDirectory m_directory;
    QStringList m_watched;
};
