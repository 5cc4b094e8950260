#include "apps/SimulatorCommands.h"

#include <cstdlib>

#include "adapters/mqtt/Topics.h"

namespace orvelle {

namespace {

CommandAnswer Failure(const std::string& sentence) { return {EXIT_FAILURE, sentence}; }

}  // namespace

CommandAnswer AddComputer(const mqtt::OwnSetUp& setUp, const std::string& name, int port) {
    const mqtt::OwnSetUp::Found found = setUp.Read();
    if (!found.Keys && found.Sentence.empty())
        if (const std::string sentence = setUp.Make(name, port); !sentence.empty()) return Failure(sentence);
    std::string sentence;
    const auto code = setUp.Add(sentence);
    return code ? CommandAnswer{EXIT_SUCCESS, mqtt::WriteJoinCode(*code)} : Failure(sentence);
}

CommandAnswer ListComputers(const mqtt::OwnSetUp& setUp) {
    const mqtt::OwnSetUp::Found found = setUp.Read();
    if (!found.Keys) return Failure(found.Sentence.empty() ? "This computer has made no set-up yet." : found.Sentence);
    CommandAnswer answer;
    for (const auto& [identity, key] : *found.Keys) {
        if (!answer.Text.empty()) answer.Text += '\n';
        answer.Text += mqtt::WriteIdentity(identity) + (identity == 1 ? " this computer" : "");
    }
    return answer;
}

CommandAnswer RemoveComputer(const mqtt::OwnSetUp& setUp, const std::string& identity) {
    const auto number = mqtt::ReadIdentity(identity);
    if (!number) return Failure("\"" + identity + "\" is no computer of a set-up, as c07 is.");
    const std::string sentence = setUp.Remove(*number);
    return sentence.empty() ? CommandAnswer{EXIT_SUCCESS, identity + " is no longer in the set-up."}
                            : Failure(sentence);
}

}  // namespace orvelle
