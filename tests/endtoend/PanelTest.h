// A whole panel with its flight deck in this process, on the test's own display, with a user in front of it and a
// stand-in voice program that writes down its command lines.
#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <string>

#include "apps/PanelProgram.h"
#include "apps/ThisProcess.h"
#include "tests/endtoend/User.h"

namespace orvelle {

constexpr Long TalkKeyCode = 88;  // F12, as a scan code
constexpr int TalkKey = 88;       // the same key's Linux number

class PanelTest : public testing::Test {
protected:
    PanelTest();

    // What the user set up on another day comes before.
    void Open();
    // The same, but panel and deck stay where they came.
    void Show();
    static bool IsSeen(const QWidget& window);
    // Links up, session open, both radios received and COM1 transmitting.
    void Connect();
    void ShowPage(const char* node);
    // A widget of the panel or of the deck, by its name; a missing one fails the test by an exception.
    QWidget& OfPanel(const char* name);
    QWidget& OfDeck(const char* name);
    // Windows lie over one another; the one that is worked on comes to the front.
    void ToFront(QWidget& window);

    std::string VoiceProgram() const { return folder.filePath("voice program").toStdString(); }
    // The command lines so far, each word on its own between bars, a line each.
    std::string VoiceCommands() const;

    QTemporaryDir folder;
    ThisProcess process;
    PanelProgram house{process, folder.filePath("settings.sqlite").toStdString()};
    FrmOrvelle& panel = house.Panel;
    User user;

private:
    QWidget& Find(QWidget& window, const char* name);
};

}  // namespace orvelle
