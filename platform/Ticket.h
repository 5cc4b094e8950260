// Whoever attaches something gets a ticket, and the ticket's end ends the attachment: from then on nothing is called,
// also where the ticket ends inside the call that it stands for. The source keeps the other half. Either half may go
// first, in any order. One thread.
#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace orvelle {

class [[nodiscard]] Ticket {
public:
    Ticket() = default;  // stands for nothing
    Ticket(const Ticket&) = delete;
    Ticket& operator=(const Ticket&) = delete;
    Ticket(Ticket&&) = default;
    Ticket& operator=(Ticket&&) = default;  // ends the one that was there
    ~Ticket() = default;

    void End() { attached.reset(); }

private:
    template <typename... Arguments>
    friend class Attachment;

    explicit Ticket(std::shared_ptr<void> begun) : attached(std::move(begun)) {}

    std::shared_ptr<void> attached;
};

// The source's half. Calling it calls what was attached, and does nothing once the ticket has ended. Copies are of the
// same attachment. What was attached is destroyed with the ticket, or when the call under way has returned.
template <typename... Arguments>
class Attachment {
public:
    using Call = std::function<void(Arguments...)>;

    // `atEnd` is run when the ticket ends, for a source that has something to put away; it must not throw.
    [[nodiscard]] Ticket Begin(Call call, std::function<void()> atEnd = {}) {
        const auto begun = std::make_shared<Attached>(std::make_shared<Call>(std::move(call)), std::move(atEnd));
        attached = begun;
        return Ticket(begun);
    }

    bool HasEnded() const { return attached.expired(); }

    void operator()(Arguments... arguments) const {
        // Held is the call alone, so that the ticket can end inside it.
        if (const std::shared_ptr<Call> call = Current()) (*call)(arguments...);
    }

private:
    struct Attached {
        Attached(std::shared_ptr<Call> what, std::function<void()> atEnd)
            : What(std::move(what)), AtEnd(std::move(atEnd)) {}
        Attached(const Attached&) = delete;
        Attached& operator=(const Attached&) = delete;
        ~Attached() {
            if (AtEnd) AtEnd();
        }

        std::shared_ptr<Call> What;
        std::function<void()> AtEnd;
    };

    std::shared_ptr<Call> Current() const {
        const std::shared_ptr<Attached> begun = attached.lock();
        return begun ? begun->What : nullptr;
    }

    std::weak_ptr<Attached> attached;
};

}  // namespace orvelle
