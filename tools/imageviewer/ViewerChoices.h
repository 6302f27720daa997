#pragma once

class ImageCanvas;
class MeasuringPanel;
class ToolSettings;
class ViewerActions;

/// What the Image Viewer remembers about the picture: demosaicing, overlays, the scale and how the
/// picture is turned. Contrast and white
/// balance belong to a scene, so they are not remembered.
namespace ViewerChoices {

void save(ToolSettings &settings, const ImageCanvas &canvas, const MeasuringPanel &panel,
    const ViewerActions &actions);
void restore(
    const ToolSettings &settings, ImageCanvas &canvas, MeasuringPanel &panel, const ViewerActions &actions);

} // namespace ViewerChoices
