#include "adapters/qt/services/PasswordQuestions.h"

#include <QApplication>
#include <utility>

namespace orvelle::qt {

// The answer comes from inside a window's own event.
void PasswordQuestions::DeleteLater::operator()(PasswordDialog* gone) const {
    gone->disconnect();
    gone->hide();
    gone->deleteLater();
}

Ticket PasswordQuestions::Ask(const std::string& server, PasswordQuestion why,
                              std::function<void(const std::optional<std::string>&)> answer) {
    const unsigned long number = ++asked;
    Question& question = questions.emplace_back(Question{number, server, why, {}});
    Ticket ticket = question.Answered.Begin(std::move(answer), [weak = weak_from_this(), number] {
        if (const auto self = weak.lock()) self->TakeBack(number);
    });
    if (!shown) ShowFirst();
    return ticket;
}

void PasswordQuestions::ShowFirst() {
    shown.reset();
    if (questions.empty()) return;
    shown.reset(new PasswordDialog(questions.front().Server, questions.front().Why));
    QObject::connect(shown.get(), &QDialog::finished, shown.get(), [this](int outcome) { TakeAnswer(outcome); });
    // Who works in another program, as in the simulator, goes on typing there.
    shown->setAttribute(Qt::WA_ShowWithoutActivating, QApplication::activeWindow() == nullptr);
    shown->show();
}

void PasswordQuestions::TakeBack(unsigned long number) {
    if (questions.empty()) return;
    const bool isShown = questions.front().Number == number;
    questions.remove_if([number](const Question& each) { return each.Number == number; });
    if (isShown) ShowFirst();
}

void PasswordQuestions::TakeAnswer(int outcome) {
    const auto self = shared_from_this();
    const Answer answered = questions.front().Answered;
    questions.pop_front();
    std::optional<std::string> password;
    if (outcome == QDialog::Accepted) password = shown->TakePassword();
    ShowFirst();
    answered(password);
    if (password) Wipe(*password);
}

}  // namespace orvelle::qt
