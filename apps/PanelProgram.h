// The panel on this computer: the user's settings, the computer, the outside, the desktop, the panel and the flight
// deck beside it, each made once and joined. A program makes one, with its application made before it, and opens it. An
// object stands below those that it uses, so that it goes before them.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "adapters/qt/services/QtEventLoop.h"
#include "adapters/urls/StandardUrlFunctions.h"
#include "apps/Desktop.h"
#include "apps/FirstSight.h"
#include "apps/Outside.h"
#include "apps/OwnStrokes.h"
#include "apps/ThisComputer.h"
#include "apps/UserSettings.h"
#include "deck/DeckWindow.h"
#include "panel/FrmOrvelle.h"

namespace orvelle {

class ThisProcess;

class PanelProgram {
    ThisProcess& process;
    qt::QtEventLoop loop;
    urls::StandardUrlFunctions urlFunctions;

public:
    PanelProgram(ThisProcess& process, const std::string& settingsFile);

    UserSettings Settings;
    ThisComputer Computer;
    orvelle::Desktop Desktop;
    orvelle::Outside Outside;
    FrmOrvelle Panel;
    std::unique_ptr<DeckWindow> Deck;  // once it was open; none in a set-up

    // Loads and shows the panel, then opens the flight deck beside it, unless the user closed that in an earlier run.
    void Open();
    // The user asked for the flight deck: it opens and comes to the front, and is there again from the next start on.
    // In a set-up, where there is none, the user is told so.
    void ShowDeck();
    // The orderly end, by the same door that other programs use. It ends the process unless nobody is behind it.
    void End();

private:
    void TakeUpSetUp();
    void ShowPanel();
    void ShowDeckWherePractising();
    void OpenDeck();
    void MakeDeck();
    void KeepDeck(const char* state);
    JoinSide* Joining();
    void TellOfProgram(const std::string& sentence);

    std::unique_ptr<JoinSide> joining;       // for the deck, from its opening on
    const std::filesystem::path setUpFile;   // by which this computer belongs to a set-up
    std::unique_ptr<OwnStrokes> ownStrokes;  // kept out of the deck
    std::vector<std::string> untold;         // of programs and what they shall not be told, until there is a deck
    bool isEndAsked = false;                 // by a signal
    bool isLoaded = false;
    bool isSeen = false;
    std::unique_ptr<FirstSight> panelSeen;
    Ticket errorsExplained;
    Ticket goodbyeAtEnd;
    Ticket voiceEndsAtEnd;
    Ticket endAsked;
    Ticket wishesAsked;
};

}  // namespace orvelle
