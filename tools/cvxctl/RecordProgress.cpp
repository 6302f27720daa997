#include "tools/cvxctl/RecordProgress.h"

#include "sdk/imagefile/DiskSpace.h"

#include <cinttypes>
#include <cstdio>
#include <unistd.h>

RecordProgress::RecordProgress(const CvxCPP::Stream &stream, const Recorder &recorder, std::string file)
    : m_stream(stream),
      m_recorder(recorder),
      m_file(std::move(file)),
      m_isTerminal(isatty(STDERR_FILENO) != 0),
      m_next(std::chrono::steady_clock::now())
{ }

RecordProgress::~RecordProgress()
{
    endLine();
}

void RecordProgress::endLine()
{
    if (m_hasLine)
        std::fputs("\n", stderr);
    m_hasLine = false;
}

void RecordProgress::update()
{
    const auto now = std::chrono::steady_clock::now();
    CvxCPP::StreamStatistics stream;
    if (!m_isTerminal || now < m_next || !m_stream.GetStatistics(stream))
        return;
    m_next = now + std::chrono::seconds(1);
    m_hasLine = true;
    const RecorderCounters counters = m_recorder.counters();
    const std::optional<std::uint64_t> usable = usableSpace(m_file);
    std::fprintf(stderr,
        "\r\x1B[K%" PRIu64 " images  %.1f images/s  %s  %" PRIu64 " waiting  %" PRIu64 " incomplete  %" PRIu64
        " lost  %" PRIu64 " underruns%s%s",
        counters.written, stream.imagesPerSecond, byteText(counters.bytes).c_str(), counters.waiting,
        counters.incomplete, stream.lost, stream.underruns, usable ? "  room for " : "",
        usable ? byteText(*usable).c_str() : "");
}
