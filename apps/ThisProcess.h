// This process on this computer: whether it may begin, and its ends. Each system has its own source file for it, which
// the build picks. Made first in main, before anything that starts a thread.
#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <string>

#include "adapters/shared/Wish.h"
#include "platform/Ticket.h"

namespace orvelle {

class EventLoop;
class Program;

class ThisProcess {
public:
    ThisProcess();
    ThisProcess(const ThisProcess&) = delete;
    ThisProcess& operator=(const ThisProcess&) = delete;
    ~ThisProcess();

    // One sentence on what is missing for a window to be shown, "" if nothing is; and how Qt calls the window system.
    std::string MissingDisplay() const;
    std::string WindowSystem() const;

    orvelle::Program& Program();
    // Why the program may run a second time though it asked before; one sentence, "" if it can't.
    std::string Problem() const;
    // For a second instance: asks the first one to show itself, which it does if it has opened already.
    void ShowRunning() const;
    // For the first one, once it has opened: calls `grant` from the loop when another program of this user asks for
    // something.
    [[nodiscard]] Ticket WhenAsked(EventLoop& loop, std::function<void(Wish)> grant);
    // Ends the program for an error that left a handler: one line on standard error. The user is told by a program that
    // outlives this one, in the words of the explanation.
    [[noreturn]] void EndByError(const std::exception& error);
    // The same for a reason that whoever started the program reads there.
    [[noreturn]] void EndByError(const std::string& reason);
    // `explain` is given the name of a run-time error and sentences that tell no more than that it came, and puts in
    // better ones where it knows why.
    [[nodiscard]] Ticket Explain(std::function<void(const std::string& error, std::string& sentences)> explain);
    // By which whoever outlives this process learns how it ended; -1 where the system has no such thing.
    int LastWord() const;
    // Run at each end of the program that can be attended, the last one first.
    [[nodiscard]] Ticket AtEnd(std::function<void()> cleanUp);
    // Calls `end` from the loop when the user or the system asks for the end. If that doesn't end the program, the
    // request does.
    [[nodiscard]] Ticket WhenEndIsAsked(EventLoop& loop, std::function<void()> end);

private:
    struct Parts;

    std::unique_ptr<Parts> parts;
};

}  // namespace orvelle
