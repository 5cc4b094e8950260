#include "adapters/mqtt/Topics.h"

#include <algorithm>
#include <array>

#include "adapters/mqtt/Decimal.h"
#include "adapters/shared/Utf8.h"

namespace orvelle::mqtt {

namespace {

constexpr std::string_view Root = "orvelle/1/";

// What stands behind the identity, to the end, but for a record's number and a directory's name.
struct TopicForm {
    Program From;
    TopicKind Kind;
    std::string_view Text;
};

constexpr std::array<TopicForm, 11> Forms{{
    {Program::Panel, TopicKind::Presence, "/panel/presence"},
    {Program::Panel, TopicKind::Sync, "/panel/sync"},
    {Program::Panel, TopicKind::Play, "/panel/play"},
    {Program::Panel, TopicKind::Record, "/panel/record/"},
    {Program::Panel, TopicKind::Write, "/panel/write"},
    {Program::Simulator, TopicKind::Presence, "/sim/presence"},
    {Program::Simulator, TopicKind::Sync, "/sim/sync"},
    {Program::Simulator, TopicKind::Input, "/sim/input"},
    {Program::Simulator, TopicKind::Session, "/sim/session"},
    {Program::Simulator, TopicKind::Write, "/sim/write"},
    {Program::Simulator, TopicKind::Directory, "/directory/"},
}};

bool IsDirectoryName(std::string_view text) {
    return !text.empty() && IsUtf8(text) && CharactersOf(text) <= LongestDirectoryName &&
           std::ranges::none_of(text, [](unsigned char character) {
               return character < 0x20 || character == 0x7F || character == '/' || character == '+' || character == '#';
           });
}

}  // namespace

std::optional<int> ReadIdentity(std::string_view text) {
    if (text.size() != 3 || text[0] != 'c') return std::nullopt;
    const std::optional<Long> number = ReadDecimal(text.substr(text[1] == '0' ? 2 : 1));
    return number && *number >= 1 ? std::optional<int>(*number) : std::nullopt;
}

std::string WriteIdentity(int identity) { return (identity < 10 ? "c0" : "c") + std::to_string(identity); }

std::string ClientId(int identity, Program program) {
    return WriteIdentity(identity) + (program == Program::Panel ? ".panel" : ".sim");
}

std::optional<Topic> ReadTopic(std::string_view text) {
    if (!text.starts_with(Root)) return std::nullopt;
    text.remove_prefix(Root.size());
    const std::optional<int> identity = ReadIdentity(text.substr(0, 3));
    if (!identity) return std::nullopt;
    text.remove_prefix(3);

    for (const TopicForm& form : Forms) {
        if (form.Kind == TopicKind::Record && text.starts_with(form.Text)) {
            const std::optional<Long> record = ReadDecimal(text.substr(form.Text.size()));
            if (!record || *record < 1 || *record > LastRecord) return std::nullopt;
            return Topic{*identity, form.From, form.Kind, *record};
        }
        if (form.Kind == TopicKind::Directory && text.starts_with(form.Text)) {
            text.remove_prefix(form.Text.size());
            if (!IsDirectoryName(text)) return std::nullopt;
            return Topic{*identity, form.From, form.Kind, 0, std::string(text)};
        }
        if (form.Kind != TopicKind::Record && text == form.Text) return Topic{*identity, form.From, form.Kind};
    }
    return std::nullopt;
}

std::string WriteTopic(const Topic& topic) {
    const auto form = std::find_if(Forms.begin(), Forms.end(), [&topic](const TopicForm& candidate) {
        return candidate.From == topic.From && candidate.Kind == topic.Kind;
    });
    if (form == Forms.end()) return "";
    std::string text = std::string(Root) + WriteIdentity(topic.Identity) + std::string(form->Text);
    if (topic.Kind == TopicKind::Record) text += std::to_string(topic.Record);
    return text + topic.Name;
}

}  // namespace orvelle::mqtt
