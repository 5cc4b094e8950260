// The questions for voice servers' passwords, one at a time in the order in which they were asked. A question whose
// ticket ends is taken back; one that its user closes is answered by none. Held by QtVoiceDialogs.
#pragma once

#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <string>

#include "adapters/qt/windows/PasswordDialog.h"
#include "platform/PasswordQuestion.h"
#include "platform/Ticket.h"

namespace orvelle::qt {

// Tickets may outlive it; hence the shared ownership.
class PasswordQuestions : public std::enable_shared_from_this<PasswordQuestions> {
public:
    [[nodiscard]] Ticket Ask(const std::string& server, PasswordQuestion why,
                             std::function<void(const std::optional<std::string>&)> answer);

private:
    using Answer = Attachment<const std::optional<std::string>&>;

    struct Question {
        unsigned long Number;
        std::string Server;
        PasswordQuestion Why;
        Answer Answered;
    };

    struct DeleteLater {
        void operator()(PasswordDialog* gone) const;
    };

    void ShowFirst();
    void TakeBack(unsigned long number);
    void TakeAnswer(int outcome);

    std::list<Question> questions;  // the first one is shown
    std::unique_ptr<PasswordDialog, DeleteLater> shown;
    unsigned long asked = 0;
};

}  // namespace orvelle::qt
