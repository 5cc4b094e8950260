// The window in which this computer joins a set-up of several computers, leaves it, or goes to another of its hosts:
// which set-up it is in, the set-ups found on the network, the fields for host and code, and a sentence on how it went.
// Opened by the deck and, as a program of its own, by orvelle-setup.
#pragma once

#include <QDialog>

#include "platform/Ticket.h"
#include "platform/sides/JoinSide.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QPushButton;

namespace orvelle::deck {

class CodeField;
class Readout;

class JoinDialog : public QDialog {
public:
    // The side outlives the window. Set-ups are looked for as long as the window is there.
    explicit JoinDialog(JoinSide& joinSide, QWidget* parent = nullptr);
    ~JoinDialog() override;

private:
    void ShowState();
    void ShowSeen();
    void ShowSentence();
    void AskToLeave();
    void Join();
    void MoveTo();

    JoinSide& side;
    Readout* setUp;
    Readout* broker;
    QPushButton* leave;
    QListWidget* seen;
    QLineEdit* host;
    CodeField* code;
    QPushButton* join;
    QPushButton* move;
    QPushButton* cancel;
    QProgressBar* progress;
    QLabel* sentence;
    std::vector<SeenSetUp> shown;
    Ticket watch;
};

}  // namespace orvelle::deck
