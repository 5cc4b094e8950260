// The flight deck and the panel on screens of several sizes, with the letters of a desktop and with large ones: both
// stand on the screen with their frames, neither is ever wholly under the other, and nothing of ours covers the deck.
// Closed once the deck stays away until it is asked for. A warning comes before both.
#include <xcb/xcb.h>
#include <QApplication>
#include <QGuiApplication>
#include <QProcess>
#include <QRegion>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <memory>
#include <vector>

#include "adapters/qt/services/StandInIcon.h"
#include "tests/endtoend/PanelTest.h"

namespace orvelle {

namespace {

constexpr int FreeEdge = 40;  // logical pixels that are easily clicked

// From below to above, as the window manager has them.
std::vector<WId> Stacking() {
    QProcess xprop;
    xprop.start("xprop", {"-root", "_NET_CLIENT_LIST_STACKING"});
    xprop.waitForFinished();
    const QString words = QString::fromUtf8(xprop.readAllStandardOutput()).section('#', 1);
    std::vector<WId> windows;
    for (const QString& word : words.split(',')) windows.push_back(word.trimmed().toULongLong(nullptr, 0));
    return windows;
}

bool IsAbove(const QWidget& one, const QWidget& other) {
    const std::vector<WId> windows = Stacking();
    const auto place = [&](const QWidget& window) { return std::find(windows.begin(), windows.end(), window.winId()); };
    return place(one) != windows.end() && place(other) < place(one);
}

bool AsksForAttention(const QWidget& window) {
    QProcess xprop;
    xprop.start("xprop", {"-id", QString::number(window.winId()), "_NET_WM_STATE"});
    xprop.waitForFinished();
    return xprop.readAllStandardOutput().contains("_NET_WM_STATE_DEMANDS_ATTENTION");
}

// The greatest rectangle of `one` that is not under `other`, by its lesser side.
int FreeOf(const QWidget& one, const QWidget& other) {
    const QRect frame = one.frameGeometry();
    if (IsAbove(one, other)) return std::min(frame.width(), frame.height());
    int most = 0;
    for (const QRect& part : QRegion(frame).subtracted(other.frameGeometry()))
        most = std::max(most, std::min(part.width(), part.height()));
    return most;
}

// Before the panel's windows are made.
class Letters {
protected:
    explicit Letters(int points) {
        QFont font = usual;
        font.setPointSize(points);
        QApplication::setFont(font);
    }
    ~Letters() { QApplication::setFont(usual); }

private:
    const QFont usual = QApplication::font();
};

class DeckTest : public PanelTest {
protected:
    void SeeTwoServers() {
        for (const char* server : {"10.0.0.1", "TOWERPC"}) house.Outside.Practice.SimulatorLink.SeeServer(server);
    }
    static const QWidget* Warning() {
        for (const QWidget* widget : QApplication::topLevelWidgets())
            if (widget->objectName() == "MultiFSWarningDlg" && IsSeen(*widget)) return widget;
        return nullptr;
    }
    void ExpectTheWarningBeforeBoth() {
        ASSERT_TRUE(ComesTrue([] { return Warning() != nullptr; }));
        EXPECT_TRUE(ComesTrue([this] {
            return IsAbove(*Warning(), *house.Deck) && IsAbove(*Warning(), house.Desktop.Window());
        })) << "the warning is under another window";
    }
};

// Another program's window, in front of ours.
class Stranger {
public:
    Stranger() {
        const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data;
        xcb_create_window(connection.get(), XCB_COPY_FROM_PARENT, Window, screen.root, 0, 0, 200, 200, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, screen.root_visual, 0, nullptr);
        xcb_map_window(connection.get(), Window);
        xcb_flush(connection.get());
    }

private:
    struct Disconnect {
        void operator()(xcb_connection_t* open) const { xcb_disconnect(open); }
    };
    std::unique_ptr<xcb_connection_t, Disconnect> connection{xcb_connect(nullptr, nullptr)};

public:
    const xcb_window_t Window = xcb_generate_id(connection.get());
};

class DeckPlaceTest : public testing::WithParamInterface<int>, Letters, public DeckTest {
protected:
    DeckPlaceTest() : Letters(GetParam()) {}
};

TEST_P(DeckPlaceTest, PanelAndDeckStandOnTheScreenAndNeitherIsLostUnderTheOther) {
    ASSERT_NO_FATAL_FAILURE(Show());
    const QWidget& window = house.Desktop.Window();
    const QWidget& deck = *house.Deck;
    const QRect screen = window.screen()->availableGeometry();
    EXPECT_TRUE(ComesTrue([&] { return screen.contains(window.frameGeometry()); }));
    EXPECT_TRUE(ComesTrue([&] { return screen.contains(deck.frameGeometry()); }));
    EXPECT_LE(window.minimumWidth(), 640);
    EXPECT_TRUE(ComesTrue([&] { return FreeOf(deck, window) >= FreeEdge; })) << "the deck is under the panel";
    EXPECT_TRUE(ComesTrue([&] { return FreeOf(window, deck) >= FreeEdge; })) << "the panel is under the deck";
    for (const QWidget* other : QApplication::topLevelWidgets()) {
        if (other->isVisible() && dynamic_cast<const qt::StandInIcon*>(other)) {
            EXPECT_FALSE(other->frameGeometry().intersects(deck.frameGeometry())) << "the icon covers the deck";
        }
    }
}

TEST_P(DeckPlaceTest, TheWarningComesBeforeTheDeckThatTheUserWorksIn) {
    ASSERT_NO_FATAL_FAILURE(Show());
    // Who has just typed there is not disturbed by a window manager.
    OfDeck("SimulatorServerSeen").setFocus();
    for (const char* server : {"10.0.0.1", "TOWERPC"}) {
        user.Do({"type", server});
        user.Do({"key", "Return"});
    }
    ASSERT_NO_FATAL_FAILURE(ExpectTheWarningBeforeBoth());
    // A window manager that lets nobody take the focus keeps it there, too.
    EXPECT_EQ(Warning()->windowHandle()->transientParent(), house.Deck->windowHandle());
}

INSTANTIATE_TEST_SUITE_P(Letters, DeckPlaceTest, testing::Values(9, 11));

TEST_F(DeckTest, TheWarningAsksForAttentionWhereTheUserWorksElsewhere) {
    ASSERT_NO_FATAL_FAILURE(Show());
    const Stranger stranger;
    user.Do({"windowactivate", "--sync", QString::number(stranger.Window)});
    user.Do({"key", "Tab"});
    SeeTwoServers();
    ExpectTheWarningBeforeBoth();
    EXPECT_TRUE(ComesTrue([] { return Warning()->isActiveWindow() || AsksForAttention(*Warning()); }));
}

TEST_F(DeckTest, ClosedOnceItStaysAwayUntilItIsAskedFor) {
    ASSERT_NO_FATAL_FAILURE(Show());
    ToFront(*house.Deck);
    user.Do({"key", "alt+F4"});
    ASSERT_TRUE(ComesTrue([this] { return !house.Deck->isVisible(); }));
    EXPECT_EQ(house.Settings.Store.GetControlValue("FlightDeck", ""), "closed");
    EXPECT_TRUE(house.Desktop.Window().isVisible());

    house.ShowDeck();
    EXPECT_TRUE(ComesTrue([this] { return IsSeen(*house.Deck) && house.Deck->isActiveWindow(); }));
    EXPECT_EQ(house.Settings.Store.GetControlValue("FlightDeck", ""), "open");
}

TEST_F(DeckTest, ClosedInAnEarlierRunItIsNotThereAtTheStart) {
    house.Settings.Store.SetControlValue("FlightDeck", "closed");
    house.Settings.Store.HandlerEnded();
    house.Open();
    ASSERT_TRUE(ComesTrue([this] { return IsSeen(house.Desktop.Window()); }));
    // All that follows the panel's coming into view comes by turns of the loop.
    for (int turn = 0; turn < 20; ++turn) QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    EXPECT_FALSE(house.Deck);

    house.ShowDeck();
    EXPECT_TRUE(ComesTrue([this] { return IsSeen(*house.Deck) && house.Deck->isActiveWindow(); }));
}

class DeckOnTwoScreensTest : public DeckTest {};

TEST_F(DeckOnTwoScreensTest, TheDeckOpensOnThePanelsOwnScreen) {
    ASSERT_EQ(QGuiApplication::screens().size(), 2);
    for (const QScreen* screen : QGuiApplication::screens())
        if (screen != QGuiApplication::primaryScreen())
            house.Settings.Store.SaveSettingLong("OrvelleCP", "Left", screen->geometry().left() * 15);
    house.Settings.Store.HandlerEnded();
    ASSERT_NO_FATAL_FAILURE(Show());
    const QWidget& window = house.Desktop.Window();
    EXPECT_NE(window.screen(), QGuiApplication::primaryScreen());
    EXPECT_TRUE(ComesTrue([&] { return window.screen()->geometry().contains(window.frameGeometry()); }));
    EXPECT_TRUE(ComesTrue([&] { return window.screen()->geometry().contains(house.Deck->frameGeometry()); }));
    EXPECT_TRUE(ComesTrue([&] { return FreeOf(*house.Deck, window) >= FreeEdge; }));
}

}  // namespace

}  // namespace orvelle
