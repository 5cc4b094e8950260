#include "replay/Lines.h"
#include "replay/Members.h"
#include "replay/Signature.h"

namespace orvelle::replay {

namespace {

Values ReadAnswer(Scanner& line, const Member& member) {
    const std::string what = std::string("an answer of ") + member.Name;
    Values answer = line.Take('(') ? line.BracketedValues() : Values{line.AnyValue()};
    if (answer.empty() || answer.size() > member.Results.size())
        throw LineError(what + " has up to " + std::to_string(member.Results.size()) +
                        (member.Results.size() == 1 ? " value" : " values"));
    while (answer.size() < member.Results.size()) answer.push_back(Nothing(member.Results[answer.size()]));
    return Fitted(answer, member.Results, what);
}

Act ReadMissingIcon(Stage& stage, Scanner& line, const std::string& key) {
    const std::string value = line.Word();
    line.ExpectEnd();
    if (value != "none") throw LineError("an icon can only be given as none");
    const bool isKey = key.size() == 6 && key.find_first_not_of("VR") >= 5 && std::string("VRY").find(key[5]) < 3;
    if (!isKey) throw LineError("there is no icon " + key);
    return [&stage, key] { stage.Panel.RemoveIcon(key); };
}

Act ReadGive(Stage& stage, Scanner& line) {
    const Reference reference = line.AnyReference();
    line.Expect('=');
    if (reference.Parts.size() != 2 || reference.Parts[0].Arguments)
        throw LineError(reference.Printed() + " is not of the form OWNER.MEMBER");
    const Reference::Part& called = reference.Parts[1];
    if (reference.Parts[0].Name == "IconList" && !called.Arguments) return ReadMissingIcon(stage, line, called.Name);

    const Member& member = AnsweringMember(reference.Parts[0].Name + "." + called.Name);
    std::string call = member.Name;
    if (called.Arguments)
        call.append("(").append(Printed(Fitted(*called.Arguments, member.Arguments, member.Name))).append(")");
    std::deque<Values> answers;
    do answers.push_back(ReadAnswer(line, member));
    while (line.Take(','));
    line.ExpectEnd();
    return [&stage, call, answers] { stage.Outside.Given.Give(call, answers); };
}

Value ReadStoredValue(Scanner& line) {
    Value value = line.AnyValue();
    line.ExpectEnd();
    if (!value.Is<std::string>() && !value.Is<Long>()) throw LineError(value.Printed() + " is no text or whole number");
    return value;
}

Act ReadStore(Stage& stage, Scanner& line) {
    const std::string section = line.Text();
    const std::string key = line.Text();
    const Value value = ReadStoredValue(line);
    return [=, &stage] { stage.Outside.Store.Put(section, key, value); };
}

Act ReadRegistry(Stage& stage, Scanner& line) {
    const std::string path = line.Text();
    const std::string name = line.Text();
    const Value value = ReadStoredValue(line);
    return [=, &stage] { stage.Outside.Registry.Put(path, name, value); };
}

Act ReadRecord(Stage& stage, Scanner& line) {
    const Long id = line.WholeNumber();
    const std::string type = line.Text();
    const std::string role = line.Text();
    const std::string owner = line.Word();
    line.ExpectEnd();
    if (owner != "local" && owner != "foreign") throw LineError("a record is local or foreign, not " + owner);
    const InterfaceRecord record{type, role,
                                 owner == "local" ? InterfaceRecord::Owner::Local : InterfaceRecord::Owner::Foreign};
    return [=, &stage] { stage.Outside.Tessaly.PutRecord(id, record); };
}

Act ReadParam(Stage& stage, Scanner& line) {
    const Long id = line.WholeNumber();
    const Long index = line.WholeNumber();
    const Long value = line.WholeNumber();
    line.ExpectEnd();
    return [=, &stage] { stage.Outside.Tessaly.PutParam(id, index, value); };
}

Act ReadParamText(Stage& stage, Scanner& line) {
    const Long id = line.WholeNumber();
    const Long index = line.WholeNumber();
    const std::string text = line.Text();
    line.ExpectEnd();
    return [=, &stage] { stage.Outside.Tessaly.PutParamText(id, index, text); };
}

Act ReadDrop(Stage& stage, Scanner& line) {
    const Long id = line.WholeNumber();
    line.ExpectEnd();
    return [=, &stage] { stage.Outside.Tessaly.DropRecord(id); };
}

Act ReadAddress(Stage& stage, Scanner& line) {
    const std::string text = line.Text();
    const std::string padding = line.Word();
    line.ExpectEnd();
    if (padding != "zeros" && padding != "blanks") throw LineError("an address is padded with zeros or blanks");
    const auto kind = padding == "zeros" ? TSRemotePeer::Padding::Zeros : TSRemotePeer::Padding::Blanks;
    return [=, &stage] { stage.Outside.TSRemote.PutAddress(text, kind); };
}

Act ReadClock(Stage& stage, Scanner& line) {
    const Long tickCount = line.WholeNumber();
    line.ExpectEnd();
    return [=, &stage] { stage.Outside.Kernel.SetTickCount(tickCount); };
}

Act ReadPlayers(Stage& stage, Scanner& line) {
    line.ExpectEnd();
    stage.Panel.Panel();
    return [&stage] { stage.Panel.PutPlayers(); };
}

constexpr LineForm Forms[] = {
    {"give", LineKind::Preparation, ReadGive},         {"store", LineKind::Preparation, ReadStore},
    {"registry", LineKind::Preparation, ReadRegistry}, {"record", LineKind::Preparation, ReadRecord},
    {"param", LineKind::Preparation, ReadParam},       {"paramtext", LineKind::Preparation, ReadParamText},
    {"drop", LineKind::Preparation, ReadDrop},         {"address", LineKind::Preparation, ReadAddress},
    {"clock", LineKind::Preparation, ReadClock},       {"players", LineKind::Preparation, ReadPlayers},
};

}  // namespace

std::span<const LineForm> Preparations() { return Forms; }

}  // namespace orvelle::replay
