#include "tools/imageviewer/files/RecordingSummary.h"

QString RecordingSummary::text(const RecordingResult &result)
{
    return result.path;
}
QString RecordingSummary::lossText(const RecordingProgress &)
{
    return {};
}
QString RecordingSummary::progressText(const RecordingProgress &)
{
    return {};
}
