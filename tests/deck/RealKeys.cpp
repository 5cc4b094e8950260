// The deck on a real X server with a window manager: keys and focus as the server deals them out.
#include <QLineEdit>
#include <QProcess>
#include <QWindow>
#include <algorithm>

#include "adapters/x11/KeyRepeat.h"
#include "tests/deck/DeckRig.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle {
namespace {

void Xdotool(const QStringList& arguments) {
    QProcess process;
    process.start("xdotool", arguments);
    EXPECT_TRUE(WaitFor([&] { return process.state() == QProcess::NotRunning; }));
    EXPECT_EQ(process.exitCode(), 0) << "xdotool " << arguments.join(' ').toStdString();
}

void ClickOn(const QWidget& widget) {
    const QPoint place = widget.mapToGlobal(widget.rect().center());
    Xdotool({"mousemove", QString::number(place.x()), QString::number(place.y()), "click", "1"});
}

class DeckOnX : public DeckRig {
protected:
    DeckOnX() {
        TellRepeatsAsPresses();
        ConnectAll();
        ClickOn(field);
        EXPECT_TRUE(WaitFor([this] { return field.hasFocus(); }));
    }
    bool WaitForEvents(std::size_t count) {
        return WaitFor([this, count] { return events.size() >= count; });
    }

    QWidget& field = At<QWidget>("KeyboardField");
};

TEST_F(DeckOnX, AHeldKeyRepeatsAndComesUpOnce) {
    Xdotool({"keydown", "F8"});
    EXPECT_TRUE(WaitForEvents(6));
    Xdotool({"keyup", "F8"});
    EXPECT_TRUE(WaitFor([this] { return !events.empty() && events.back() == "key up F8"; }));
    EXPECT_EQ(events.front(), "key down F8 in F8");
    EXPECT_EQ(std::ranges::count(events, "key up F8"), 1);
    EXPECT_EQ(std::ranges::count(events, "key down F8 in F8 repeat"), static_cast<std::ptrdiff_t>(events.size()) - 2);
}

TEST_F(DeckOnX, KeysHeldTogetherBearTheirNames) {
    Xdotool({"key", "ctrl+shift+1"});
    EXPECT_TRUE(WaitForEvents(6));
    EXPECT_EQ(std::vector<std::string>(events.begin(), events.begin() + 3),
              Events({"key down Ctrl in Ctrl", "key down Shift in Ctrl+Shift", "key down 1 in Ctrl+Shift+1"}));
}

TEST_F(DeckOnX, AnotherWindowThatTakesTheFocusEndsWhatIsHeld) {
    QLineEdit other;
    other.setAttribute(Qt::WA_ShowWithoutActivating);
    other.show();
    EXPECT_TRUE(WaitForWindowExposed(&other));
    Xdotool({"keydown", "ctrl"});
    EXPECT_TRUE(WaitForEvents(1));
    ClickOn(other);
    EXPECT_TRUE(WaitFor([this] { return !events.empty() && events.back() == "key up Ctrl"; }));
    Xdotool({"keyup", "ctrl"});
}

TEST_F(DeckOnX, ClosingHidesAndEndsWhatIsHeld) {
    Xdotool({"keydown", "ctrl"});
    EXPECT_TRUE(WaitForEvents(1));
    // As the window manager brings it.
    CloseFromTheFrame(&window);
    EXPECT_TRUE(WaitFor([this] { return !events.empty() && events.back() == "key up Ctrl"; }));
    EXPECT_FALSE(window.isVisible());
    Xdotool({"keyup", "ctrl"});
}

TEST(DeckBesideAPanel, OpensWithoutTakingTheFocus) {
    qt::QtEventLoop loop;
    embedded::SetUp setUp(loop);
    QLineEdit panel;
    panel.show();
    ASSERT_TRUE(WaitForWindowActive(&panel));
    DeckWindow deck(setUp.Sides());
    deck.OpenIn({QPoint(200, 100), deck.UsualSize()});
    ASSERT_TRUE(WaitForWindowExposed(&deck));
    Xdotool({"type", "to the panel"});
    EXPECT_TRUE(WaitFor([&] { return panel.text() == "to the panel"; }));
}

}  // namespace
}  // namespace orvelle
