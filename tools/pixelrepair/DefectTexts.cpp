#include "tools/pixelrepair/DefectTexts.h"

QString DefectTexts::kind(DefectKind kind)
{
    const QString texts[] = {tr("Hot"), tr("Dead"), tr("Stuck"), tr("Blinking"), tr("Deviating")};
    return texts[static_cast<std::size_t>(kind)];
}

QString DefectTexts::explanation(DefectKind kind)
{
    const QString texts[] = {tr("Too bright in the dark."), tr("Hardly reacts to light."),
        tr("Always has the same value."), tr("Changes between levels from image to image."),
        tr("Reacts to light much more or less than its neighbours.")};
    return texts[static_cast<std::size_t>(kind)];
}

QString DefectTexts::shape(DefectGroup::Shape shape)
{
    const QString texts[] = {tr("Cluster"), tr("Column"), tr("Line")};
    return texts[static_cast<std::size_t>(shape)];
}

QString DefectTexts::summary(const DefectCounts &counts)
{
    if (counts.pixels == 0)
        return tr("No defect pixels were found.");
    return tr("%n defect pixel(s) found.", nullptr, static_cast<int>(counts.pixels));
}
