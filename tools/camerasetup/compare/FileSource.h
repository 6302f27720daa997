#pragma once

#include "tools/camerasetup/compare/SettingsSource.h"

#include <QCoreApplication>

/// A settings file. It is written as a whole, so comments and lines that cannot be read are lost.
class FileSource : public SettingsSource
{
    Q_DECLARE_TR_FUNCTIONS(FileSource)

public:
    /// Returns the features of the camera on the other side, which decide what is a selector; empty if the
    /// other side is a file too.
    using Directory = std::function<FeatureDirectory()>;

    FileSource(const QString &path, Directory otherSide);

    QString title() const override;
    void read(const std::vector<FeatureSetting> &others, const ReadDone &done) override;
    QString readOnlyReason() const override;
    QString writeQuestion(int count) const override;
    void write(const std::vector<FeatureSetting> &settings, const WriteDone &done) override;

private:
    const QString m_path;
    const Directory m_otherSide;
};
