#include "tools/focusassistant/FocusTexts.h"

#include <QLocale>
#include <QStringList>

QString FocusTexts::corner(const FocusGrid &grid, std::size_t index)
{
    const QStringList names = grid.rows == 1
        ? QStringList{tr("Left end"), tr("Right end")}
        : QStringList{tr("Upper left"), tr("Upper right"), tr("Lower left"), tr("Lower right")};
    return names.value(int(index));
}

QString FocusTexts::cornerShare(const QString &corner, const QString &share)
{
    return tr("%1: %2").arg(corner, share);
}

QString FocusTexts::atBest(const QString &corners)
{
    return tr("Shares of their peaks at the best position: %1.").arg(corners);
}

QString FocusTexts::share(double share)
{
    return tr("%1 %").arg(QLocale().toString(share * 100, 'f', 0));
}

QString FocusTexts::state(RegionFocus::State state)
{
    switch (state) {
    case RegionFocus::State::Usable:
        return {};
    case RegionFocus::State::NoEdges:
        return tr("no edges");
    case RegionFocus::State::TooDark:
        return tr("too dark");
    case RegionFocus::State::Clipped:
        return tr("overexposed");
    }
    return {};
}
