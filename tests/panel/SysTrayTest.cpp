// The tray component on its own: what it hands to the shell, what it raises, and what a designer keeps of it.
#include "panel/SysTray.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/controls/Form.h"
#include "replay/peers/NotificationAreaPeer.h"
#include "replay/peers/WindowsPeer.h"
#include "tests/replay/PeerTest.h"

namespace orvelle {
namespace {

const Picture RedIcon{Picture::Icon, "RED"};
const Picture BlueIcon{Picture::Icon, "BLUE"};

class SysTrayTest : public replay::PeerTest {
protected:
    cSysTray& Tray(cSysTray::Mode mode = cSysTray::Mode::Run) {
        tray = std::make_unique<cSysTray>(form, "ST", windows, shell, module, mode);
        return *tray;
    }
    void Send(Long message, Long wParam, Long lParam) { windows.Deliver({tray.get(), message, wParam, lParam}); }

    Form form{"Form", ""};
    replay::WindowsPeer windows{"user32", transcript, answers};
    replay::NotificationAreaPeer shell{"shell32", transcript, answers};
    mSysTray module;
    std::unique_ptr<cSysTray> tray;
};

TEST_F(SysTrayTest, KeepsIconAndTipSetBeforeAndAddsThemTogether) {
    Tray().TrayIcon(RedIcon);
    tray->TrayTip("Panel");
    EXPECT_EQ(Printed(), "");
    tray->InTray(true);
    EXPECT_EQ(Printed(), "shell32.Shell_NotifyIconA(0, 88, ST, 0, 7, 1125, \"RED\", \"Panel{0}\")\n");
    EXPECT_EQ(tray->Picture(), RedIcon);
}

TEST_F(SysTrayTest, AddsWithoutIconAndTipWhereThereAreNone) {
    Tray().InTray(true);
    EXPECT_EQ(Printed(), "shell32.Shell_NotifyIconA(0, 88, ST, 0, 1, 1125, -, -)\n");
}

TEST_F(SysTrayTest, ItsPresentValueDoesNotTouchTheShell) {
    Tray().InTray(false);
    EXPECT_EQ(Printed(), "");
    tray->InTray(true);
    Printed();
    tray->InTray(true);
    EXPECT_EQ(Printed(), "");
}

TEST_F(SysTrayTest, PassesAChangedIconOnWhileInTheTray) {
    Tray().InTray(true);
    Printed();
    tray->TrayIcon(BlueIcon);
    EXPECT_EQ(Printed(), "shell32.Shell_NotifyIconA(1, 88, ST, 0, 2, -, \"BLUE\", -)\n");
    EXPECT_EQ(tray->Picture(), BlueIcon);
    tray->TrayIcon(BlueIcon);
    EXPECT_EQ(Printed(), "shell32.Shell_NotifyIconA(1, 88, ST, 0, 2, -, \"BLUE\", -)\n");
}

TEST_F(SysTrayTest, IgnoresABitmapAndNoPictureAtAll) {
    Tray().TrayIcon(RedIcon);
    tray->InTray(true);
    Printed();
    tray->TrayIcon({Picture::Bitmap, "PHOTO"});
    tray->TrayIcon({});
    EXPECT_EQ(Printed(), "");
    EXPECT_EQ(tray->TrayIcon(), RedIcon);
    EXPECT_EQ(tray->Picture(), RedIcon);
}

TEST_F(SysTrayTest, PassesAChangedTipOnWhileInTheTrayAlsoAnEmptyOne) {
    Tray().InTray(true);
    Printed();
    tray->TrayTip("New");
    EXPECT_EQ(Printed(), "shell32.Shell_NotifyIconA(1, 88, ST, 0, 4, -, -, \"New{0}\")\n");
    tray->TrayTip("");
    EXPECT_EQ(Printed(), "shell32.Shell_NotifyIconA(1, 88, ST, 0, 4, -, -, \"{0}\")\n");
}

TEST_F(SysTrayTest, FillsAndCutsATipOfMoreThan63Characters) {
    const std::string of63(63, 't');
    const std::string of64 = of63 + 'u';
    Tray().TrayTip(of64 + 'v');
    tray->InTray(true);
    EXPECT_EQ(Printed(), "shell32.Shell_NotifyIconA(0, 88, ST, 0, 5, 1125, -, \"" + of64 + "\")\n");
    EXPECT_EQ(tray->TrayTip(), of64 + 'v');
    tray->TrayTip(of64);
    EXPECT_EQ(Printed(), "shell32.Shell_NotifyIconA(1, 88, ST, 0, 4, -, -, \"" + of64 + "\")\n");
    tray->TrayTip(of63);
    EXPECT_EQ(Printed(), "shell32.Shell_NotifyIconA(1, 88, ST, 0, 4, -, -, \"" + of63 + "{0}\")\n");
}

TEST_F(SysTrayTest, LeavingTheTrayDeletesTheIconAndGivesTheWindowItsProcedureBack) {
    const std::intptr_t before = windows.GetWindowLongA(Tray(), WindowProcedureIndex);
    int presses = 0;
    tray->MouseDown = [&](Integer&, Long&) { ++presses; };
    tray->InTray(true);
    EXPECT_NE(windows.GetWindowLongA(*tray, WindowProcedureIndex), before);
    Printed();
    tray->InTray(false);
    EXPECT_EQ(Printed(), "shell32.Shell_NotifyIconA(2, 88, ST, 0, 0, -, -, -)\n");
    EXPECT_EQ(windows.GetWindowLongA(*tray, WindowProcedureIndex), before);
    Send(1125, 0, 513);
    EXPECT_EQ(presses, 0);
}

TEST_F(SysTrayTest, ItsEndTakesAForgottenIconAway) {
    Tray().InTray(true);
    Printed();
    tray.reset();
    EXPECT_EQ(Printed(), "shell32.Shell_NotifyIconA(2, 88, ST, 0, 0, -, -, -)\n");
}

TEST_F(SysTrayTest, ItsEndOutsideTheTrayDoesNotTouchTheShell) {
    Tray();
    tray.reset();
    EXPECT_EQ(Printed(), "");
}

TEST_F(SysTrayTest, ADesignerNeverSeesAnIcon) {
    Tray(cSysTray::Mode::Designer).TrayIcon(RedIcon);
    tray->InTray(true);
    EXPECT_TRUE(tray->InTray());
    tray->TrayIcon(BlueIcon);
    tray->TrayTip("Tip");
    tray->InTray(false);
    EXPECT_FALSE(tray->InTray());
    EXPECT_EQ(Printed(), "");
    EXPECT_EQ(module.OldWindowProc, 0);
}

TEST_F(SysTrayTest, ANewInstanceInADesignerHasAPictureAndADescription) {
    Tray(cSysTray::Mode::Designer).Picture = RedIcon;
    tray->InitProperties();
    EXPECT_FALSE(tray->InTray());
    EXPECT_EQ(tray->TrayIcon(), RedIcon);
    EXPECT_NE(tray->TrayTip(), "");
}

TEST_F(SysTrayTest, ReadsTrayThenIconThenTipThroughItsProperties) {
    Tray().ReadProperties({true, RedIcon, "Kept"});
    EXPECT_EQ(Printed(),
              "shell32.Shell_NotifyIconA(0, 88, ST, 0, 1, 1125, -, -)\n"
              "shell32.Shell_NotifyIconA(1, 88, ST, 0, 2, -, \"RED\", -)\n"
              "shell32.Shell_NotifyIconA(1, 88, ST, 0, 4, -, -, \"Kept{0}\")\n");
}

TEST_F(SysTrayTest, WhatWasNotKeptIsTheOwnPictureAndTheDescriptionWithAZero) {
    Tray().InitProperties();
    const std::string description = tray->TrayTip();
    Tray().Picture = BlueIcon;
    tray->ReadProperties({});
    EXPECT_FALSE(tray->InTray());
    EXPECT_EQ(tray->TrayIcon(), BlueIcon);
    EXPECT_EQ(tray->TrayTip(), description + '\0');
}

TEST_F(SysTrayTest, WhatItWritesReadsBack) {
    Tray(cSysTray::Mode::Designer).ReadProperties({true, RedIcon, "Kept"});
    const cSysTray::PropertyBag bag = tray->WriteProperties();
    cSysTray& copy = Tray(cSysTray::Mode::Designer);
    copy.ReadProperties(bag);
    EXPECT_TRUE(copy.InTray());
    EXPECT_EQ(copy.TrayIcon(), RedIcon);
    EXPECT_EQ(copy.TrayTip(), "Kept");
}

TEST_F(SysTrayTest, ADesignerCannotResizeIt) {
    Tray(cSysTray::Mode::Designer).Width = 2000;
    tray->Height = 30;
    tray->Resize();
    EXPECT_EQ(tray->Width(), 510);
    EXPECT_EQ(tray->Height(), 510);
}

TEST_F(SysTrayTest, DrawsASoftRaisedOuterEdgeAllAround) {
    Tray(cSysTray::Mode::Designer).Paint();
    ASSERT_EQ(windows.Edges.size(), 1U);
    EXPECT_EQ(windows.Edges[0].Window, tray.get());
    EXPECT_EQ(windows.Edges[0].Kind, 1);
    EXPECT_EQ(windows.Edges[0].Flags, 0x100F);
}

// What one mouse message raised: "MouseDown 1 of 7".
class MouseMessageTest : public SysTrayTest {
protected:
    std::string Raised(Long mouseMessage) {
        std::string raised;
        cSysTray& component = Tray();
        const auto button = [&raised](const char* event) {
            return [&raised, event](Integer& number, Long& id) {
                raised += std::string(event) + " " + std::to_string(number) + " of " + std::to_string(id) + "; ";
            };
        };
        component.MouseMove = [&raised](Long& id) { raised += "MouseMove of " + std::to_string(id) + "; "; };
        component.MouseDown = button("MouseDown");
        component.MouseUp = button("MouseUp");
        component.MouseDblClick = button("MouseDblClick");
        component.InTray(true);
        Send(1125, 7, mouseMessage);
        tray.reset();
        return raised;
    }
};

TEST_F(MouseMessageTest, SevenMouseMessagesAreEvents) {
    EXPECT_EQ(Raised(512), "MouseMove of 7; ");
    EXPECT_EQ(Raised(513), "MouseDown 1 of 7; ");
    EXPECT_EQ(Raised(514), "MouseUp 1 of 7; ");
    EXPECT_EQ(Raised(515), "MouseDblClick 1 of 7; ");
    EXPECT_EQ(Raised(516), "MouseDown 2 of 7; ");
    EXPECT_EQ(Raised(517), "MouseUp 2 of 7; ");
    EXPECT_EQ(Raised(518), "MouseDblClick 2 of 7; ");
}

TEST_F(MouseMessageTest, NoOtherNumberIsAnEvent) {
    for (const Long number : {-1, 0, 511, 519, 520, 521, 1125}) EXPECT_EQ(Raised(number), "");
}

}  // namespace
}  // namespace orvelle
