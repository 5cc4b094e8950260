// An embedded set-up with a deck on it, and what would be the panel's end: whatever reaches it is written down.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "adapters/embedded/SetUp.h"
#include "adapters/ends/FrameworkEnd.h"
#include "adapters/ends/SimulatorEnd.h"
#include "adapters/qt/services/QtEventLoop.h"
#include "adapters/shared/NoticeBoard.h"
#include "deck/DeckWindow.h"
#include "tests/deck/PlayedHeldKeys.h"
#include "tests/shared/MemoryValues.h"

namespace orvelle {

// To compare with what reached the panel's end: Events({"engine started"}).
inline std::vector<std::string> Events(std::initializer_list<std::string> events) { return events; }

class DeckRig : public testing::Test {
protected:
    DeckRig();

    // Lets the loop bring all that waits, events at the panel and changes at the deck.
    static void Settle();
    // By the box in the window's frame.
    void CloseByHand();
    // Both links up and the framework link started, a session there.
    void ConnectAll();

    template <typename Widget>
    Widget& At(const char* name) {
        auto* widget = window.findChild<Widget*>(name);
        if (!widget) ADD_FAILURE() << "no widget " << name;
        return *widget;
    }
    // As a user's doing. A click on a widget of another page turns to that page first.
    void Click(const char* name);
    void Type(const char* name, const QString& text);
    void Pick(const char* name, int index);
    void TurnTo(QWidget& widget);
    QString TextOf(const char* name);

    qt::QtEventLoop loop;
    MemoryValues values;
    NoticeBoard notices{loop};
    embedded::SetUp setUp{loop};
    const ends::LineTable<SimulatorLine> simulatorLines{setUp.SimulatorLink};
    const ends::LineTable<FrameworkLine> frameworkLines{setUp.NetworkLink};
    ends::SimulatorEnd velmarc{loop, values, simulatorLines, {}};
    ends::FrameworkEnd tessaly{loop, values, frameworkLines};
    PlayedHeldKeys heldKeys;
    DeckWindow window{Sides()};
    std::vector<std::string> events;  // raised since they were read last
    std::vector<std::string> TakeEvents();
    FarSides Sides();

private:
    void WriteDownEvents();
};

}  // namespace orvelle
