#pragma once

#include "sdk/producer/AnnouncedBuffer.h"
#include "sdk/producer/EventState.h"

#include <array>
#include <list>
#include <unordered_map>

/// The announced buffers of one data stream, their states and the two queues. Any thread may call any
/// function; only fetch() waits. A function that fails sets the thread's last error. If a function does not
/// say what it returns, it returns GC_ERR_SUCCESS, or GC_ERR_INVALID_HANDLE if the handle is not one of an
/// announced buffer.
class BufferPool final : public BufferQueue
{
public:
    explicit BufferPool(StreamTraits traits) : m_traits(std::move(traits)) { }

    // Announcing

    /// Announces memory of the consumer. Returns GC_ERR_BUSY while images are acquired,
    /// GC_ERR_RESOURCE_IN_USE if the memory is announced already, GC_ERR_INVALID_PARAMETER for missing
    /// arguments, and GC_ERR_INVALID_BUFFER for a size of 0.
    GenTL::GC_ERROR announce(void *memory, std::size_t size, void *userPointer, GenTL::BUFFER_HANDLE *handle);

    /// Announces memory of the pool. Returns GC_ERR_OUT_OF_MEMORY, or what announce() returns.
    GenTL::GC_ERROR allocate(std::size_t size, void *userPointer, GenTL::BUFFER_HANDLE *handle);

    /// Forgets a buffer and writes the consumer's memory, or null for memory of the pool, and the user
    /// pointer to the outputs that are not null. Returns GC_ERR_BUSY unless the consumer owns the buffer.
    GenTL::GC_ERROR revoke(GenTL::BUFFER_HANDLE handle, void **memory, void **userPointer);

    // Queues

    /// Puts a buffer into the input pool. Returns GC_ERR_RESOURCE_IN_USE unless the consumer owns it.
    GenTL::GC_ERROR queue(GenTL::BUFFER_HANDLE handle);

    /// Moves buffers between the queues. Returns GC_ERR_NOT_IMPLEMENTED for an unknown operation.
    GenTL::GC_ERROR flush(GenTL::ACQ_QUEUE_TYPE operation);

    // Acquisition

    /// Allows take() to return `images` buffers, or any number for GENTL_INFINITE. Returns
    /// GC_ERR_INVALID_PARAMETER for 0 images, GC_ERR_RESOURCE_IN_USE if the acquisition was started already,
    /// GC_ERR_INVALID_BUFFER if fewer than `minBuffers` are announced, and GC_ERR_BUFFER_TOO_SMALL if one of
    /// them is smaller than `payloadSize`.
    GenTL::GC_ERROR start(std::uint64_t images, std::size_t minBuffers, std::size_t payloadSize);

    /// Ends the acquisition. The image source must not use the pool any more.
    void stop();

    // The new-buffer event

    /// Returns the state of a new event. The pool must not have one.
    std::shared_ptr<EventState> registerEvent();

    /// Removes the event, ends its waits, and discards the output queue.
    void unregisterEvent();

    /// Takes the oldest buffer from the output queue. Without `data`, the buffer is only taken. Returns what
    /// waitForEvent() returns, and GC_ERR_BUFFER_TOO_SMALL if `size` is too small, which leaves the buffer in
    /// the queue.
    GenTL::GC_ERROR fetch(EventState &event, void *data, std::size_t *size, std::uint64_t milliseconds);

    /// Ends one wait of the event.
    void kill(EventState &event);

    /// Returns how often the event was fired since its registration.
    std::uint64_t fired(const EventState &event) const;

    // Information

    struct Counts
    {
        std::size_t announced;
        std::size_t queued; ///< Buffers in the input pool or being filled.
        std::size_t awaitingDelivery; ///< Buffers in the output queue.
        std::uint64_t fetched; ///< Since the last start.
        std::uint64_t underruns;
        bool isAcquiring; ///< Until the stop or the last image.
    };
    Counts counts() const;

    /// Writes the handle of a buffer, in the order of announcing. Returns GC_ERR_INVALID_INDEX.
    GenTL::GC_ERROR handleAt(std::uint32_t index, GenTL::BUFFER_HANDLE *handle) const;

    /// Returns what writeBufferInfo() and writeChunks() return.
    GenTL::GC_ERROR info(
        GenTL::BUFFER_HANDLE handle, GenTL::BUFFER_INFO_CMD command, const InfoOutput &output) const;
    GenTL::GC_ERROR chunks(
        GenTL::BUFFER_HANDLE handle, GenTL::SINGLE_CHUNK_DATA *chunks, std::size_t *count) const;

    /// Returns GC_ERR_NO_DATA, because every buffer contains a single picture.
    GenTL::GC_ERROR parts(GenTL::BUFFER_HANDLE handle) const;

    // The image source

    std::optional<Buffer> take() override;
    void deliver(const Buffer &buffer, const FilledImage &image) override;
    void giveBack(const Buffer &buffer) override;
    void countUnderrun(std::uint64_t images) override;

private:
    using State = AnnouncedBuffer::State;
    using List = std::list<AnnouncedBuffer>; // Moving an element to another list allocates nothing.

    enum class Acquisition : std::uint8_t
    {
        Stopped,
        Running,
        Complete ///< All images were delivered; stop() was not called yet.
    };

    GenTL::GC_ERROR add(AnnouncedBuffer buffer, GenTL::BUFFER_HANDLE *handle);
    const List &list(State state) const { return m_lists[static_cast<std::size_t>(state)]; }
    List &list(State state) { return m_lists[static_cast<std::size_t>(state)]; }
    void moveTo(State state, List::iterator buffer);
    void moveAll(State from, State to);
    void countFired(std::size_t buffers);
    void returnTaken(List::iterator buffer);

    const StreamTraits m_traits;
    mutable std::mutex m_mutex; // Guards the members below.
    std::condition_variable m_changed; // The output queue or the event's state.
    std::array<List, 4> m_lists; // One for each state.
    std::unordered_map<GenTL::BUFFER_HANDLE, List::iterator> m_byHandle;
    std::vector<GenTL::BUFFER_HANDLE> m_order; // The handles in the order of announcing.
    std::shared_ptr<EventState> m_event; // Null if no event is registered.
    Acquisition m_acquisition = Acquisition::Stopped;
    std::uint64_t m_takesLeft = 0; // GENTL_INFINITE is no limit.
    std::uint64_t m_deliveriesLeft = 0;
    std::uint64_t m_fetched = 0;
    std::uint64_t m_underruns = 0;
};
