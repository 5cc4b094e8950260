// The scripted questions to the user: the file dialog, which is closed at once, and the message box.
#pragma once

#include "platform/Dialogs.h"
#include "replay/Peer.h"

namespace orvelle::replay {

class DialogPeer final : public FileDialog, private Peer {
public:
    using Peer::Peer;

    void DialogTitle(const std::string& title) override;
    void Flags(Long flags) override;
    void FileName(const std::string& name) override;
    std::string FileName() override;
    // What the scenario gave as the file name is what the user picks.
    void ShowOpen() override;

private:
    std::string fileName;
};

class MessageBoxPeer final : public MessageBox {
public:
    explicit MessageBoxPeer(Transcript& runTranscript) : transcript(runTranscript) {}

    void MsgBox(const std::string& text) override;

private:
    Transcript& transcript;
};

}  // namespace orvelle::replay
