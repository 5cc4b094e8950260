// What the voice engine has its user asked, in windows of the panel. The calibration is modal, over the window that
// `parentOf` names while it shows, and events of the program are served meanwhile; a second one while it is open is
// cancelled at once. Passwords hold nothing up.
#pragma once

#include <QPointer>
#include <memory>

#include "adapters/qt/services/PasswordQuestions.h"
#include "adapters/qt/services/QtDialogs.h"
#include "platform/VoiceDialogs.h"

namespace orvelle::qt {

class QtVoiceDialogs : public VoiceDialogs {
public:
    explicit QtVoiceDialogs(DialogParent dialogParent) : parentOf(std::move(dialogParent)) {}

    std::optional<Squelch> Calibrate(VoiceTrial& trial, const Squelch& now) override;
    [[nodiscard]] Ticket AskPassword(const std::string& server, PasswordQuestion question,
                                     std::function<void(const std::optional<std::string>&)> answer) override;

private:
    const DialogParent parentOf;
    QPointer<QDialog> calibration;
    const std::shared_ptr<PasswordQuestions> passwords = std::make_shared<PasswordQuestions>();
};

}  // namespace orvelle::qt
