// Tasks from another thread for the loop, brought in their order. Shared by both sides. Once the loop's side has closed
// it nothing is run any more, whatever the thread still posts.
#pragma once

#include <deque>
#include <functional>
#include <mutex>

namespace orvelle {

class LoopInbox {
public:
    LoopInbox();
    LoopInbox(const LoopInbox&) = delete;
    LoopInbox& operator=(const LoopInbox&) = delete;
    ~LoopInbox();

    // On any thread.
    void Post(std::function<void()> task);
    // On the loop's, whenever the descriptor can be read from; -1 where the system has none left. A task may close it.
    int Descriptor() const { return descriptor; }
    void Run();
    void Close();

private:
    std::function<void()> Next();

    const int descriptor;
    std::mutex guard;
    std::deque<std::function<void()>> tasks;
    bool isClosed = false;
};

}  // namespace orvelle
