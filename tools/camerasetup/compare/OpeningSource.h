#pragma once

#include "tools/camerasetup/compare/SettingsSource.h"

#include <QCoreApplication>

class OpeningSnapshot;

/// The connected camera when it was opened.
class OpeningSource : public SettingsSource
{
    Q_DECLARE_TR_FUNCTIONS(OpeningSource)

public:
    /// The snapshot must outlive the source.
    explicit OpeningSource(const OpeningSnapshot &opening) : m_opening(opening) { }

    QString title() const override;
    void read(const std::vector<FeatureSetting> &others, const ReadDone &done) override;
    QString readOnlyReason() const override;
    void write(const std::vector<FeatureSetting> &settings, const WriteDone &done) override;

private:
    const OpeningSnapshot &m_opening;
};
