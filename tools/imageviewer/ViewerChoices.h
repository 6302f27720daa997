#pragma once

class ImageCanvas;
class MeasuringPanel;
class ToolSettings;
class ViewerActions;

/// What the Image Viewer remembers about the picture: demosaicing, overlays and the scale. Contrast and white
/// balance belong to a scene, so they are not remembered.
namespace ViewerChoices {

void save(ToolSettings &settings, const MeasuringPanel &panel, const ViewerActions &actions);
void restore(const ToolSettings &settings, MeasuringPanel &panel, const ViewerActions &actions);

} // namespace ViewerChoices
