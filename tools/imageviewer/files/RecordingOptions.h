#pragma once

#include <QString>

#include <cstdint>
#include <optional>

/// What a recording is written to.
enum class RecordingFormat : std::uint8_t
{
    BigTiff, ///< The measured values of every image.
    Raw, ///< The bytes that the camera has sent, with an index.
    VideoH264, ///< 8 bits for the eye, in MP4.
    VideoLossless ///< 8 bits for the eye, FFV1 in Matroska.
};

/// What to record, and until when. A limit of 0 does not exist.
struct RecordingOptions
{
    QString folder;
    QString pattern; ///< See FileNamePattern.
    RecordingFormat format = RecordingFormat::BigTiff;
    std::uint64_t maxImages = 0;
    double maxSeconds = 0;
    std::uint64_t minFreeBytes = 0; ///< The recording ends before less space is left.
    double playbackRate = 0; ///< Images per second of a video; 0 for the rate at which they are recorded.
};

/// How a recording goes on.
struct RecordingProgress
{
    std::uint64_t images = 0; ///< Images in the file.
    double seconds = 0;
    std::uint64_t bytes = 0; ///< Bytes of these images as the camera has sent them.
    std::uint64_t fileBytes = 0; ///< Size of the file.
    std::optional<std::uint64_t> spaceLeft; ///< Bytes that a recording may still use, if that is known.
    std::uint64_t waiting = 0; ///< Images that wait for the disk or for the encoder.
    std::uint64_t skipped = 0; ///< Images that did not fit into memory because the disk is too slow.
    std::uint64_t unwritten = 0; ///< Images that a failure kept from the file.
    std::uint64_t incomplete = 0; ///< Recorded images with missing data.
    std::uint64_t lost = 0; ///< Images that the stream has lost during the recording, by frame ID.
    std::uint64_t underruns = 0; ///< Images for which no buffer was free.
    std::uint32_t reopened = 0; ///< How often the camera was lost and found again.
};
