#include "adapters/shared/VoiceTexts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "adapters/embedded/NetworkLink.h"
#include "adapters/ends/FrameworkEnd.h"
#include "tests/shared/HandLoop.h"
#include "tests/shared/MemoryValues.h"

namespace orvelle {
namespace {

using Texts = std::vector<std::string>;

std::string RefusedPart(const RadioVoiceSetting& record) { return RefusalOf(record).Part; }

// What would part an argument, be an option, or swallow what follows.
const Texts NoArguments{"tower /exec /bin/sh",
                        "tower -x",
                        "-x",
                        "/exec",
                        "tower\"",
                        "\"tower",
                        "a\tb",
                        "a\nb",
                        "a\rb",
                        " tower",
                        "tower ",
                        "a\x7f"
                        "b",
                        "\x01",
                        std::string("a\0b", 3),
                        "a  /exec",
                        "a //exec",
                        "a --exec"};
const Texts Ordinary{"",      "tower",     "Innsbruck Tower", "EDDF - Tower", "Ground / Tower",
                     "a/b",   "São Paulo", "O'Hare",          "Two  blanks",  "122.800",
                     "x-ray", "a -",       "{}[]()$;`id`",    "C:\\x",        "100%",
                     "#2",    "a=b",       "@home",           "東京 タワー"};
const Texts NoUrlParts{"ops?channel=secret", "ops&channel=secret", "a%3fb", "a%26b", "%20"};

TEST(VoiceTexts, OrdinaryNamesPassForEverySoftware) {
    for (const Long software : std::vector<Long>{NoVoice, RogerWilco, TeamSpeakHost, VatsimVoice, VoiceAtis, 6})
        for (const std::string& text : Ordinary)
            EXPECT_EQ(RefusedPart({software, "srv1", text, "me", ""}), "") << software << " " << text;
}

TEST(VoiceTexts, ServersPass) {
    const Texts servers{
        "srv1",        "voice.example",       "voice.example:9000", "10.0.0.1:8767", "[2001:db8::1]:8767",
        "2001:db8::1", "voice.example/tower", "my server"};
    for (const Long software : {RogerWilco, TeamSpeakHost, VatsimVoice, VoiceAtis})
        for (const std::string& server : servers)
            EXPECT_EQ(RefusedPart({software, server, "tower", "", ""}), "") << software << " " << server;
    for (const char* server : {"", "teamspeak://srv1", "TeamSpeak://[2001:db8::1]:8767", "teamspeak://srv1/lobby"})
        EXPECT_EQ(RefusedPart({TeamSpeakUrl, server, "tower", "", ""}), "") << server;
    EXPECT_EQ(RefusedPart({VoiceAtis, "http://atis.example/lowi.wav?runway=26&x=%20", "", "", ""}), "");
}

TEST(VoiceTexts, WhatIsNoOneArgumentIsRefusedForProgramsOfTheirOwn) {
    for (const std::string& text : NoArguments) {
        EXPECT_EQ(RefusedPart({RogerWilco, text, "tower", "", ""}), "server") << text;
        EXPECT_EQ(RefusedPart({RogerWilco, "srv1", text, "", ""}), "channel") << text;
        EXPECT_EQ(RefusedPart({TeamSpeakHost, text, "tower", "", ""}), "server") << text;
        EXPECT_EQ(RefusedPart({TeamSpeakHost, "srv1", text, "", ""}), "channel") << text;
        EXPECT_EQ(RefusedPart({TeamSpeakHost, "srv1", "tower", text, ""}), "login name") << text;
        EXPECT_EQ(RefusedPart({TeamSpeakUrl, "teamspeak://srv1", text, "", ""}), "channel") << text;
        EXPECT_FALSE(IsAllowedCallsign(text)) << text;
    }
}

TEST(VoiceTexts, ServerAndChannelBeginNoOptionWhereTheyMeet) {
    for (const char* server : {"srv1 /", "srv1 -", "/", "-"})
        EXPECT_EQ(RefusedPart({RogerWilco, server, "exec", "", ""}), "server") << server;
    EXPECT_EQ(RefusedPart({RogerWilco, "srv1", "/", "", ""}), "channel");
}

TEST(VoiceTexts, WhatIsMoreThanOnePartOfAUrlIsRefusedForTeamSpeak) {
    for (const std::string& text : NoUrlParts) {
        EXPECT_EQ(RefusedPart({TeamSpeakHost, text, "tower", "", ""}), "server") << text;
        EXPECT_EQ(RefusedPart({TeamSpeakHost, "srv1", text, "", ""}), "channel") << text;
        EXPECT_EQ(RefusedPart({TeamSpeakHost, "srv1", "tower", text, ""}), "login name") << text;
        EXPECT_EQ(RefusedPart({TeamSpeakHost, "srv1", "tower", "me", text}), "password") << text;
        EXPECT_EQ(RefusedPart({TeamSpeakUrl, "teamspeak://" + text, "tower", "", ""}), "server") << text;
        EXPECT_EQ(RefusedPart({RogerWilco, "srv1", text, "", ""}), "") << text;
        EXPECT_FALSE(IsAllowedCallsign(text)) << text;
    }
    EXPECT_EQ(RefusedPart({TeamSpeakHost, "srv1#", "tower", "", ""}), "server");
    EXPECT_EQ(RefusedPart({TeamSpeakHost, "srv1", "tower", "", "a#b"}), "password");
    EXPECT_EQ(RefusedPart({TeamSpeakHost, "srv1", "tower", "", "-/ordinary 'secret'"}), "");
    EXPECT_FALSE(IsAllowedCallsign("ABC#123"));
}

TEST(VoiceTexts, AnotherSchemeIsRefused) {
    for (const char* server : {"file:///etc/passwd", "http://srv1", "srv1", "teamspeak", "teamspeak:srv1",
                               "teamspeaks://srv1", " teamspeak://srv1", "javascript:teamspeak://"})
        EXPECT_EQ(RefusedPart({TeamSpeakUrl, server, "tower", "", ""}), "server") << server;
}

TEST(VoiceTexts, ControlCharactersAreRefusedForEverySoftware) {
    for (const Long software :
         std::vector<Long>{NoVoice, RogerWilco, TeamSpeakHost, VatsimVoice, TeamSpeakUrl, VoiceAtis, 6}) {
        EXPECT_EQ(RefusedPart({software, "srv\n1", "", "", ""}), "server") << software;
        EXPECT_EQ(RefusedPart({software, "teamspeak://srv1", "a\tb", "", ""}), "channel") << software;
        EXPECT_EQ(RefusedPart({software, "teamspeak://srv1", "", "a\x1b", ""}), "login name") << software;
        EXPECT_EQ(RefusedPart({software, "teamspeak://srv1", "", "", "\x7f"}), "password") << software;
    }
}

TEST(VoiceTexts, TheEngineTakesWhatIsDataToIt) {
    for (const char* text : {"-x", "/exec", "a\"b", "tower /exec", "a?b&c#d%20"})
        EXPECT_EQ(RefusedPart({VatsimVoice, text, text, text, text}), "") << text;
}

TEST(VoiceTexts, OrdinaryCallsignsPass) {
    for (const char* callsign : {"", "ABC123", "EDDF_TWR", "D-EABC", "LOWI_N_APP", "Speed Bird 1"})
        EXPECT_TRUE(IsAllowedCallsign(callsign)) << callsign;
}

class RefusedRecords : public testing::Test {
protected:
    RefusedRecords() {
        tessaly.Refused = [this](const std::string& sentence) { told.push_back(sentence); };
        tessaly.RadioVoiceChanged = [this](Long radio) { changed.push_back(radio); };
        tessaly.CallsignChanged = [this] { changed.push_back(-1); };
        tessaly.LinkStart();
        far.SetLink(LinkState::Up);
        far.SetCallsign("ABC123");
        far.SetVoice(0, good);
        far.SetVoice(1, {VatsimVoice, "voice.example", "tower", "me", ""});
        far.StartSession();
        loop.Run();
        EXPECT_TRUE(tessaly.OpenSession(0));
    }
    void Say(const RadioVoiceSetting& record) {
        far.SetVoice(0, record);
        loop.Run();
    }
    std::string Record(Long radio) {
        return std::to_string(tessaly.VoiceSoftware(radio)) + tessaly.VoiceServer(radio) + tessaly.VoiceChannel(radio) +
               tessaly.VoiceLogin(radio) + tessaly.VoicePassword(radio);
    }

    const RadioVoiceSetting good{RogerWilco, "srv1", "ops", "", ""};
    const RadioVoiceSetting bad{RogerWilco, "srv1", "ops /exec", "me", "secret"};
    HandLoop loop;
    MemoryValues values;
    embedded::NetworkLink far{loop};
    const ends::LineTable<FrameworkLine> lines{far};
    ends::FrameworkEnd tessaly{loop, values, lines};
    Texts told;
    std::vector<Long> changed;
};

TEST_F(RefusedRecords, CountAsNone) {
    Say(bad);
    EXPECT_EQ(Record(0), "0");
    EXPECT_EQ(Record(1), "3voice.exampletowerme");
    EXPECT_EQ(changed, std::vector<Long>{0});
    EXPECT_EQ(told,
              Texts{"The voice record of COM1 was refused: its channel may neither begin nor end with a blank, nor "
                    "hold a quotation mark or a word that begins with \"/\" or \"-\"."});
    Say(good);
    EXPECT_EQ(Record(0), "1srv1ops");
}

TEST_F(RefusedRecords, TellWhatToType) {
    Say({TeamSpeakUrl, "voice.example", "tower", "", ""});
    Say({TeamSpeakHost, "voice.example", "a&b", "", ""});
    EXPECT_EQ(
        told,
        (Texts{
            "The voice record of COM1 was refused: its server has to be an address that begins with "
            "\"teamspeak://\", as teamspeak://voice.example does.",
            "The voice record of COM1 was refused: its channel may hold no quotation mark, \"?\", \"&\", "
            "or \"%\" before two hexadecimal digits, no word that begins with \"/\" or \"-\", and no blank at either "
            "end."}));
    Say({TeamSpeakUrl, "teamspeak://voice.example", "tower", "", ""});
    EXPECT_EQ(Record(0), "4teamspeak://voice.exampletower");
}

TEST_F(RefusedRecords, AreToldOnceForEachContent) {
    Say(bad);
    far.SetFrequency(0, "118.100");
    loop.Run();
    Say(good);
    Say(bad);
    EXPECT_EQ(told.size(), 1U);
    Say({RogerWilco, "srv1", "ops -x", "", ""});
    EXPECT_EQ(told.size(), 2U);
    far.SetVoice(1, bad);
    loop.Run();
    EXPECT_EQ(told.size(), 3U);
    EXPECT_EQ(changed, (std::vector<Long>{0, 0, 0, 1}));
}

TEST_F(RefusedRecords, AreAllThatAreThereUnderACallsignThatIsRefused) {
    far.SetCallsign("ABC /exec");
    loop.Run();
    EXPECT_EQ(tessaly.SessionCallsign(), "");
    EXPECT_EQ(Record(0), "0");
    EXPECT_EQ(Record(1), "0");
    far.SetStatus(1);
    loop.Run();
    EXPECT_EQ(told.size(), 1U);
    far.SetCallsign("ABC124");
    loop.Run();
    EXPECT_EQ(tessaly.SessionCallsign(), "ABC124");
    EXPECT_EQ(Record(0), "1srv1ops");
    EXPECT_EQ(changed, (std::vector<Long>{-1, 0, 1, -1, 0, 1}));
}

}  // namespace
}  // namespace orvelle
