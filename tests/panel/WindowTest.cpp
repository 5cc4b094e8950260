// Where a scenario cannot look: the size that the window takes at its load, the place that a page takes over from the
// overview, and what of the tree is unfolded.
#include <gtest/gtest.h>

#include <sstream>

#include "panel/FrmOrvelle.h"
#include "replay/World.h"

namespace orvelle {
namespace {

class WindowTest : public testing::Test {
protected:
    std::ostringstream out;
    replay::World world{out};
    FrmOrvelle panel{world.Outside()};
};

TEST_F(WindowTest, TheClientAreaEndsAtTheOverviewsEdges) {
    world.Windows.Place(panel, {100, 50, 300, 250}, {0, 0, 192, 170});
    panel.Panels(0).Left = 3000;
    panel.Panels(0).Top = 120;
    panel.Panels(0).Width = 4500;
    panel.Panels(0).Height = 6000;
    panel.Show();
    EXPECT_EQ(panel.Width(), 8 * 15 + 3000 + 4500);
    EXPECT_EQ(panel.Height(), 30 * 15 + 120 + 6000);
}

TEST_F(WindowTest, APageTakesTheOverviewsPlaceEachTimeItIsShown) {
    panel.Show();
    for (const char* text : {"Options", "Config", "Options"}) {
        Frame& overview = panel.Panels(0);
        overview.Left = overview.Left + 15;
        overview.Top = overview.Top + 30;
        overview.Width = overview.Width + 45;
        overview.Height = overview.Height + 60;
        panel.twCategory.UserClick(*panel.twCategory.Find(text));
    }
    EXPECT_EQ(panel.Panels(9).Left(), panel.Panels(0).Left());
    EXPECT_EQ(panel.Panels(9).Top(), panel.Panels(0).Top());
    EXPECT_EQ(panel.Panels(9).Width(), panel.Panels(0).Width());
    EXPECT_EQ(panel.Panels(9).Height(), panel.Panels(0).Height());
}

TEST_F(WindowTest, ANodeWhosePageCannotBeReachedEndsQuietly) {
    panel.Show();
    TreeNode& stray = panel.twCategory.AddNode(nullptr, "Stray", "13");
    panel.twCategory.UserClick(stray);
    EXPECT_EQ(panel.Variables().CurrentPanel, 0);
    panel.twCategory.UserClick(*panel.twCategory.Find("Options"));
    EXPECT_EQ(panel.Variables().CurrentPanel, 9);
    EXPECT_TRUE(panel.Panels(9).Visible);
}

TEST_F(WindowTest, OneBranchIsUnfoldedAtTheStart) {
    panel.Show();
    std::string unfolded;
    for (const auto& node : panel.twCategory.Nodes()) {
        if (node->Expanded) unfolded += node->Text + ";";
        for (const auto& child : node->Children)
            if (child->Expanded) unfolded += child->Text + ";";
    }
    EXPECT_EQ(unfolded, "Config;");
}

TEST_F(WindowTest, TheStatusIconsAreTheNinetySixOfSixLetters) {
    EXPECT_EQ(panel.IconList.Keys().size(), 96U);
    for (const std::string& key : panel.IconList.Keys()) {
        EXPECT_EQ(key.size(), 6U);
        EXPECT_EQ(key.find_first_not_of("RV"), key.ends_with('Y') ? 5U : std::string::npos) << key;
    }
    EXPECT_EQ(panel.OrvelleIcon.Keys(), (std::set<std::string>{"BLUE", "RED", "YELLOW"}));
}

TEST_F(WindowTest, TimersHaveTheirIntervalsAndAreOff) {
    panel.Show();
    EXPECT_EQ(panel.Timer1.Interval, 1000);
    EXPECT_EQ(panel.TimerDeviceStatus.Interval, 1000);
    EXPECT_EQ(panel.VVLPriorityTraffic.Interval, 3000);
    EXPECT_FALSE(panel.Timer1.Enabled || panel.TimerDeviceStatus.Enabled || panel.VVLPriorityTraffic.Enabled);
}

TEST_F(WindowTest, StatusBarsAreLabelledAsDesigned) {
    EXPECT_EQ(panel.VelmarcStatus.Panels()[0].ToolTipText, "Connection Statue");
    EXPECT_EQ(panel.TessalyStatus.Panels()[0].ToolTipText, "Connection Statue");
    EXPECT_EQ(panel.VVLStatusBar.Panels()[0].ToolTipText, "VATSIM Connection Statue");
    EXPECT_EQ(panel.VVLStatusBar.PanelText(1), "VATSIM Not Dectected");
    EXPECT_EQ(panel.VVLStatusBar.PanelText(2), "Engine off");
    EXPECT_EQ(panel.VVLMicrophoneStatus.ToolTipText(), "Microphone Device Status");
    EXPECT_EQ(panel.VVLHeadsetStatus.ToolTipText(), "Headset Device Status");
    EXPECT_EQ(panel.VVLSpeakersStatus.ToolTipText(), "Speakers Device Status");
}

TEST_F(WindowTest, TablesHaveTheirHeadings) {
    EXPECT_EQ(panel.ListJoyToKey.Headings,
              (std::vector<std::string>{"FS PC Joystick Button", "Keys Sequence", "Push/Toggle"}));
    EXPECT_EQ(panel.ListKeyToKey.Headings,
              (std::vector<std::string>{"FS PC Key Sequence", "Keys Sequence", "Push/Toggle"}));
}

TEST_F(WindowTest, TheServersBoxStartsWithItsDesignText) {
    EXPECT_EQ(panel.VelmarcServer.Text(), "localhost");
    EXPECT_EQ(panel.TessalyServer.Text(), "");
}

}  // namespace
}  // namespace orvelle
