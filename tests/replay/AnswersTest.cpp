#include "replay/Answers.h"

#include <gtest/gtest.h>

namespace orvelle::replay {
namespace {

std::string Next(Answers& answers, const std::string& arguments, Stamp since = 0) {
    const auto values = answers.Next("Tessaly.VoiceSoftware", arguments, since);
    return values ? Printed(*values) : "none";
}

TEST(Answers, AreNoneUntilOneIsGiven) {
    Answers answers;
    EXPECT_EQ(Next(answers, "0"), "none");
}

TEST(Answers, HoldForAnyArgument) {
    Answers answers;
    answers.Give("Tessaly.VoiceSoftware", {{Long{3}}});
    EXPECT_EQ(Next(answers, "0"), "3");
    EXPECT_EQ(Next(answers, "1"), "3");
}

TEST(Answers, ComeOnePerCallAndTheLastForEver) {
    Answers answers;
    answers.Give("Tessaly.VoiceSoftware", {{Long{1}}, {Long{2}}, {Long{3}}});
    EXPECT_EQ(Next(answers, "0"), "1");
    EXPECT_EQ(Next(answers, "1"), "2");
    EXPECT_EQ(Next(answers, "0"), "3");
    EXPECT_EQ(Next(answers, "0"), "3");
}

TEST(Answers, ForCertainArgumentsComeBeforeGeneralOnes) {
    Answers answers;
    answers.Give("Tessaly.VoiceSoftware(0)", {{Long{1}}});
    answers.Give("Tessaly.VoiceSoftware", {{Long{9}}});
    EXPECT_EQ(Next(answers, "0"), "1");
    EXPECT_EQ(Next(answers, "1"), "9");
}

TEST(Answers, GivenAnewReplaceTheOldOnes) {
    Answers answers;
    answers.Give("Tessaly.VoiceSoftware", {{Long{1}}, {Long{2}}});
    answers.Give("Tessaly.VoiceSoftware", {{Long{7}}});
    EXPECT_EQ(Next(answers, "0"), "7");
}

TEST(Answers, GiveWayToALaterChange) {
    Answers answers;
    answers.Give("Tessaly.VoiceSoftware", {{Long{1}}});
    const Stamp change = answers.Now();
    EXPECT_EQ(Next(answers, "0", change), "none");
    answers.Give("Tessaly.VoiceSoftware", {{Long{2}}});
    EXPECT_EQ(Next(answers, "0", change), "2");
}

TEST(Answers, ALaterGeneralAnswerStandsInForAnOldOneThatGaveWay) {
    Answers answers;
    answers.Give("Tessaly.VoiceSoftware(0)", {{Long{1}}});
    const Stamp change = answers.Now();
    answers.Give("Tessaly.VoiceSoftware", {{Long{2}}});
    EXPECT_EQ(Next(answers, "0", change), "2");
}

}  // namespace
}  // namespace orvelle::replay
