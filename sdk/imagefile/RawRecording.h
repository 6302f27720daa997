#pragma once

#include "sdk/imagefile/OutputFile.h"
#include "sdk/imagefile/RecordingFile.h"

/// The bytes of all images, one after the other, and the index FILE.csv with a line for each image. A line
/// is written after its image. A pipe or a device gets no index.
class RawRecording final : public RecordingFile
{
public:
    explicit RawRecording(const std::string &path);

    bool append(const CvxCPP::Image &image) override;
    bool finish() override;
    std::string problem() const override;

private:
    bool appendToIndex(const std::string &line);

    const bool m_hasIndex; // False for a pipe.
    OutputFile m_data;
    OutputFile m_index;
};
