// This file defines the exported C functions of data streams and buffers. GenTLDevice.h names the standard
// that defines what each function returns.

#include "sdk/producer/Guarded.h"
#include "sdk/producer/StreamModule.h"

using namespace GenTL;

extern "C" {

GENTL_FUNCTION DSGetInfo(DS_HANDLE hDataStream, STREAM_INFO_CMD iInfoCmd, INFO_DATATYPE *piType,
    void *pBuffer, std::size_t *piSize)
{
    return with<StreamModule>(hDataStream, [&](StreamModule &stream) {
        const InfoOutput output(piType, pBuffer, piSize);
        return output.isComplete() ? stream.info(iInfoCmd, output) : failMissingArgument();
    });
}

GENTL_FUNCTION DSClose(DS_HANDLE hDataStream)
{
    return closeHandle<StreamModule>(hDataStream);
}

GENTL_FUNCTION DSGetParentDev(DS_HANDLE hDataStream, DEV_HANDLE *phDevice)
{
    return with<StreamModule>(hDataStream, [&](StreamModule &) {
        return writeHandle(Producer::instance().handles().parent(hDataStream), phDevice);
    });
}

GENTL_FUNCTION DSStartAcquisition(
    DS_HANDLE hDataStream, ACQ_START_FLAGS iStartFlags, std::uint64_t iNumToAcquire)
{
    return with<StreamModule>(
        hDataStream, [&](StreamModule &stream) { return stream.start(iStartFlags, iNumToAcquire); });
}

GENTL_FUNCTION DSStopAcquisition(DS_HANDLE hDataStream, ACQ_STOP_FLAGS iStopFlags)
{
    return with<StreamModule>(hDataStream, [&](StreamModule &stream) { return stream.stop(iStopFlags); });
}

GENTL_FUNCTION DSAnnounceBuffer(
    DS_HANDLE hDataStream, void *pBuffer, std::size_t iSize, void *pPrivate, BUFFER_HANDLE *phBuffer)
{
    return with<StreamModule>(hDataStream,
        [&](StreamModule &stream) { return stream.buffers().announce(pBuffer, iSize, pPrivate, phBuffer); });
}

GENTL_FUNCTION DSAllocAndAnnounceBuffer(
    DS_HANDLE hDataStream, std::size_t iSize, void *pPrivate, BUFFER_HANDLE *phBuffer)
{
    return with<StreamModule>(hDataStream,
        [&](StreamModule &stream) { return stream.buffers().allocate(iSize, pPrivate, phBuffer); });
}

GENTL_FUNCTION DSRevokeBuffer(DS_HANDLE hDataStream, BUFFER_HANDLE hBuffer, void **ppBuffer, void **ppPrivate)
{
    return with<StreamModule>(hDataStream,
        [&](StreamModule &stream) { return stream.buffers().revoke(hBuffer, ppBuffer, ppPrivate); });
}

GENTL_FUNCTION DSQueueBuffer(DS_HANDLE hDataStream, BUFFER_HANDLE hBuffer)
{
    return with<StreamModule>(hDataStream, [&](StreamModule &stream) { return stream.queue(hBuffer); });
}

GENTL_FUNCTION DSFlushQueue(DS_HANDLE hDataStream, ACQ_QUEUE_TYPE iOperation)
{
    return with<StreamModule>(hDataStream, [&](StreamModule &stream) { return stream.flush(iOperation); });
}

GENTL_FUNCTION DSGetBufferID(DS_HANDLE hDataStream, std::uint32_t iIndex, BUFFER_HANDLE *phBuffer)
{
    return with<StreamModule>(
        hDataStream, [&](StreamModule &stream) { return stream.buffers().handleAt(iIndex, phBuffer); });
}

GENTL_FUNCTION DSGetBufferInfo(DS_HANDLE hDataStream, BUFFER_HANDLE hBuffer, BUFFER_INFO_CMD iInfoCmd,
    INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return with<StreamModule>(hDataStream, [&](StreamModule &stream) {
        return stream.buffers().info(hBuffer, iInfoCmd, InfoOutput(piType, pBuffer, piSize));
    });
}

GENTL_FUNCTION DSGetBufferChunkData(
    DS_HANDLE hDataStream, BUFFER_HANDLE hBuffer, SINGLE_CHUNK_DATA *pChunkData, std::size_t *piNumChunks)
{
    return with<StreamModule>(hDataStream,
        [&](StreamModule &stream) { return stream.buffers().chunks(hBuffer, pChunkData, piNumChunks); });
}

GENTL_FUNCTION DSGetNumBufferParts(DS_HANDLE hDataStream, BUFFER_HANDLE hBuffer, std::uint32_t *piNumParts)
{
    return with<StreamModule>(hDataStream, [&](StreamModule &stream) {
        return piNumParts ? stream.buffers().parts(hBuffer) : failMissingArgument();
    });
}

GENTL_FUNCTION DSGetBufferPartInfo(DS_HANDLE hDataStream, BUFFER_HANDLE hBuffer, std::uint32_t,
    BUFFER_PART_INFO_CMD, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return with<StreamModule>(hDataStream, [&](StreamModule &stream) {
        return InfoOutput(piType, pBuffer, piSize).isComplete() ? stream.buffers().parts(hBuffer)
                                                                : failMissingArgument();
    });
}

} // extern "C"
