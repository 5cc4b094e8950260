// Work with sound, which lives on an urgent thread of its own, and its asker's way to it: tasks run there, in order, on
// the work itself. Where the work could not be made they do nothing.
#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "adapters/linux/LoopThread.h"
#include "adapters/linux/UrgentThread.h"

namespace orvelle {

template <typename Work>
class WorkThread {
public:
    // `make` runs on the thread and may give none. std::system_error where no thread can be had.
    explicit WorkThread(std::function<std::unique_ptr<Work>(EventLoop& loop)> make)
        : thread([place = place, make = std::move(make)](EventLoop& loop) {
              linux::BecomeUrgent();
              std::shared_ptr<Work> work = make(loop);
              *place = work.get();
              return work;
          }) {}

    void Do(std::function<void(Work& work)> task) {
        thread.Post([place = place, task = std::move(task)] {
            if (*place) task(**place);
        });
    }

private:
    const std::shared_ptr<Work*> place = std::make_shared<Work*>(nullptr);  // the thread's
    linux::LoopThread thread;
};

}  // namespace orvelle
