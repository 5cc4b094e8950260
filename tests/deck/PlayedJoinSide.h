// A place in a set-up that a test plays: what is asked of it is written down, what it answers is set.
#pragma once

#include <string>
#include <vector>

#include "adapters/shared/Changes.h"
#include "platform/sides/JoinSide.h"

namespace orvelle {

class PlayedJoinSide : public JoinSide {
public:
    explicit PlayedJoinSide(EventLoop& loop) : changes(loop) {}

    std::optional<JoinedSetUp> Joined() const override { return Place; }
    void Look(Looking looking) override { Asked.emplace_back(looking == Looking::Yes ? "look" : "look no more"); }
    std::vector<SeenSetUp> Seen() const override { return Network; }
    bool IsCode(const std::string& text) const override { return text == RightCode; }
    void Join(const std::string& code, const std::string& place) override {
        Asked.push_back("join " + code + " at " + place);
        Answer(JoinState::Trying, "");
    }
    void MoveTo(const std::string& place) override { Asked.push_back("move to " + place); }
    void Leave() override { Asked.emplace_back("leave"); }
    void Cancel() override {
        Asked.emplace_back("cancel");
        Answer(JoinState::Idle, "");
    }
    JoinState State() const override { return state; }
    std::string Sentence() const override { return sentence; }
    Ticket Observe(std::function<void()> observer) override { return changes.Observe(std::move(observer)); }

    void Answer(JoinState newState, const std::string& newSentence) {
        state = newState;
        sentence = newSentence;
        changes.Mark();
    }

    static constexpr const char* RightCode = "0W00-20G3-0G2G-C1R8-1450-P32A";
    std::optional<JoinedSetUp> Place;
    std::vector<SeenSetUp> Network;
    std::vector<std::string> Asked;

private:
    Changes changes;
    JoinState state = JoinState::Idle;
    std::string sentence;
};

}  // namespace orvelle
