#include "replay/Peer.h"

namespace orvelle::replay {

void Peer::Call(const std::string& member, const Values& arguments) {
    const std::string name = owner + "." + member;
    transcript.Call(name, name + "(" + Printed(arguments) + ")");
}

Values Peer::AskAll(const std::string& member, const Values& arguments, const Values& otherwise, Stamp since) {
    Values answer = Answer(member, arguments, otherwise, since);
    PrintCall(member, arguments, answer);
    return answer;
}

void Peer::PrintRead(const std::string& member, const Value& value) {
    const std::string name = owner + "." + member;
    transcript.Call(name, name + " -> " + value.Printed());
}

void Peer::PrintCall(const std::string& member, const Values& arguments, const Values& results) {
    const std::string name = owner + "." + member;
    transcript.Call(name, name + "(" + Printed(arguments) + ") -> " + Printed(results));
}

void Peer::WriteProperty(const std::string& member, const Value& value) {
    const std::string name = owner + "." + member;
    transcript.Call(name, name + " = " + value.Printed());
}

Values Peer::Answer(const std::string& member, const Values& arguments, const Values& otherwise, Stamp since) {
    return answers.Next(owner + "." + member, Printed(arguments), since).value_or(otherwise);
}

}  // namespace orvelle::replay
