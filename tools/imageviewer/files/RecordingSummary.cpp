#include "tools/imageviewer/files/RecordingSummary.h"

#include <QFileInfo>
#include <QLocale>
#include <QStringList>

#include <algorithm>

namespace {

int pluralCount(std::uint64_t count)
{
    return static_cast<int>(std::min<std::uint64_t>(count, 1000000000));
}

QString sizeText(std::uint64_t bytes)
{
    return QLocale().formattedDataSize(static_cast<qint64>(bytes), 1, QLocale::DataSizeSIFormat);
}

QString timeText(double seconds)
{
    const auto whole = static_cast<int>(seconds);
    const QLatin1Char zero('0');
    const QString minutes
        = QStringLiteral("%1:%2").arg(whole / 60 % 60, 2, 10, zero).arg(whole % 60, 2, 10, zero);
    return whole < 3600 ? minutes : QStringLiteral("%1:%2").arg(whole / 3600).arg(minutes);
}

} // namespace

QString RecordingSummary::text(const RecordingResult &result)
{
    if (result.path.isEmpty())
        return tr("The recording did not begin: %1.").arg(result.problem);
    QStringList sentences;
    const RecordingProgress &progress = result.progress;
    sentences << tr("%n image(s) recorded in %1 to \"%2\".", nullptr, pluralCount(progress.images))
                     .arg(timeText(progress.seconds), QFileInfo(result.path).fileName());
    if (!result.problem.isEmpty())
        sentences << tr("The recording ended early: %1.").arg(result.problem);
    if (!result.note.isEmpty())
        sentences << result.note;
    const QString losses = lossText(progress);
    sentences << (losses.isEmpty() ? tr("No image is missing.") : losses);
    if (result.wasCameraLost)
        sentences << tr("The camera was lost for a while.");
    if (result.hasFormatChanged && result.problem.isEmpty())
        sentences << tr("The image format changed during the recording; the file describes each image.");
    return sentences.join(QLatin1Char(' '));
}

QString RecordingSummary::lossText(const RecordingProgress &progress)
{
    QStringList parts;
    if (progress.lost > 0)
        parts << tr("%n image(s) never arrived from the camera", nullptr, pluralCount(progress.lost));
    if (progress.underruns > 0)
        parts << tr("%n image(s) found no free buffer", nullptr, pluralCount(progress.underruns));
    if (progress.skipped > 0)
        parts << tr("%n image(s) could not be kept because the disk or the encoder is too slow", nullptr,
            pluralCount(progress.skipped));
    if (progress.unwritten > 0)
        parts << tr("%n image(s) could not be written", nullptr, pluralCount(progress.unwritten));
    if (progress.incomplete > 0)
        parts << tr("%n recorded image(s) are incomplete", nullptr, pluralCount(progress.incomplete));
    return parts.isEmpty()
        ? QString()
        : tr("Lost or incomplete: %1.").arg(parts.join(tr("; ", "between parts of a list")));
}

QString RecordingSummary::progressText(const RecordingProgress &progress)
{
    QStringList parts;
    parts << tr("%n image(s)", nullptr, pluralCount(progress.images)) << timeText(progress.seconds)
          << sizeText(progress.fileBytes > 0 ? progress.fileBytes : progress.bytes);
    if (progress.spaceLeft)
        parts << tr("%1 left", "disk space").arg(sizeText(*progress.spaceLeft));
    if (progress.waiting > 0)
        parts << tr("%n image(s) waiting", nullptr, pluralCount(progress.waiting));
    return parts.join(QStringLiteral(" · "));
}
