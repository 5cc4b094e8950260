// A thread with an event loop of its own, for work that may not wait for the panel: what lives there is made, used and
// destroyed there alone. Tasks go to it by Post, in their order; what it has to say goes back by a LoopInbox of the
// asker's. The program's signals stay with the program's own thread. Its end runs what was posted before, then the
// destruction of what was made there, and waits for that.
#pragma once

#include <functional>
#include <memory>
#include <thread>

#include "adapters/linux/PollEventLoop.h"
#include "adapters/shared/LoopInbox.h"

namespace orvelle::linux {

class LoopThread {
public:
    // `begin` makes, on the thread, what lives there; that goes as the thread ends. std::system_error where no thread
    // can be had.
    explicit LoopThread(std::function<std::shared_ptr<void>(EventLoop& loop)> begin);
    LoopThread(const LoopThread&) = delete;
    LoopThread& operator=(const LoopThread&) = delete;
    ~LoopThread();

    void Post(std::function<void()> task) { inbox->Post(std::move(task)); }

private:
    void Serve(const std::function<std::shared_ptr<void>(EventLoop& loop)>& begin);

    PollEventLoop loop;  // the thread's
    std::shared_ptr<LoopInbox> inbox = std::make_shared<LoopInbox>();
    std::thread thread;
};

}  // namespace orvelle::linux
