#pragma once

#include "tests/imageviewer/files/SavingTest.h"

#include <QSignalSpy>

/// A camera that streams, and a recording.
struct RecordedCamera : SavingCamera
{
    /// Requests a recording. The state is then Preparing.
    bool request(RecordingOptions options)
    {
        if (!waitUntilOpen() || !startStream())
            return false;
        if (options.folder.isEmpty())
            options.folder = folder.path();
        if (options.pattern.isEmpty())
            options.pattern = QStringLiteral("a{number}");
        control.start(options);
        return control.state() == RecordingControl::State::Preparing;
    }

    bool begin(const RecordingOptions &options)
    {
        const auto isRecording = [this] { return control.state() == RecordingControl::State::Recording; };
        return request(options) && QTest::qWaitFor(isRecording, 10000);
    }

    void openOther()
    {
        const auto other = std::make_shared<OpenableCamera>("Net-2", std::make_shared<StreamingDevice>());
        connection.open(OpenableCamera::entry(other), CvxCPP::CvxAccessControl);
    }

    void deliver(std::uint64_t first, std::uint64_t last)
    {
        for (std::uint64_t number = first; number <= last; ++number)
            device->stream()->deliver(numberedImage(number));
    }

    bool waitForImages(std::uint64_t count)
    {
        return QTest::qWaitFor([&] { return control.progress().images == count; }, 10000);
    }

    /// Waits until the recording has ended.
    RecordingResult result()
    {
        return QTest::qWaitFor([this] { return finished.count() > 0; }, 10000)
            ? qvariant_cast<RecordingResult>(finished[0][0])
            : RecordingResult();
    }

    /// Returns the frame IDs in the index of a raw recording.
    QVector<int> frameIds(const QString &name) const
    {
        QVector<int> ids;
        const QList<QByteArray> lines = content(name + QStringLiteral(".csv")).trimmed().split('\n');
        for (int line = 1; line < lines.size(); ++line)
            ids << lines[line].split(',').first().toInt();
        return ids;
    }

    RecordingControl control{stream, records};
    QSignalSpy finished{&control, &RecordingControl::finished};
};

inline RecordingOptions rawRecording()
{
    RecordingOptions options;
    options.format = RecordingFormat::Raw;
    return options;
}

inline CvxCPP::StreamStatistics lossCounters(
    std::uint64_t lost, std::uint64_t underruns, std::uint64_t delivered = 0)
{
    CvxCPP::StreamStatistics statistics;
    statistics.delivered = delivered;
    statistics.lost = lost;
    statistics.underruns = underruns;
    return statistics;
}
