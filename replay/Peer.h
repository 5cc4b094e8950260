// What every scripted peer does: it prints a call as the panel makes it and finds what the scenario told it to answer.
#pragma once

#include <string>

#include "replay/Answers.h"
#include "replay/Transcript.h"
#include "replay/Value.h"

namespace orvelle::replay {

class Peer {
public:
    Peer(std::string ownerName, Transcript& runTranscript, Answers& givenAnswers)
        : owner(std::move(ownerName)), transcript(runTranscript), answers(givenAnswers) {}
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;

protected:
    ~Peer() = default;

    // A function without a result.
    void Call(const std::string& member, const Values& arguments = {});
    // A function with a result; `otherwise` is what it gives unless the scenario told it later than `since`.
    template <typename T>
    T Ask(const std::string& member, const Values& arguments, const T& otherwise, Stamp since = 0) {
        return As<T>(AskAll(member, arguments, {otherwise}, since).front());
    }
    // A function with a result and more by reference.
    Values AskAll(const std::string& member, const Values& arguments, const Values& otherwise, Stamp since = 0);
    template <typename T>
    T ReadProperty(const std::string& member, const T& otherwise, Stamp since = 0) {
        const Values answer = Answer(member, {}, {otherwise}, since);
        PrintRead(member, answer.front());
        return As<T>(answer.front());
    }
    void WriteProperty(const std::string& member, const Value& value);
    void PrintRead(const std::string& member, const Value& value);
    void PrintCall(const std::string& member, const Values& arguments, const Values& results);
    // The answer alone, with nothing printed.
    Values Answer(const std::string& member, const Values& arguments, const Values& otherwise, Stamp since = 0);

    // Numbers are printed as the scenario wrote them; where the panel wants 16 bits it is given the low ones.
    template <typename T>
    static T As(const Value& value) {
        if constexpr (std::is_same_v<T, Integer>)
            return static_cast<Integer>(value.As<Long>());
        else
            return value.As<T>();
    }

    Stamp Now() { return answers.Now(); }
    // Keeps what a call changed, which holds until the scenario tells otherwise.
    template <typename T>
    void Keep(Kept<T>& kept, T value) {
        answers.Keep(kept, std::move(value));
    }

private:
    const std::string owner;
    Transcript& transcript;
    Answers& answers;
};

}  // namespace orvelle::replay
