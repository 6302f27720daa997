#pragma once

#include "tools/kit/measure/defects/DefectGroups.h"

#include <QCoreApplication>
#include <QString>

/// The words of the defects for people.
class DefectTexts
{
    Q_DECLARE_TR_FUNCTIONS(DefectTexts)

public:
    /// Returns for example "Hot".
    static QString kind(DefectKind kind);

    /// Returns what the kind means.
    static QString explanation(DefectKind kind);

    static QString shape(DefectGroup::Shape shape);

    /// Returns for example "312 defect pixels", or that there is none.
    static QString summary(const DefectCounts &counts);
};

/// All kinds, in their order in tables.
constexpr DefectKind defectKinds[]
    = {DefectKind::Hot, DefectKind::Dead, DefectKind::Stuck, DefectKind::Blinking, DefectKind::Deviating};
