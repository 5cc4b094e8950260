// The one event loop, for adapters that have to wait. One thread: every call is made on the loop's own, and every task
// is run there, from the loop, never from inside the call that took it. An error that leaves a task passes through to
// whoever runs the loop, as that of any handler, and the other tasks stay. A loop that goes drops all tasks; a ticket
// may outlive it.
//
// The end of a ticket cancels its task at once, even if its moment has come. A task may end its own ticket.
#pragma once

#include <functional>

#include "platform/Ticket.h"
#include "platform/Types.h"

namespace orvelle {

class EventLoop {
public:
    using Task = std::function<void()>;

    virtual ~EventLoop() = default;

    // Runs the task once, in the loop's next turn. Tasks of one moment run in the order in which they were posted.
    virtual void Post(Task task) = 0;
    // Runs the task once, never before its time. Tasks of the same time run in the order in which they were made; none
    // or a negative one is the next turn, in one order with what is posted.
    [[nodiscard]] virtual Ticket After(Long milliseconds, Task task) = 0;

    // Runs the task again and again, for as long as the descriptor can be read from, or written to, without waiting
    // (level-triggered); its end and its errors count as both. It must stay open while the ticket lives, and has at
    // most one ticket of each kind at a time.
    [[nodiscard]] virtual Ticket WhenReadable(int descriptor, Task task) = 0;
    [[nodiscard]] virtual Ticket WhenWritable(int descriptor, Task task) = 0;
};

}  // namespace orvelle
