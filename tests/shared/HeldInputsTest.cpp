// What is held, and what two such moments differ by.
#include "adapters/shared/HeldInputs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <random>
#include <set>
#include <utility>

namespace orvelle {

// For the messages of a failed test.
void PrintTo(const InputChange& change, std::ostream* stream) {
    *stream << (change.Input.Kind == InputKind::Key ? "key " : "button ") << change.Input.Name
            << (change.Move == InputMove::Down ? " down" : " up");
    if (!change.Sequence.empty()) *stream << " in " << change.Sequence;
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

HeldInput Key(const std::string& name) { return {InputKind::Key, name}; }
HeldInput Button(const std::string& name) { return {InputKind::Button, name}; }

InputChange Up(const HeldInput& input) { return {InputMove::Up, input, ""}; }
InputChange Down(const HeldInput& input, const std::string& sequence = "") {
    return {InputMove::Down, input, sequence};
}

SimulatorInput Moment(std::vector<std::string> keys, std::vector<std::string> buttons = {}) {
    SimulatorInput moment;
    moment.Keys = std::move(keys);
    moment.Buttons = std::move(buttons);
    return moment;
}

TEST(HeldInputs, NothingIsHeldAtFirst) {
    const HeldInputs held;
    EXPECT_FALSE(held.IsHeld(Key("A")));
    EXPECT_THAT(held.Keys(), IsEmpty());
    EXPECT_THAT(held.Buttons(), IsEmpty());
    EXPECT_THAT(held.InOrder(), IsEmpty());
    EXPECT_EQ(held.Sequence(), "");
}

TEST(HeldInputs, APressIsNewOnce) {
    HeldInputs held;
    EXPECT_TRUE(held.Press(Key("A")));
    EXPECT_FALSE(held.Press(Key("A")));
    EXPECT_TRUE(held.IsHeld(Key("A")));
    EXPECT_THAT(held.Keys(), ElementsAre("A"));
}

TEST(HeldInputs, OnlyWhatIsHeldCanBeReleased) {
    HeldInputs held;
    EXPECT_FALSE(held.Release(Key("A")));
    held.Press(Key("A"));
    EXPECT_TRUE(held.Release(Key("A")));
    EXPECT_FALSE(held.Release(Key("A")));
    EXPECT_FALSE(held.IsHeld(Key("A")));
}

TEST(HeldInputs, AKeyAndAButtonOfOneNameAreTwo) {
    HeldInputs held;
    EXPECT_TRUE(held.Press(Key("A")));
    EXPECT_FALSE(held.IsHeld(Button("A")));
    EXPECT_TRUE(held.Press(Button("A")));
    EXPECT_TRUE(held.Release(Key("A")));
    EXPECT_TRUE(held.IsHeld(Button("A")));
}

TEST(HeldInputs, WhatHasNoNameIsNothing) {
    HeldInputs held;
    EXPECT_FALSE(held.Press(Key("")));
    EXPECT_FALSE(held.IsHeld(Key("")));
    EXPECT_FALSE(held.Release(Key("")));
    EXPECT_THAT(held.InOrder(), IsEmpty());
}

TEST(HeldInputs, StandInTheOrderOfThePresses) {
    HeldInputs held;
    for (const HeldInput& input : {Key("Ctrl"), Button("Stick.Button 3"), Key("A"), Button("Stick.Button 1")})
        held.Press(input);
    EXPECT_THAT(held.InOrder(), ElementsAre(Key("Ctrl"), Button("Stick.Button 3"), Key("A"), Button("Stick.Button 1")));
    EXPECT_THAT(held.Keys(), ElementsAre("Ctrl", "A"));
    EXPECT_THAT(held.Buttons(), ElementsAre("Stick.Button 3", "Stick.Button 1"));
}

TEST(HeldInputs, APressThatIsNotNewKeepsItsPlaceAndOneAfterAReleaseComesLast) {
    HeldInputs held;
    held.Press(Key("Ctrl"));
    held.Press(Key("A"));
    held.Press(Key("Ctrl"));
    EXPECT_THAT(held.Keys(), ElementsAre("Ctrl", "A"));
    held.Release(Key("Ctrl"));
    held.Press(Key("Ctrl"));
    EXPECT_THAT(held.Keys(), ElementsAre("A", "Ctrl"));
}

TEST(HeldInputs, TheSequenceIsOfTheKeysAlone) {
    HeldInputs held;
    held.Press(Button("Stick.Button 1"));
    EXPECT_EQ(held.Sequence(), "");
    held.Press(Key("Ctrl"));
    held.Press(Button("Stick.Button 2"));
    held.Press(Key("Num +"));
    held.Press(Key("F8"));
    EXPECT_EQ(held.Sequence(), "Ctrl+Num ++F8");
    held.Release(Key("Num +"));
    EXPECT_EQ(held.Sequence(), "Ctrl+F8");
}

TEST(HeldInputs, ClearedHoldNothing) {
    HeldInputs held;
    held.Press(Key("A"));
    held.Press(Button("Stick.Button 1"));
    held.Clear();
    EXPECT_THAT(held.InOrder(), IsEmpty());
    EXPECT_EQ(held.Sequence(), "");
    EXPECT_TRUE(held.Press(Key("A")));
}

TEST(InputChanges, BetweenTheSameMomentsAreNone) {
    EXPECT_THAT(ChangesBetween({}, {}), IsEmpty());
    const SimulatorInput moment = Moment({"Ctrl", "A"}, {"Stick.Button 1"});
    EXPECT_THAT(ChangesBetween(moment, moment), IsEmpty());
}

TEST(InputChanges, FromNothingAreAllDownKeysFirstEachWithItsSequence) {
    EXPECT_THAT(ChangesBetween({}, Moment({"Ctrl", "Shift", "A"}, {"Stick.Button 2", "Stick.Button 1"})),
                ElementsAre(Down(Key("Ctrl"), "Ctrl"), Down(Key("Shift"), "Ctrl+Shift"), Down(Key("A"), "Ctrl+Shift+A"),
                            Down(Button("Stick.Button 2")), Down(Button("Stick.Button 1"))));
}

TEST(InputChanges, ToNothingAreAllUpKeysFirst) {
    EXPECT_THAT(ChangesBetween(Moment({"Ctrl", "A"}, {"Stick.Button 2", "Stick.Button 1"}), {}),
                ElementsAre(Up(Key("Ctrl")), Up(Key("A")), Up(Button("Stick.Button 2")), Up(Button("Stick.Button 1"))));
}

TEST(InputChanges, TellWhatIsGoneBeforeWhatIsNew) {
    EXPECT_THAT(
        ChangesBetween(Moment({"A"}, {"Stick.Button 1"}), Moment({"B"}, {"Stick.Button 2"})),
        ElementsAre(Up(Key("A")), Up(Button("Stick.Button 1")), Down(Key("B"), "B"), Down(Button("Stick.Button 2"))));
}

TEST(InputChanges, LeaveAloneWhatStaysAndCountItInTheSequence) {
    EXPECT_THAT(ChangesBetween(Moment({"Ctrl"}), Moment({"Ctrl", "F8"})), ElementsAre(Down(Key("F8"), "Ctrl+F8")));
    EXPECT_THAT(ChangesBetween(Moment({"Ctrl", "F8"}), Moment({"F8"})), ElementsAre(Up(Key("Ctrl"))));
    EXPECT_THAT(ChangesBetween(Moment({"Ctrl", "A"}), Moment({"A", "B"})),
                ElementsAre(Up(Key("Ctrl")), Down(Key("B"), "A+B")));
}

TEST(InputChanges, EndTheSequenceWithTheKeyItself) {
    EXPECT_THAT(ChangesBetween(Moment({"C"}), Moment({"A", "B", "C"})),
                ElementsAre(Down(Key("A"), "A"), Down(Key("B"), "A+B")));
}

TEST(InputChanges, KeepKeysAndButtonsOfOneNameApart) {
    EXPECT_THAT(ChangesBetween(Moment({"A"}), Moment({}, {"A"})), ElementsAre(Up(Key("A")), Down(Button("A"))));
}

TEST(InputChanges, AreNoneForAnotherOrderOfTheSameNames) {
    EXPECT_THAT(ChangesBetween(Moment({"Ctrl", "A"}, {"x", "y"}), Moment({"A", "Ctrl"}, {"y", "x"})), IsEmpty());
}

TEST(InputChanges, CountANameThatAListBearsTwiceOnce) {
    EXPECT_THAT(ChangesBetween({}, Moment({"A", "B", "A"}, {"x", "x"})),
                ElementsAre(Down(Key("A"), "A"), Down(Key("B"), "A+B"), Down(Button("x"))));
    EXPECT_THAT(ChangesBetween(Moment({"A", "A"}, {"x", "x"}), {}), ElementsAre(Up(Key("A")), Up(Button("x"))));
    EXPECT_THAT(ChangesBetween(Moment({"A", "A"}), Moment({"A"})), IsEmpty());
}

TEST(InputChanges, TakeAnEmptyNameForNothing) {
    EXPECT_THAT(ChangesBetween({}, Moment({"", "A"}, {""})), ElementsAre(Down(Key("A"), "A")));
    EXPECT_THAT(ChangesBetween(Moment({""}, {""}), {}), IsEmpty());
}

TEST(InputChanges, AreOfWhatIsHeldAlone) {
    SimulatorInput before = Moment({"A"});
    SimulatorInput after = before;
    after.Active = false;
    after.Repeat = "A";
    EXPECT_THAT(ChangesBetween(before, after), IsEmpty());
}

// Names drawn at random, some twice and some empty, as from a far side that errs.
class RandomMoments {
public:
    SimulatorInput Next() { return Moment(Names(), Names()); }

private:
    std::vector<std::string> Names() {
        static const std::vector<std::string> Known{"", "A", "B", "C", "D", "E", "F"};
        std::vector<std::string> names(number(generator) % 6);
        for (std::string& name : names) name = Known[number(generator) % Known.size()];
        return names;
    }

    std::mt19937 generator{20'260'101};
    std::uniform_int_distribution<std::size_t> number{0, 1000};
};

std::set<std::string> Named(const std::vector<std::string>& names) {
    std::set<std::string> named(names.begin(), names.end());
    named.erase("");
    return named;
}

// Whoever plays the changes, one by one, holds what the far side holds, and each of them is a real one.
TEST(InputChanges, PlayedLeadFromOneMomentToTheNext) {
    RandomMoments moments;
    HeldInputs held;
    SimulatorInput before;
    for (int round = 0; round < 2'000; ++round) {
        const SimulatorInput after = moments.Next();
        for (const InputChange& change : ChangesBetween(before, after)) {
            const bool isDown = change.Move == InputMove::Down;
            EXPECT_TRUE(isDown ? held.Press(change.Input) : held.Release(change.Input))
                << testing::PrintToString(change);
            EXPECT_EQ(change.Sequence.empty(), !isDown || change.Input.Kind == InputKind::Button);
        }
        const auto keys = held.Keys();
        const auto buttons = held.Buttons();
        EXPECT_EQ(Named(after.Keys), std::set(keys.begin(), keys.end()));
        EXPECT_EQ(Named(after.Buttons), std::set(buttons.begin(), buttons.end()));
        before = after;
    }
}

}  // namespace
}  // namespace orvelle
