#pragma once

#include "tests/kit/editors/EditorBench.h"
#include "tools/camerasetup/settings/LoadDialog.h"
#include "tools/camerasetup/values/ChangeHistory.h"

#include <QString>
#include <QStringList>

/// An opened camera with everything that the dialogs and panels of settings work with.
struct SettingsBench
{
    /// Waits until the settings at opening are known.
    explicit SettingsBench(
        const EditorBench::Script &script, CvxCPP::CvxAccess access = CvxCPP::CvxAccessControl);

    EditorBench camera;
    CameraJobs jobs{camera.connection};
    TestPauser pauser;
    PresentSelectors selectors{camera.client};
    OpeningSnapshot opening{camera.client, selectors};
    ChangeHistory history{camera.client, jobs, selectors, opening};
};

/// Defines a camera with an automatic function, two taps, a feature that changes another one, and user sets.
void defineSettingsCamera(TestDevice &camera);

FeatureFile parsedFile(const QByteArray &text);

/// Returns the rows of the table as lines, the columns joined by "|".
QStringList tableRows(const LoadDialog &dialog);

/// Returns the child of this name, which must exist.
template <typename Widget>
Widget *child(const QObject &parent, const char *name)
{
    auto *const widget = parent.findChild<Widget *>(QString::fromLatin1(name));
    Q_ASSERT(widget);
    return widget;
}
