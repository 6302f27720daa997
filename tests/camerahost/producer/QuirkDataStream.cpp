// The functions of data streams, buffers and their events.

#include "tests/camerahost/producer/QuirkCall.h"
#include "tests/camerahost/producer/QuirkInfos.h"
#include "tests/camerahost/producer/QuirkScript.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <utility>

namespace {

using namespace GenTL;
using Lock = std::unique_lock<std::mutex>;
using State = Buffer::State;

/// Runs the body with the stream of the handle.
template <typename Body>
GC_ERROR withStream(void *handle, const Body &body)
{
    Stream *const stream = streamOf(handle);
    return stream ? body(*stream) : GC_ERR_INVALID_HANDLE;
}

template <typename Body>
GC_ERROR withBuffer(void *streamHandle, void *bufferHandle, const Body &body)
{
    return withStream(streamHandle, [&](Stream &stream) {
        Buffer *const buffer = bufferOf(stream, bufferHandle);
        return buffer ? body(stream, *buffer) : GC_ERR_INVALID_HANDLE;
    });
}

GC_ERROR announce(Stream &stream, Buffer buffer, BUFFER_HANDLE *handle)
{
    if (stream.isGrabbing)
        return GC_ERR_BUSY;
    if (reinterpret_cast<std::uintptr_t>(buffer.base) % QuirkScript::number("alignment", 1) != 0)
        return GC_ERR_INVALID_BUFFER;
    stream.buffers.push_back(std::move(buffer));
    *handle = &stream.buffers.back();
    return GC_ERR_SUCCESS;
}

/// Moves the buffers of these queues back to the consumer.
void discard(Stream &stream, bool isInputToo)
{
    for (std::deque<Buffer *> *queue : {&stream.output, isInputToo ? &stream.input : &stream.output}) {
        for (Buffer *buffer : *queue)
            buffer->state = State::Announced;
        queue->clear();
    }
}

/// Returns true if the script makes this command fail for incomplete buffers.
bool failsIfIncomplete(BUFFER_INFO_CMD command)
{
    return command != BUFFER_INFO_IS_INCOMPLETE && command != BUFFER_INFO_FRAMEID
        && command != BUFFER_INFO_SIZE_FILLED && QuirkScript::has("incomplete-infos-fail");
}

/// Waits for the next event, at most for `timeout` milliseconds. Returns null if the wait is ended instead.
GC_ERROR waitForBuffer(Stream &stream, Lock &lock, std::uint64_t timeout, Buffer *&buffer)
{
    constexpr std::uint64_t hour = 3'600'000;
    ++stream.waiters;
    const bool isReady
        = changed.wait_for(lock, std::chrono::milliseconds(std::min(timeout, hour)), [&stream] {
              return !stream.output.empty() || stream.kills > 0 || !stream.isRegistered || !stream.isOpen;
          });
    --stream.waiters;
    if (!isReady)
        return GC_ERR_TIMEOUT;
    if (stream.kills > 0 || !stream.isRegistered || !stream.isOpen) {
        stream.kills = std::max(stream.kills - 1, 0);
        return GC_ERR_ABORT;
    }
    buffer = stream.output.front();
    stream.output.pop_front();
    ++stream.delivered;
    if (bufferOf(stream, buffer))
        buffer->state = State::Announced;
    return GC_ERR_SUCCESS;
}

} // namespace

namespace GenTL {
extern "C" {

GENTL_FUNCTION GCRegisterEvent(EVENTSRC_HANDLE hEventSrc, EVENT_TYPE iEventID, EVENT_HANDLE *phEvent)
{
    return loggedCall("GCRegisterEvent", std::to_string(iEventID), [&](const Lock &) {
        if (iEventID != EVENT_NEW_BUFFER)
            return GC_ERR_NOT_IMPLEMENTED;
        return withStream(hEventSrc, [&](Stream &stream) {
            if (std::exchange(stream.isRegistered, true))
                return GC_ERR_RESOURCE_IN_USE;
            *phEvent = &stream;
            return GC_ERR_SUCCESS;
        });
    });
}

GENTL_FUNCTION GCUnregisterEvent(EVENTSRC_HANDLE hEventSrc, EVENT_TYPE iEventID)
{
    return loggedCall("GCUnregisterEvent", std::to_string(iEventID), [&](const Lock &) {
        return withStream(hEventSrc, [](Stream &stream) {
            discard(stream, false);
            stream.kills = 0;
            changed.notify_all();
            return std::exchange(stream.isRegistered, false) ? GC_ERR_SUCCESS : GC_ERR_NOT_INITIALIZED;
        });
    });
}

GENTL_FUNCTION EventGetData(EVENT_HANDLE hEvent, void *pBuffer, std::size_t *piSize, std::uint64_t iTimeout)
{
    return call("EventGetData", "", [&](Lock &lock) {
        return withStream(hEvent, [&](Stream &stream) {
            const std::size_t size = QuirkScript::number("event-size", sizeof(EVENT_NEW_BUFFER_DATA));
            if (*piSize < size)
                return GC_ERR_BUFFER_TOO_SMALL;
            Buffer *buffer = nullptr;
            const GC_ERROR result = waitForBuffer(stream, lock, iTimeout, buffer);
            if (result != GC_ERR_SUCCESS)
                return result;
            const bool isForeign = !bufferOf(stream, buffer);
            const EVENT_NEW_BUFFER_DATA data{buffer, isForeign ? nullptr : buffer->userPointer};
            std::memset(pBuffer, 0, size);
            std::memcpy(pBuffer, &data, std::min(size, sizeof data));
            *piSize = size;
            return GC_ERR_SUCCESS;
        });
    });
}

GENTL_FUNCTION EventKill(EVENT_HANDLE hEvent)
{
    return loggedCall("EventKill", "", [&](const Lock &) {
        return withStream(hEvent, [](Stream &stream) {
            ++stream.kills;
            changed.notify_all();
            return GC_ERR_SUCCESS;
        });
    });
}

GENTL_FUNCTION DSAnnounceBuffer(
    DS_HANDLE hDataStream, void *pBuffer, std::size_t iSize, void *pPrivate, BUFFER_HANDLE *phBuffer)
{
    return loggedCall("DSAnnounceBuffer", "", [&](const Lock &) {
        Buffer buffer;
        buffer.base = static_cast<std::uint8_t *>(pBuffer);
        buffer.size = iSize;
        buffer.userPointer = pPrivate;
        return withStream(
            hDataStream, [&](Stream &stream) { return announce(stream, std::move(buffer), phBuffer); });
    });
}

GENTL_FUNCTION DSAllocAndAnnounceBuffer(
    DS_HANDLE hDataStream, std::size_t iSize, void *pPrivate, BUFFER_HANDLE *phBuffer)
{
    return loggedCall("DSAllocAndAnnounceBuffer", "", [&](const Lock &) {
        Buffer buffer;
        buffer.own.resize(iSize + 4096);
        buffer.base = buffer.own.data() + (4096 - reinterpret_cast<std::uintptr_t>(buffer.own.data()) % 4096);
        buffer.size = iSize;
        buffer.userPointer = pPrivate;
        return withStream(
            hDataStream, [&](Stream &stream) { return announce(stream, std::move(buffer), phBuffer); });
    });
}

GENTL_FUNCTION DSFlushQueue(DS_HANDLE hDataStream, ACQ_QUEUE_TYPE iOperation)
{
    return loggedCall("DSFlushQueue", std::to_string(iOperation), [&](const Lock &) {
        return withStream(hDataStream, [&](Stream &stream) {
            if (iOperation != ACQ_QUEUE_OUTPUT_DISCARD && iOperation != ACQ_QUEUE_ALL_DISCARD)
                return GC_ERR_NOT_IMPLEMENTED;
            discard(stream, iOperation == ACQ_QUEUE_ALL_DISCARD);
            return GC_ERR_SUCCESS;
        });
    });
}

GENTL_FUNCTION DSStartAcquisition(DS_HANDLE hDataStream, ACQ_START_FLAGS, std::uint64_t)
{
    return loggedCall("DSStartAcquisition", "", [&](const Lock &) {
        return withStream(hDataStream, [](Stream &stream) {
            if (stream.isGrabbing)
                return GC_ERR_RESOURCE_IN_USE;
            if (stream.announced() < QuirkScript::number("min-buffers", 2))
                return GC_ERR_INVALID_BUFFER;
            if (!stream.isRegistered)
                logViolation("the stream is started before the event is registered");
            startThread(stream);
            return GC_ERR_SUCCESS;
        });
    });
}

GENTL_FUNCTION DSStopAcquisition(DS_HANDLE hDataStream, ACQ_STOP_FLAGS iStopFlags)
{
    return loggedCall("DSStopAcquisition", std::to_string(iStopFlags), [&](Lock &lock) {
        return withStream(hDataStream, [&](Stream &stream) {
            if (!stream.isGrabbing)
                return GC_ERR_RESOURCE_IN_USE;
            if (stream.camera->isAcquiring && iStopFlags == ACQ_STOP_FLAGS_DEFAULT)
                logViolation("the stream is stopped before the camera");
            stopThread(stream, lock);
            return GC_ERR_SUCCESS;
        });
    });
}

GENTL_FUNCTION DSGetInfo(DS_HANDLE hDataStream, STREAM_INFO_CMD iInfoCmd, INFO_DATATYPE *piType,
    void *pBuffer, std::size_t *piSize)
{
    return infoCall("DSGetInfo", std::to_string(iInfoCmd), {piType, pBuffer, piSize}, [&] {
        const Stream *const stream = streamOf(hDataStream);
        return stream ? streamInfo(*stream, iInfoCmd) : noInfo(GC_ERR_INVALID_HANDLE);
    });
}

GENTL_FUNCTION DSClose(DS_HANDLE hDataStream)
{
    return loggedCall("DSClose", "", [&](Lock &lock) {
        return withStream(hDataStream, [&](Stream &stream) {
            if (stream.waiters > 0)
                logViolation("the stream is closed during a wait for an event");
            stopThread(stream, lock);
            stream.isOpen = false;
            stream.isRegistered = false;
            stream.input.clear();
            stream.output.clear();
            for (Buffer &buffer : stream.buffers)
                buffer.state = State::Revoked;
            return GC_ERR_SUCCESS;
        });
    });
}

GENTL_FUNCTION DSRevokeBuffer(DS_HANDLE hDataStream, BUFFER_HANDLE hBuffer, void **ppBuffer, void **ppPrivate)
{
    return loggedCall("DSRevokeBuffer", "", [&](const Lock &) {
        return withBuffer(hDataStream, hBuffer, [&](Stream &stream, Buffer &buffer) {
            if (stream.waiters > 0)
                logViolation("a buffer is revoked during a wait for an event");
            if (buffer.state != State::Announced)
                return GC_ERR_BUSY;
            buffer.state = State::Revoked;
            if (ppBuffer)
                *ppBuffer = buffer.own.empty() ? buffer.base : nullptr;
            if (ppPrivate)
                *ppPrivate = buffer.userPointer;
            return GC_ERR_SUCCESS;
        });
    });
}

GENTL_FUNCTION DSQueueBuffer(DS_HANDLE hDataStream, BUFFER_HANDLE hBuffer)
{
    return call("DSQueueBuffer", "", [&](const Lock &) {
        return withBuffer(hDataStream, hBuffer, [](Stream &stream, Buffer &buffer) {
            if (buffer.state != State::Announced)
                return GC_ERR_RESOURCE_IN_USE;
            buffer.state = State::Input;
            buffer.isNew = false;
            stream.input.push_back(&buffer);
            return GC_ERR_SUCCESS;
        });
    });
}

GENTL_FUNCTION DSGetBufferInfo(DS_HANDLE hDataStream, BUFFER_HANDLE hBuffer, BUFFER_INFO_CMD iInfoCmd,
    INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return infoCall("DSGetBufferInfo", std::to_string(iInfoCmd), {piType, pBuffer, piSize}, [&] {
        Stream *const stream = streamOf(hDataStream);
        const Buffer *const buffer = stream ? bufferOf(*stream, hBuffer) : nullptr;
        if (!buffer || (buffer->isIncomplete && failsIfIncomplete(iInfoCmd)))
            return noInfo(GC_ERR_INVALID_HANDLE);
        return bufferInfo(*buffer, iInfoCmd);
    });
}

GENTL_FUNCTION DSGetBufferChunkData(
    DS_HANDLE hDataStream, BUFFER_HANDLE hBuffer, SINGLE_CHUNK_DATA *pChunkData, std::size_t *piNumChunks)
{
    return call("DSGetBufferChunkData", "", [&](const Lock &) {
        return withBuffer(hDataStream, hBuffer, [&](Stream &, const Buffer &buffer) {
            const auto chunks = chunksOf(buffer.layout);
            if (chunks.empty())
                return GC_ERR_NO_DATA;
            if (pChunkData && *piNumChunks < chunks.size())
                return GC_ERR_BUFFER_TOO_SMALL;
            if (pChunkData)
                std::copy(chunks.begin(), chunks.end(), pChunkData);
            *piNumChunks = chunks.size();
            return GC_ERR_SUCCESS;
        });
    });
}

GENTL_FUNCTION DSGetNumBufferParts(DS_HANDLE hDataStream, BUFFER_HANDLE hBuffer, std::uint32_t *piNumParts)
{
    return call("DSGetNumBufferParts", "", [&](const Lock &) {
        return withBuffer(hDataStream, hBuffer, [&](Stream &, const Buffer &buffer) {
            *piNumParts = static_cast<std::uint32_t>(buffer.layout.parts);
            return buffer.layout.parts > 0 ? GC_ERR_SUCCESS : GC_ERR_NO_DATA;
        });
    });
}

GENTL_FUNCTION DSGetBufferPartInfo(DS_HANDLE hDataStream, BUFFER_HANDLE hBuffer, std::uint32_t iPartIndex,
    BUFFER_PART_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return infoCall("DSGetBufferPartInfo", std::to_string(iInfoCmd), {piType, pBuffer, piSize}, [&] {
        Stream *const stream = streamOf(hDataStream);
        const Buffer *const buffer = stream ? bufferOf(*stream, hBuffer) : nullptr;
        if (!buffer || iPartIndex >= buffer->layout.parts)
            return noInfo(GC_ERR_INVALID_HANDLE);
        return partInfo(*buffer, iPartIndex, iInfoCmd);
    });
}

} // extern "C"
} // namespace GenTL
