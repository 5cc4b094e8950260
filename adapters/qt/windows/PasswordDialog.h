// Asks for the password of one voice server; holds nothing up. It comes before the window that the user works in, and
// where that is another program's it asks for attention and leaves it the keys. Made for each question, by
// PasswordQuestions.
#pragma once

#include <QDialog>
#include <string>

#include "platform/PasswordQuestion.h"

class QLineEdit;

namespace orvelle::qt {

class PasswordDialog : public QDialog {
    Q_OBJECT

public:
    PasswordDialog(const std::string& server, PasswordQuestion why);

    // What was typed; the field is empty afterwards.
    std::string TakePassword();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QLineEdit* field;
};

// So that what was freed holds none of it.
void Wipe(std::string& text);

}  // namespace orvelle::qt
