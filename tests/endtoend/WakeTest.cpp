// The panel that runs shows itself, or its flight deck, when another program of the user asks for it.
#include "tests/endtoend/StartedPanel.h"

namespace orvelle {

namespace {

const std::string Panel = "orvelle-panel";

class WakeTest : public StartedPanel {
protected:
    std::optional<xcb_window_t> WindowNamed(const QByteArray& name) {
        QProcess search;
        search.start("xdotool", {"search", "--onlyvisible", "--name", "^" + name + "$"});
        search.waitForFinished();
        const QList<QByteArray> found = search.readAllStandardOutput().split('\n');
        return found.size() == 2 ? std::optional(found[0].toUInt()) : std::nullopt;
    }
    bool IsInFront(const QByteArray& name) {
        return ComesTrue([&] {
            const auto window = WindowNamed(name);
            return window && windows.Focused() == *window;
        });
    }
    void Activate(const QByteArray& name) {
        user.Do({"windowactivate", "--sync", QString::number(*WindowNamed(name))});
        ASSERT_TRUE(IsInFront(name));
    }
    // A program that is over soon, whatever it does.
    void Run(const QString& program) {
        QProcess process;
        Start(process, program);
        ASSERT_TRUE(IsOver(process));
        EXPECT_EQ(process.exitCode(), 0);
        EXPECT_EQ(process.readAllStandardOutput() + process.readAllStandardError(), "");
    }
    void Open() {
        Start(panel);
        ASSERT_TRUE(ComesTrue([this] { return WindowNamed(Window) && WindowNamed(Deck); }));
    }

    static constexpr const char* Window = "Orvelle Control Panel";
    static constexpr const char* Deck = "OrvelleCP Flight Deck";
    QProcess panel;
};

TEST_F(WakeTest, ASecondStartBringsTheFirstOneToTheFront) {
    ASSERT_NO_FATAL_FAILURE(Open());
    Activate(Deck);
    Run(PANEL_PROGRAM);
    EXPECT_TRUE(IsInFront(Window));
    EXPECT_EQ(processes.Running(Panel).size(), 1U);
}

TEST_F(WakeTest, ASecondStartBringsAHiddenOneBack) {
    ASSERT_NO_FATAL_FAILURE(Open());
    Activate(Window);
    user.Do({"key", "alt+F4"});
    ASSERT_TRUE(ComesTrue([this] { return !WindowNamed(Window); }));
    Run(PANEL_PROGRAM);
    EXPECT_TRUE(IsInFront(Window));
    // And one that is an icon.
    user.Do({"windowminimize", "--sync", QString::number(*WindowNamed(Window))});
    ASSERT_TRUE(ComesTrue([this] { return !WindowNamed(Window); }));
    Run(PANEL_PROGRAM);
    EXPECT_TRUE(IsInFront(Window));
}

TEST_F(WakeTest, TheDeckIsAskedForFromOutside) {
    ASSERT_NO_FATAL_FAILURE(Open());
    Activate(Window);
    Run(DECK_PROGRAM);
    EXPECT_TRUE(IsInFront(Deck));
    user.Do({"windowminimize", "--sync", QString::number(*WindowNamed(Deck))});
    ASSERT_TRUE(ComesTrue([this] { return !WindowNamed(Deck); }));
    Run(DECK_PROGRAM);
    EXPECT_TRUE(IsInFront(Deck));
    EXPECT_EQ(processes.Running(Panel).size(), 1U);
}

TEST_F(WakeTest, TheDeckBringsThePanelWhereNoneRuns) {
    Run(DECK_PROGRAM);
    EXPECT_TRUE(IsInFront(Deck));
    EXPECT_TRUE(WindowNamed(Window));
}

}  // namespace

}  // namespace orvelle
