#include "tools/imageviewer/ViewerChoices.h"

#include "tools/imageviewer/ViewerActions.h"
#include "tools/imageviewer/measuring/MeasuringPanel.h"

#include <QSettings>

namespace {

const QString gridKey = QStringLiteral("picture/grid");
const QString crosshairKey = QStringLiteral("picture/crosshair");
const QString clipMarksKey = QStringLiteral("picture/clipMarks");
const QString edgeAwareKey = QStringLiteral("picture/edgeAwareDemosaicing");
const QString micrometresKey = QStringLiteral("picture/micrometresPerPixel");

} // namespace

void ViewerChoices::save(QSettings &settings, const MeasuringPanel &panel, const ViewerActions &actions)
{
    const DisplaySettings &display = panel.displaySettings();
    settings.setValue(gridKey, actions.grid->isChecked());
    settings.setValue(crosshairKey, actions.crosshair->isChecked());
    settings.setValue(clipMarksKey, display.hasClipMarks);
    settings.setValue(edgeAwareKey, display.demosaicing == Demosaicing::EdgeAware);
    settings.setValue(micrometresKey, panel.micrometresPerPixel());
}

void ViewerChoices::restore(const QSettings &settings, MeasuringPanel &panel, const ViewerActions &actions)
{
    actions.grid->setChecked(settings.value(gridKey).toBool());
    actions.crosshair->setChecked(settings.value(crosshairKey).toBool());
    DisplaySettings display;
    display.hasClipMarks = settings.value(clipMarksKey).toBool();
    if (settings.value(edgeAwareKey).toBool())
        display.demosaicing = Demosaicing::EdgeAware;
    panel.setDisplaySettings(display);
    panel.setMicrometresPerPixel(settings.value(micrometresKey).toDouble());
}
