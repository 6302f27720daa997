#pragma once

#include "tools/camerasetup/compare/CompareSession.h"
#include "tools/camerasetup/compare/SideBox.h"

/// Returns what can be chosen for one side: this camera, its user sets, the other cameras, and the file that
/// is chosen at present.
QVector<SideBox::Entry> sideEntries(FeatureClient &client, const CameraFinder &finder,
    const CompareSession &session, CompareSession::Side side);

QString userSetSelector(); ///< The feature that lists the user sets.
