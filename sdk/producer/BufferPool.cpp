#include "sdk/producer/BufferPool.h"

#include "sdk/producer/HandleTable.h"
#include "sdk/producer/LastError.h"

#include <algorithm>

using namespace GenTL;

namespace {

GC_ERROR failUnknownBuffer()
{
    return fail(GC_ERR_INVALID_HANDLE, "This is not the handle of a buffer of this stream.");
}

GC_ERROR failEmptyBuffer()
{
    return fail(GC_ERR_INVALID_BUFFER, "A buffer cannot have 0 bytes.");
}

void clearData(AnnouncedBuffer &buffer)
{
    buffer.hasNewData = false;
    std::vector<SINGLE_CHUNK_DATA> chunks = std::move(buffer.image.chunks);
    chunks.clear(); // Keeps the memory for the next image.
    buffer.image = FilledImage();
    buffer.image.chunks = std::move(chunks);
}

} // namespace

GC_ERROR BufferPool::announce(void *memory, std::size_t size, void *userPointer, BUFFER_HANDLE *handle)
{
    return memory ? add({nullptr, memory, size, userPointer, nullptr}, handle) : failMissingArgument();
}

GC_ERROR BufferPool::allocate(std::size_t size, void *userPointer, BUFFER_HANDLE *handle)
{
    if (size == 0)
        return failEmptyBuffer();
    void *const mapped = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapped == MAP_FAILED)
        return fail(
            GC_ERR_OUT_OF_MEMORY, "There is no memory for a buffer of " + std::to_string(size) + " bytes.");
    AnnouncedBuffer::Memory memory(mapped, {size});
    return add({nullptr, mapped, size, userPointer, std::move(memory)}, handle);
}

GC_ERROR BufferPool::add(AnnouncedBuffer buffer, BUFFER_HANDLE *handle)
{
    if (!handle)
        return failMissingArgument();
    if (buffer.size == 0)
        return failEmptyBuffer();
    const std::lock_guard lock(m_mutex);
    if (m_acquisition != Acquisition::Stopped)
        return fail(GC_ERR_BUSY, "Buffers cannot be announced while images are acquired.");
    for (const auto &[other, announced] : m_byHandle)
        if (announced->data == buffer.data)
            return fail(GC_ERR_RESOURCE_IN_USE, "This memory is announced already.");
    buffer.handle = newHandle();
    *handle = buffer.handle;
    m_order.push_back(buffer.handle);
    list(State::Unqueued).push_back(std::move(buffer));
    m_byHandle.emplace(*handle, std::prev(list(State::Unqueued).end()));
    return GC_ERR_SUCCESS;
}

GC_ERROR BufferPool::revoke(BUFFER_HANDLE handle, void **memory, void **userPointer)
{
    const std::lock_guard lock(m_mutex);
    const auto entry = m_byHandle.find(handle);
    if (entry == m_byHandle.end())
        return failUnknownBuffer();
    const List::iterator buffer = entry->second;
    if (buffer->state != State::Unqueued)
        return fail(GC_ERR_BUSY, "A queued buffer cannot be revoked.");
    if (memory)
        *memory = buffer->ownMemory ? nullptr : buffer->data;
    if (userPointer)
        *userPointer = buffer->userPointer;
    m_order.erase(std::find(m_order.begin(), m_order.end(), handle));
    m_byHandle.erase(entry);
    list(State::Unqueued).erase(buffer);
    return GC_ERR_SUCCESS;
}

GC_ERROR BufferPool::queue(BUFFER_HANDLE handle)
{
    const std::lock_guard lock(m_mutex);
    const auto entry = m_byHandle.find(handle);
    if (entry == m_byHandle.end())
        return failUnknownBuffer();
    if (entry->second->state != State::Unqueued)
        return fail(GC_ERR_RESOURCE_IN_USE, "The buffer is queued already.");
    moveTo(State::Input, entry->second);
    return GC_ERR_SUCCESS;
}

GC_ERROR BufferPool::flush(ACQ_QUEUE_TYPE operation)
{
    {
        const std::lock_guard lock(m_mutex);
        switch (operation) {
        case ACQ_QUEUE_INPUT_TO_OUTPUT:
            countFired(list(State::Input).size());
            moveAll(State::Input, State::Output);
            break;
        case ACQ_QUEUE_OUTPUT_DISCARD:
            moveAll(State::Output, State::Unqueued);
            break;
        case ACQ_QUEUE_ALL_TO_INPUT:
            moveAll(State::Output, State::Input);
            moveAll(State::Unqueued, State::Input);
            for (AnnouncedBuffer &buffer : list(State::Filling))
                buffer.returnsToInput = true;
            break;
        case ACQ_QUEUE_UNQUEUED_TO_INPUT:
            moveAll(State::Unqueued, State::Input);
            break;
        case ACQ_QUEUE_ALL_DISCARD:
            moveAll(State::Input, State::Unqueued);
            moveAll(State::Output, State::Unqueued);
            break;
        default:
            return fail(
                GC_ERR_NOT_IMPLEMENTED, "There is no queue operation " + std::to_string(operation) + ".");
        }
    }
    m_changed.notify_all();
    return GC_ERR_SUCCESS;
}

GC_ERROR BufferPool::start(std::uint64_t images, std::size_t minBuffers, std::size_t payloadSize)
{
    if (images == 0)
        return fail(GC_ERR_INVALID_PARAMETER, "The number of images cannot be 0.");
    const std::lock_guard lock(m_mutex);
    if (m_acquisition != Acquisition::Stopped)
        return fail(GC_ERR_RESOURCE_IN_USE, "The acquisition was started already.");
    if (m_byHandle.size() < minBuffers)
        return fail(GC_ERR_INVALID_BUFFER,
            "At least " + std::to_string(minBuffers) + " buffers have to be announced.");
    for (const auto &[handle, buffer] : m_byHandle)
        if (buffer->size < payloadSize)
            return fail(GC_ERR_BUFFER_TOO_SMALL,
                "A buffer has " + std::to_string(buffer->size) + " bytes, but an image needs "
                    + std::to_string(payloadSize) + ".");
    m_acquisition = Acquisition::Running;
    m_takesLeft = images;
    m_deliveriesLeft = images;
    m_fetched = 0;
    return GC_ERR_SUCCESS;
}

void BufferPool::stop()
{
    const std::lock_guard lock(m_mutex);
    m_acquisition = Acquisition::Stopped;
}

std::shared_ptr<EventState> BufferPool::registerEvent()
{
    const std::lock_guard lock(m_mutex);
    m_event = std::make_shared<EventState>();
    m_event->fired = list(State::Output).size(); // Buffers that have waited for the event.
    return m_event;
}

void BufferPool::unregisterEvent()
{
    {
        const std::lock_guard lock(m_mutex);
        m_event->isClosed = true;
        m_event.reset();
        moveAll(State::Output, State::Unqueued);
    }
    m_changed.notify_all();
}

GC_ERROR BufferPool::fetch(EventState &event, void *data, std::size_t *size, std::uint64_t milliseconds)
{
    std::unique_lock lock(m_mutex);
    List &output = list(State::Output);
    if (const GC_ERROR error
        = waitForEvent(lock, m_changed, event, milliseconds, [&] { return !output.empty(); }))
        return error;
    const EVENT_NEW_BUFFER_DATA found{output.front().handle, output.front().userPointer};
    if (const GC_ERROR error = writeEventData(&found, sizeof found, data, size))
        return error;
    moveTo(State::Unqueued, output.begin());
    ++m_fetched;
    return GC_ERR_SUCCESS;
}

void BufferPool::kill(EventState &event)
{
    {
        const std::lock_guard lock(m_mutex);
        ++event.kills;
    }
    m_changed.notify_one();
}

std::uint64_t BufferPool::fired(const EventState &event) const
{
    const std::lock_guard lock(m_mutex);
    return event.fired;
}

BufferPool::Counts BufferPool::counts() const
{
    const std::lock_guard lock(m_mutex);
    return {m_byHandle.size(), list(State::Input).size() + list(State::Filling).size(),
        list(State::Output).size(), m_fetched, m_underruns, m_acquisition == Acquisition::Running};
}

GC_ERROR BufferPool::handleAt(std::uint32_t index, BUFFER_HANDLE *handle) const
{
    if (!handle)
        return failMissingArgument();
    const std::lock_guard lock(m_mutex);
    if (index >= m_order.size())
        return failIndex(index, static_cast<std::uint32_t>(m_order.size()));
    *handle = m_order[index];
    return GC_ERR_SUCCESS;
}

GC_ERROR BufferPool::info(BUFFER_HANDLE handle, BUFFER_INFO_CMD command, const InfoOutput &output) const
{
    if (!output.isComplete())
        return failMissingArgument();
    const std::lock_guard lock(m_mutex);
    const auto entry = m_byHandle.find(handle);
    return entry != m_byHandle.end() ? writeBufferInfo(*entry->second, m_traits, command, output)
                                     : failUnknownBuffer();
}

GC_ERROR BufferPool::chunks(BUFFER_HANDLE handle, SINGLE_CHUNK_DATA *chunks, std::size_t *count) const
{
    if (!count)
        return failMissingArgument();
    const std::lock_guard lock(m_mutex);
    const auto entry = m_byHandle.find(handle);
    return entry != m_byHandle.end() ? writeChunks(*entry->second, chunks, count) : failUnknownBuffer();
}

GC_ERROR BufferPool::parts(BUFFER_HANDLE handle) const
{
    const std::lock_guard lock(m_mutex);
    return m_byHandle.count(handle) != 0 ? fail(GC_ERR_NO_DATA, "The buffer is not divided into parts.")
                                         : failUnknownBuffer();
}

std::optional<BufferQueue::Buffer> BufferPool::take()
{
    const std::lock_guard lock(m_mutex);
    List &input = list(State::Input);
    if (m_acquisition != Acquisition::Running || m_takesLeft == 0 || input.empty())
        return std::nullopt;
    if (m_takesLeft != GENTL_INFINITE)
        --m_takesLeft;
    const List::iterator buffer = input.begin();
    moveTo(State::Filling, buffer);
    return Buffer{buffer->handle, static_cast<std::uint8_t *>(buffer->data), buffer->size};
}

void BufferPool::deliver(const Buffer &buffer, const FilledImage &image)
{
    {
        const std::lock_guard lock(m_mutex);
        const List::iterator taken = m_byHandle.at(buffer.handle);
        if (taken->returnsToInput)
            return returnTaken(taken);
        taken->image = image;
        taken->hasNewData = true;
        moveTo(State::Output, taken);
        countFired(1);
        if (m_deliveriesLeft != GENTL_INFINITE && --m_deliveriesLeft == 0)
            m_acquisition = Acquisition::Complete;
    }
    m_changed.notify_one();
}

void BufferPool::giveBack(const Buffer &buffer)
{
    const std::lock_guard lock(m_mutex);
    returnTaken(m_byHandle.at(buffer.handle));
}

void BufferPool::countUnderrun(std::uint64_t images)
{
    const std::lock_guard lock(m_mutex);
    if (m_acquisition == Acquisition::Running && m_takesLeft > 0)
        m_underruns += images;
}

void BufferPool::moveTo(State state, List::iterator buffer)
{
    if (state == State::Input)
        clearData(*buffer);
    list(state).splice(list(state).end(), list(buffer->state), buffer);
    buffer->state = state;
}

void BufferPool::moveAll(State from, State to)
{
    while (!list(from).empty())
        moveTo(to, list(from).begin());
}

/// Puts a buffer that the image source has taken back into the input pool.
void BufferPool::returnTaken(List::iterator buffer)
{
    buffer->returnsToInput = false;
    moveTo(State::Input, buffer);
    if (m_takesLeft != GENTL_INFINITE)
        ++m_takesLeft;
}

void BufferPool::countFired(std::size_t buffers)
{
    if (m_event)
        m_event->fired += buffers;
}
