#include <gtest/gtest.h>

#include "adapters/mqtt/Payloads.h"
#include "tests/mqtt/Refusals.h"

namespace orvelle::mqtt {
namespace {

const std::string There =
    R"({"name":"COCKPIT2","address":"192.0.2.7","desktop":"X11","offers":["simulator","framework"],"beat":12})";

TEST(PresencePayloadTest, TellsWhoIsThereAndWhatItOffers) {
    const PresenceSetting presence{"COCKPIT2", "192.0.2.7", "X11", true, true, 12};
    EXPECT_EQ(ReadPresence(There), presence);
    EXPECT_EQ(WritePresence(presence), There);
}

TEST(PresencePayloadTest, OffersWhatIsListedAndNoMore) {
    struct Row {
        const char* Offers;
        bool Simulator;
        bool Framework;
    };
    for (const Row& row :
         {Row{R"(["simulator"])", true, false}, Row{R"(["framework"])", false, true}, Row{"[]", false, false},
          Row{R"(["weather","framework","framework",""])", false, true}, Row{R"(["Simulator"])", false, false}}) {
        const auto presence = ReadPresence(Changed(There, {R"(["simulator","framework"])", row.Offers}));
        ASSERT_TRUE(presence) << row.Offers;
        EXPECT_EQ(presence->OffersSimulator, row.Simulator) << row.Offers;
        EXPECT_EQ(presence->OffersFramework, row.Framework) << row.Offers;
    }
}

TEST(PresencePayloadTest, OfAPanelNeedsNoOffers) {
    const std::string panel = R"({"name":"COCKPIT2","address":"","desktop":"","beat":1})";
    const PresenceSetting presence{"COCKPIT2", "", "", false, false, 1};
    EXPECT_EQ(ReadPresence(panel), presence);
    EXPECT_EQ(WritePresence(presence), panel);
}

TEST(PresencePayloadTest, DropsWhatBreaksARule) {
    ExpectRefusals(ReadPresence, There,
                   {{"\"name\":\"COCKPIT2\",", ""},
                    {"\"address\":\"192.0.2.7\",", ""},
                    {"\"desktop\":\"X11\",", ""},
                    {",\"beat\":12", ""},
                    {"\"COCKPIT2\"", "null"},
                    {"\"COCKPIT2\"", "7"},
                    {"COCKPIT2", std::string(1001, 'x')},
                    {"\"192.0.2.7\"", "[]"},
                    {"\"X11\"", "true"},
                    {"[\"simulator\",\"framework\"]", "\"simulator\""},
                    {"[\"simulator\",\"framework\"]", "{}"},
                    {"[\"simulator\",\"framework\"]", "null"},
                    {"\"simulator\"", "1"},
                    {"simulator", std::string(1001, 'x')},
                    {"12", "0"},
                    {"12", "-12"},
                    {"12", "12.0"},
                    {"12", "2147483648"}});
}

TEST(PresencePayloadTest, CountsFromOneAndFromOneAgain) {
    EXPECT_EQ(CountAfter(1), 2);
    EXPECT_EQ(CountAfter(2147483646), 2147483647);
    EXPECT_EQ(CountAfter(2147483647), 1);
}

TEST(PresencePayloadTest, WritesATextThatIsNoUtf8AsIfItWereLatin1) {
    PresenceSetting presence;
    presence.Name = "M\xFCnchen";
    presence.Desktop = std::string(1200, '\xFC');
    const auto read = ReadPresence(WritePresence(presence));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->Name, "M\xC3\xBCnchen");
    EXPECT_EQ(read->Desktop.size(), 2000U);
}

}  // namespace
}  // namespace orvelle::mqtt
