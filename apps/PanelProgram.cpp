#include "apps/PanelProgram.h"

#include <QScreen>
#include <utility>

#include "adapters/looks/ScreenRoom.h"
#include "adapters/mqtt/Topics.h"
#include "adapters/qt/services/BringToFront.h"
#include "apps/DeckPlace.h"
#include "apps/EndCause.h"
#include "apps/EndSentences.h"
#include "apps/OwnModules.h"
#include "apps/ThisProcess.h"

namespace orvelle {

namespace {

constexpr Long LongestLastWord = 30000;  // milliseconds
constexpr std::size_t MostUntold = 200;  // sentences, as many as the deck shows
constexpr const char* DeckValue = "FlightDeck";
constexpr const char* DeckIsOpen = "open";
constexpr const char* DeckIsClosed = "closed";

}  // namespace

PanelProgram::PanelProgram(ThisProcess& thisProcess, const std::string& settingsFile)
    : process(thisProcess),
      Settings(process, loop, settingsFile),
      Computer(process, loop, Settings.Store),
      Outside(loop, Settings.Store, {Computer.Name(), ThisComputer::DesktopName}, Computer.TeamSpeak(), Desktop.Voice,
              std::filesystem::path(settingsFile).parent_path() / "voice"),
      Panel(Platform{
          .Velmarc = Outside.Velmarc,
          .Settings = Settings.Store,
          .Registry = Computer.Registry(),
          .Tessaly = Outside.Tessaly,
          .VVL = Outside.VVL,
          .VolumeControl = Outside.VolumeControl,
          .VolumeControlHP = Outside.VolumeControlHP,
          .TSRemote = Outside.TSRemote,
          .MediaPlayers = Outside.MediaPlayers,
          .Dialog = Desktop.Dialog,
          .Messages = Desktop.Messages,
          .Keyboard = Computer.Keyboard(),
          .Queue = Desktop.Queue,
          .Windows = Desktop.Windows,
          .Clock = Desktop.Clock,
          .Processes = Computer.Processes(),
          .Program = process.Program(),
          .Tray = Desktop.Tray,
          .Urls = urlFunctions,
      }),
      setUpFile(std::filesystem::path(settingsFile).parent_path() / "setup.json") {
    Desktop.Show(Panel);
    Computer.OpenDoor(Desktop.Table, Panel.Stub1);
    Settings.Notices.Told = [this](const std::string& message) { Desktop.Messages.MsgBox(message); };
    Computer.Told = [this](const std::string& sentence) { Settings.Notices.Tell(sentence); };
    Computer.KeysTold = [this](const std::string& sentence) { Desktop.Tray.Tell(sentence); };
    if (const std::string problem = process.Problem(); !problem.empty()) Settings.Notices.Tell(problem);
    Computer.ProgramTold = [this](const std::string& sentence) { TellOfProgram(sentence); };
    Outside.Tessaly.Refused = [this](const std::string& sentence) {
        Outside.IsPractising() ? TellOfProgram(sentence) : Settings.Notices.Tell(sentence);
    };
    Outside.Told = [this](const std::string& sentence) { Desktop.Tray.Tell(sentence); };
    errorsExplained = process.Explain([this](const std::string& error, std::string& sentences) {
        // It has the user told, and begins after the load.
        if (!isLoaded) Computer.Begin();
        const std::string cause = isLoaded ? CauseInPanel(Panel) : EndBySettings(setUpFile.parent_path(), error);
        if (!cause.empty()) sentences = cause;
    });
    goodbyeAtEnd = process.AtEnd([this] { Outside.SayGoodbye(); });
    voiceEndsAtEnd = process.AtEnd([this] { Outside.EndVoice(); });
    TakeUpSetUp();
    Computer.FileChanged = [this] {
        TakeUpSetUp();
        ShowDeckWherePractising();
    };
    Computer.WatchFile(setUpFile.string());
    // A session that ends is not held up by a question.
    Settings.LostAtEnd = [this](const std::string& sentence) {
        if (!isEndAsked) Desktop.Messages.MsgBox(sentence, LongestLastWord);
    };
    endAsked = process.WhenEndIsAsked(loop, [this] {
        isEndAsked = true;
        End();
    });
}

void PanelProgram::Open() {
    // In the loop's first turn, before anything that the panel is told can press a key; nor would one go down without.
    loop.Post([this] { Computer.Begin(); });
    Panel.Show();
    if (isEndAsked) return End();
    // The deck waits for the panel to be seen, as it opens beside it.
    loop.Post([this] {
        isLoaded = true;
        panelSeen = std::make_unique<FirstSight>(Desktop.Window(), [this] {
            isSeen = true;
            ShowDeckWherePractising();
        });
        wishesAsked = process.WhenAsked(loop, [this](Wish wish) { wish == Wish::ShowDeck ? ShowDeck() : ShowPanel(); });
    });
}

void PanelProgram::End() { Desktop.Table.Deliver(Panel.Stub1, Stub::TerminationMessage, 0, 0); }

// As by the menu of the icon, and before the other windows.
void PanelProgram::ShowPanel() {
    Panel.mnuTrayShow.UserClick();
    qt::BringToFront(Desktop.Window());
}

// A file that can't be read counts as none.
void PanelProgram::TakeUpSetUp() {
    const mqtt::FoundSetUp found = mqtt::ReadSetUpFile(setUpFile);
    if (!found.Sentence.empty()) Settings.Notices.Tell(found.Sentence);
    const bool hasPractised = Outside.IsPractising();
    if (found.Setting) {
        Outside.Join(*found.Setting);
        // Where the deck's window for joining did it, that goes with the deck.
        if (hasPractised && isLoaded && !Outside.IsPractising())
            Desktop.Tray.Tell("This computer is " + mqtt::WriteIdentity(found.Setting->Identity) + " of the set-up " +
                              found.Setting->Name + " now.");
    } else if (!hasPractised)
        Outside.Practise();
}

void PanelProgram::ShowDeckWherePractising() {
    if (!isSeen) return;
    if (!Outside.IsPractising()) {
        ownStrokes.reset();
        // Its window for joining may be what has just joined.
        if (Deck) {
            Deck->hide();
            Deck.release()->deleteLater();
        }
    } else if (!Deck && Settings.Store.GetControlValue(DeckValue, DeckIsOpen) == DeckIsOpen) {
        OpenDeck();
    }
}

void PanelProgram::ShowDeck() {
    if (!Outside.IsPractising()) {
        ShowPanel();
        Desktop.Tray.Tell("This computer has joined a set-up, so there is no flight deck to practise with.");
        return;
    }
    KeepDeck(DeckIsOpen);
    if (!Deck || !Deck->isVisible()) OpenDeck();
    Deck->showNormal();
    qt::BringToFront(*Deck);
}

void PanelProgram::OpenDeck() {
    if (!Deck) MakeDeck();
    const qt::MainWindow& panel = Desktop.Window();
    const DeckPlace place =
        FindDeckPlace(panel.frameGeometry(), panel.screen()->availableGeometry(),
                      {Deck->UsualSize() + FrameAllowance, Deck->LeastWidth() + FrameAllowance.width(),
                       panel.ListWidth() + FrameAllowance.width() / 2},
                      Desktop.Tray.StandInPlace());
    Deck->OpenIn(place.Frame);
    if (place.Where == DeckPlace::Layer::BehindPanel) Desktop.Window().raise();
    if (place.Where == DeckPlace::Layer::BeforePanel) Deck->raise();
}

void PanelProgram::MakeDeck() {
    FarSides sides = Outside.Practice.Sides();
    sides.ServingEngine = &Outside.Engine;
    sides.Notices = &Settings.Notices;
    sides.Join = Joining();
    sides.HeldKeys = &Computer.HeldKeys();
    Deck = std::make_unique<DeckWindow>(sides);
    Deck->Closed = [this] { KeepDeck(DeckIsClosed); };
    ownStrokes = std::make_unique<OwnStrokes>(Computer, *Deck);
    for (const std::string& sentence : std::exchange(untold, {})) TellOfProgram(sentence);
}

void PanelProgram::KeepDeck(const char* state) {
    Settings.Store.SetControlValue(DeckValue, state);
    Settings.Store.HandlerEnded();
}

// Null, and told, where what it needs can't be loaded.
JoinSide* PanelProgram::Joining() {
    if (joining) return joining.get();
    std::string why;
    if (auto* const make = FunctionOf<NewOrvelleSetUpDeskFunction>(SetUpModuleName, "NewOrvelleSetUpDesk", why))
        joining.reset(make(loop, setUpFile.parent_path()));
    else
        Desktop.Tray.Tell("No set-up can be joined: " + why + ".");
    return joining.get();
}

void PanelProgram::TellOfProgram(const std::string& sentence) {
    if (Deck) {
        Deck->TellOfProgram(sentence);
    } else if (Outside.IsPractising()) {
        if (untold.size() == MostUntold) untold.erase(untold.begin());
        untold.push_back(sentence);
    }
}

}  // namespace orvelle
