// Brings the store's changes to its file: at the end of a handler, without waiting for anybody, and what can't be
// written then from the loop, until it can. Also lets the copy be made when the start is over. Called by the store.
// What the user must know is told at once; a failure that lasts is told once, and anew after a success.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "adapters/store/StoreFile.h"
#include "adapters/store/StoreMemory.h"
#include "platform/EventLoop.h"

namespace orvelle::store {

class StoreWriter {
public:
    using Notice = std::function<void(const std::string& sentence)>;
    // Whether the start found the store whole, so that a copy of it is a good one.
    enum class Start { Clean, NotClean };

    // The memory stays for as long as the writer. `file` is null where nothing can be written.
    StoreWriter(EventLoop& loop, StoreMemory& memory, std::unique_ptr<StoreFile> file, Start start, Notice tell);

    // What the start found is told.
    void Started();
    void HandlerEnded();
    // The last try, which may take a second, and the end of the file. A sentence on what is lost, or "".
    std::string Close();

private:
    bool Write(Long patienceMilliseconds);  // False if it must be tried again
    void TellOfFailure();
    void TryLater();
    void CopyLater(Long milliseconds);

    EventLoop& loop;
    StoreMemory& memory;
    std::unique_ptr<StoreFile> file;
    Notice tell;
    std::string failure;  // of the last try; "" after a success
    Long pause;           // until the next try, in milliseconds
    bool isWaiting = false;
    Ticket nextTry;
    Ticket copying;
};

}  // namespace orvelle::store
