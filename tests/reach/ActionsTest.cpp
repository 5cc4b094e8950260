// What an assistive program does to a control does what a click on it does: the panel's logic answers.
#include <algorithm>

#include "tests/reach/ReachedPanel.h"

namespace orvelle {
namespace {

class ActionsTest : public ReachedPanel {};

TEST_F(ActionsTest, ABoxThatIsToggledIsTicked) {
    ASSERT_TRUE(OverviewComesToSay("RogerWilco: RogerWilco is disabled on this computer."));
    ASSERT_TRUE(OpenPage("Voice", "Overview") && OpenPage("RogerWilco", "RogerWilco"));
    const Reached box = InPage("check box", "Enable RogerWilco on this computer");
    ASSERT_TRUE(box && box.Do("Toggle"));
    EXPECT_TRUE(ComesTrue([&] { return box.Is(ATSPI_STATE_CHECKED); }));
    ASSERT_TRUE(OpenPage("Config", "Overview"));
    EXPECT_TRUE(ComesTrue(
        [this] { return !FindBelow(Page(), "label", "RogerWilco: RogerWilco is disabled on this computer."); }));
}

TEST_F(ActionsTest, AButtonThatIsPressedIsClicked) {
    ASSERT_TRUE(OpenPage("Voice", "Overview") && OpenPage("RogerWilco", "RogerWilco"));
    const std::string purpose = ", simulator key for RogerWilco push-to-talk";
    const Reached set = InPage("push button", "Set" + purpose);
    ASSERT_TRUE(set && set.Do("Press"));
    const Reached cancel = InPage("push button", "Cancel" + purpose);
    ASSERT_TRUE(cancel && cancel.Do("Press"));
    EXPECT_TRUE(InPage("push button", "Set" + purpose));
}

TEST_F(ActionsTest, ASliderThatIsSetMoves) {
    ASSERT_TRUE(OpenPage("Voice", "Overview") && OpenPage("VATSIM", "VATSIM") && OpenPage("Volumes", "Volumes"));
    const Reached slider = InPage("slider", "Microphone: Windows Mixer");
    ASSERT_TRUE(slider && slider.SetValue(37));
    EXPECT_TRUE(ComesTrue([&] { return slider.Value() == 37; }));
    // The mixer heard of it.
    ASSERT_TRUE(OpenDeckPage("Faults"));
    const Reached level = InDeck("spin button", "Microphone line, Microphone and headset");
    ASSERT_TRUE(level);
    EXPECT_TRUE(ComesTrue([&] { return level.Value() == 37; }));
}

TEST_F(ActionsTest, AnEntryThatIsSelectedIsPicked) {
    const Reached box = InDeck("combo box", "Software, COM1");
    ASSERT_TRUE(box);
    const Reached entry = FindBelow(box, "list item", "VATSIM");
    ASSERT_TRUE(entry && entry.Do("Toggle"));
    EXPECT_TRUE(ComesTrue([&] { return box.Text() == "VATSIM"; }));
    EXPECT_TRUE(OverviewComesToSay("COM1 voice software: VATSIM"));
}

TEST_F(ActionsTest, ALampAndAFrequencyThatChangeAreTold) {
    HearNames();
    const Reached receive = InDeck("combo box", "Receive");
    const Reached frequency = InDeck("text", "Frequency, COM1");
    ASSERT_TRUE(receive && FindBelow(receive, "list item", "Both").Do("Toggle"));
    ASSERT_TRUE(frequency && frequency.SetText("118.100"));
    for (const std::string name : {"COM2 receives: on", "COM1 frequency: 118.100"})
        EXPECT_TRUE(ComesTrue([&] { return std::count(HeardNames.begin(), HeardNames.end(), name) > 0; })) << name;
}

TEST_F(ActionsTest, AFieldThatIsWrittenIsTyped) {
    const Reached field = InDeck("text", "Frequency, COM2");
    ASSERT_TRUE(field && field.SetText("118.100"));
    EXPECT_TRUE(OverviewComesToSay("COM2 frequency: 118.100"));
}

}  // namespace
}  // namespace orvelle
