#include "tools/imageviewer/ViewerChoices.h"

#include "tools/imageviewer/ViewerActions.h"
#include "tools/imageviewer/measuring/MeasuringPanel.h"
#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/kit/canvas/ViewTransform.h"
#include "tools/kit/start/ToolSettings.h"

namespace {

const QString turnsKey = QStringLiteral("picture/quarterTurns");
const QString mirroredKey = QStringLiteral("picture/mirrored");
const QString gridKey = QStringLiteral("picture/grid");
const QString crosshairKey = QStringLiteral("picture/crosshair");
const QString clipMarksKey = QStringLiteral("picture/clipMarks");
const QString edgeAwareKey = QStringLiteral("picture/edgeAwareDemosaicing");
const QString micrometresKey = QStringLiteral("picture/micrometresPerPixel");

} // namespace

void ViewerChoices::save(ToolSettings &settings, const ImageCanvas &canvas, const MeasuringPanel &panel,
    const ViewerActions &actions)
{
    const Orientation orientation = canvas.view().orientation();
    settings.setValue(turnsKey, orientation.quarterTurns);
    settings.setValue(mirroredKey, orientation.isMirrored);
    const DisplaySettings &display = panel.displaySettings();
    settings.setValue(gridKey, actions.grid->isChecked());
    settings.setValue(crosshairKey, actions.crosshair->isChecked());
    settings.setValue(clipMarksKey, display.hasClipMarks);
    settings.setValue(edgeAwareKey, display.demosaicing == Demosaicing::EdgeAware);
    settings.setValue(micrometresKey, panel.micrometresPerPixel());
}

void ViewerChoices::restore(
    const ToolSettings &settings, ImageCanvas &canvas, MeasuringPanel &panel, const ViewerActions &actions)
{
    // A damaged file may contain any number of turns.
    canvas.setOrientation({settings.value(turnsKey, 0) & 3, settings.value(mirroredKey, false)});
    actions.grid->setChecked(settings.value(gridKey, false));
    actions.crosshair->setChecked(settings.value(crosshairKey, false));
    DisplaySettings display;
    display.hasClipMarks = settings.value(clipMarksKey, false);
    if (settings.value(edgeAwareKey, false))
        display.demosaicing = Demosaicing::EdgeAware;
    panel.setDisplaySettings(display);
    panel.setMicrometresPerPixel(settings.value(micrometresKey, 0.0));
}
