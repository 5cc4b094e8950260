// A panel that runs as a program of its own, with empty settings, seen and worked by the bus of assistive programs
// alone.
#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>
#include <set>
#include <string>

#include "tests/reach/Reached.h"

namespace orvelle {

class ReachedPanel : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    Reached Main() const { return Window("Orvelle Control Panel"); }
    Reached Deck() const { return Window("OrvelleCP Flight Deck"); }
    Reached Window(const std::string& title) const;
    // The page that shows in the panel.
    Reached Page() const;
    // Chooses the node in the panel's tree; true when the page of that name shows.
    bool OpenPage(const std::string& node, const std::string& page) const;
    // Chooses a page of the deck.
    bool OpenDeckPage(const std::string& title) const;
    // Something in the page that shows, or in the deck; waits for it.
    Reached InPage(const std::string& role, const std::string& name) const;
    Reached InDeck(const std::string& role, const std::string& name) const;
    // The names that things were told to have from now on, in order.
    void HearNames();
    std::vector<std::string> HeardNames;
    // The panel's overview comes to have a label of that name.
    bool OverviewComesToSay(const std::string& label) const;

private:
    Reached Application() const;

    AtspiEventListener* listener = nullptr;
    QTemporaryDir folder;
    QProcess program;
};

}  // namespace orvelle
