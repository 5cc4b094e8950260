#include "replay/peers/RegistryPeer.h"
#include "replay/peers/StorePeer.h"
#include "tests/replay/PeerTest.h"

namespace orvelle::replay {
namespace {

class StoreTest : public PeerTest {
protected:
    std::string Listing(const std::string& section) {
        store.OpenSettingList(section);
        std::string names;
        std::string name;
        for (Long index = 0; store.SettingListItem(index, name); ++index) names += name + " ";
        store.CloseSettingList();
        return names;
    }

    StorePeer store{"Velmarc", transcript, answers};
    RegistryPeer registry{"Velmarc", transcript, answers};
};

TEST_F(StoreTest, GivesTheDefaultUntilAKeyIsSaved) {
    EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 7), 7);
    store.SaveSettingLong("OrvelleCP", "Left", -3);
    EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 7), -3);
    EXPECT_EQ(store.GetSettingString("OrvelleCP", "RWPath", ""), "");
    store.SaveSettingString("OrvelleCP", "RWPath", "C:\\roger.exe");
    EXPECT_EQ(store.GetSettingString("OrvelleCP", "RWPath", ""), "C:\\roger.exe");
    EXPECT_EQ(Printed(), R"(Velmarc.GetSettingLong("OrvelleCP", "Left", 7) -> 7
Velmarc.SaveSettingLong("OrvelleCP", "Left", -3)
Velmarc.GetSettingLong("OrvelleCP", "Left", 7) -> -3
Velmarc.GetSettingString("OrvelleCP", "RWPath", "") -> ""
Velmarc.SaveSettingString("OrvelleCP", "RWPath", "C:\roger.exe")
Velmarc.GetSettingString("OrvelleCP", "RWPath", "") -> "C:\roger.exe"
)");
}

TEST_F(StoreTest, AValueOfTheOtherTypeReadsAsNone) {
    store.Put("OrvelleCP", "RWEnable", "1");
    EXPECT_EQ(store.GetSettingLong("OrvelleCP", "RWEnable", 0), 0);
    store.Put("OrvelleCP", "RWPath", Long{1});
    EXPECT_EQ(store.GetSettingString("OrvelleCP", "RWPath", "none"), "none");
}

TEST_F(StoreTest, ListsDirectSubSectionsInNumericOrder) {
    for (const char* row : {"10", "9", "1", "2", "x"})
        store.SaveSettingString(std::string("OrvelleCP\\Joy2Key\\") + row, "J2KJoy", "a");
    store.SaveSettingString("OrvelleCP\\Joy2Key\\2\\Below", "J2KJoy", "a");
    store.SaveSettingString("OrvelleCP\\Joy2Keys\\5", "J2KJoy", "a");
    EXPECT_EQ(Listing("OrvelleCP\\Joy2Key"), "1 2 9 10 x ");
}

TEST_F(StoreTest, PrintsAListingWithItsNamesByReference) {
    store.Put("OrvelleCP\\Joy2Key\\1", "J2KJoy", "a");
    store.OpenSettingList("OrvelleCP\\Joy2Key");
    EXPECT_EQ(store.SettingListCount(), 1);
    std::string name;
    EXPECT_TRUE(store.SettingListItem(0, name));
    EXPECT_FALSE(store.SettingListItem(1, name));
    EXPECT_FALSE(store.SettingListItem(-1, name));
    store.CloseSettingList();
    EXPECT_EQ(store.SettingListCount(), 0);
    EXPECT_EQ(Printed(), R"(Velmarc.OpenSettingList("OrvelleCP\Joy2Key")
Velmarc.SettingListCount() -> 1
Velmarc.SettingListItem(0) -> True, "1"
Velmarc.SettingListItem(1) -> False, ""
Velmarc.SettingListItem(-1) -> False, ""
Velmarc.CloseSettingList()
Velmarc.SettingListCount() -> 0
)");
}

TEST_F(StoreTest, DeletesASectionWithAllBelowIt) {
    store.Put("OrvelleCP", "Left", Long{1});
    store.Put("OrvelleCP\\Joy2Key\\1", "J2KJoy", "a");
    store.Put("OrvelleCP\\Joy2Keys\\1", "J2KJoy", "b");
    store.DeleteSettingSection("OrvelleCP\\Joy2Key");
    store.DeleteSettingSection("Absent");
    EXPECT_FALSE(store.Find("OrvelleCP\\Joy2Key\\1", "J2KJoy"));
    EXPECT_TRUE(store.Find("OrvelleCP\\Joy2Keys\\1", "J2KJoy"));
    EXPECT_TRUE(store.Find("OrvelleCP", "Left"));
    EXPECT_FALSE(store.Find("OrvelleCP", "Top"));
}

TEST_F(StoreTest, OfAGivenSettingAndASavedOneTheLaterHolds) {
    answers.Give("Velmarc.GetSettingLong", {{Long{5}}});
    EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 0), 5);
    store.SaveSettingLong("OrvelleCP", "Left", 2);
    EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 0), 2);
    EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Top", 0), 5);
}

TEST_F(StoreTest, TheRegistryKeepsTextsAndNumbersUnderOneRoot) {
    registry.WriteRegistryString(LocalMachine, "SOFTWARE\\Orvelle", "Path", "p");
    registry.WriteRegistryLong(LocalMachine, "SOFTWARE\\Orvelle", "Flag", 1);
    EXPECT_EQ(registry.ReadRegistryString(LocalMachine, "SOFTWARE\\Orvelle", "Path", ""), "p");
    EXPECT_EQ(registry.ReadRegistryLong(LocalMachine, "SOFTWARE\\Orvelle", "Flag", 0), 1);
    EXPECT_EQ(registry.ReadRegistryDefault("SOFTWARE\\Orvelle", "Path", ""), "p");
    EXPECT_EQ(registry.ReadRegistryDefault("SOFTWARE\\Orvelle", "", "d"), "d");
    registry.DeleteRegistryValue(LocalMachine, "SOFTWARE\\Orvelle", "Path");
    registry.DeleteRegistryValue(LocalMachine, "SOFTWARE\\Orvelle", "Path");
    EXPECT_FALSE(registry.Find("SOFTWARE\\Orvelle", "Path"));
    EXPECT_EQ(Printed(), R"(Velmarc.WriteRegistryString(0x80000002, "SOFTWARE\Orvelle", "Path", "p")
Velmarc.WriteRegistryLong(0x80000002, "SOFTWARE\Orvelle", "Flag", 1)
Velmarc.ReadRegistryString(0x80000002, "SOFTWARE\Orvelle", "Path", "") -> "p"
Velmarc.ReadRegistryLong(0x80000002, "SOFTWARE\Orvelle", "Flag", 0) -> 1
Velmarc.ReadRegistryDefault("SOFTWARE\Orvelle", "Path", "") -> "p"
Velmarc.ReadRegistryDefault("SOFTWARE\Orvelle", "", "d") -> "d"
Velmarc.DeleteRegistryValue(0x80000002, "SOFTWARE\Orvelle", "Path")
Velmarc.DeleteRegistryValue(0x80000002, "SOFTWARE\Orvelle", "Path")
)");
}

}  // namespace
}  // namespace orvelle::replay
