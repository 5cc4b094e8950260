#include "adapters/shared/LoopInbox.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <utility>

namespace orvelle {

LoopInbox::LoopInbox() : descriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

LoopInbox::~LoopInbox() {
    if (descriptor >= 0) close(descriptor);
}

void LoopInbox::Post(std::function<void()> task) {
    {
        const std::lock_guard lock(guard);
        if (isClosed) return;
        tasks.push_back(std::move(task));
    }
    eventfd_write(descriptor, 1);
}

// What comes while tasks are run writes the descriptor again.
void LoopInbox::Run() {
    eventfd_t count = 0;
    eventfd_read(descriptor, &count);
    while (const std::function<void()> task = Next()) task();
}

void LoopInbox::Close() {
    const std::lock_guard lock(guard);
    isClosed = true;
    tasks.clear();
}

std::function<void()> LoopInbox::Next() {
    const std::lock_guard lock(guard);
    if (tasks.empty()) return nullptr;
    std::function<void()> task = std::move(tasks.front());
    tasks.pop_front();
    return task;
}

}  // namespace orvelle
