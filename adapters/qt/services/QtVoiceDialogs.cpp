#include "adapters/qt/services/QtVoiceDialogs.h"

#include "adapters/qt/windows/VoiceTestDialog.h"

namespace orvelle::qt {

std::optional<Squelch> QtVoiceDialogs::Calibrate(VoiceTrial& trial, const Squelch& now) {
    if (calibration) {
        calibration->raise();
        calibration->activateWindow();
        return std::nullopt;
    }
    VoiceTestDialog dialog(trial, now, ShownParent(parentOf));
    calibration = &dialog;
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.Chosen();
}

Ticket QtVoiceDialogs::AskPassword(const std::string& server, PasswordQuestion question,
                                   std::function<void(const std::optional<std::string>&)> answer) {
    return passwords->Ask(server, question, std::move(answer));
}

}  // namespace orvelle::qt
