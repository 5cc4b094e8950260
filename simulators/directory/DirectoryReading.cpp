#include "simulators/directory/DirectoryReading.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

#include "adapters/shared/Utf8.h"
#include "simulators/directory/DirectoryEntries.h"
#include "simulators/directory/EntryFields.h"
#include "simulators/directory/JsonEntries.h"

namespace orvelle::directory {

namespace {

using Kind = JsonValue::Kind;

constexpr std::string_view Format = "orvelle-directory/1";
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

std::size_t LineAt(std::string_view text, std::size_t place) {
    return 1 +
           static_cast<std::size_t>(std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(place), '\n'));
}

// Nothing stands before it.
std::string OutermostPath(std::string_view member) {
    const std::string path = MemberPath(member);
    return path.starts_with('.') ? path.substr(1) : path;
}

// Of the lines at its beginning that are UTF-8.
std::size_t LengthOfUtf8(std::string_view text) {
    std::size_t line = 0;
    for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n', line)) {
        if (!IsUtf8(text.substr(line, end + 1 - line))) return line;
        line = end + 1;
    }
    return IsUtf8(text.substr(line)) ? text.size() : line;
}

// What keeps a text from being read at all.
std::optional<Fault> Unreadable(std::string_view text) {
    if (text.size() > LongestDirectory) return Fault{1, "", "It is longer than 16 MiB."};
    if (const std::size_t length = LengthOfUtf8(text); length < text.size())
        return Fault{LineAt(text, length), "", "This line is not in UTF-8."};
    if (const std::size_t zero = text.find('\0'); zero != std::string_view::npos)
        return Fault{LineAt(text, zero), "", "This line holds a zero byte."};
    return std::nullopt;
}

// The outermost object's members; what the entries are is DirectoryEntries' part.
class DirectoryReader {
public:
    void Read(std::string_view text) {
        const auto trouble = ReadJsonEntries(text, {"servers", "stations", "everywhere"},
                                             [this](const JsonEntry& entry) { Take(entry); });
        if (trouble) {
            findings.Tell(trouble->Line, trouble->Field, trouble->Sentence);
            return;
        }
        for (const char* name : {"format", "servers"})
            if (!names.contains(name)) findings.Tell(1, name, "It is missing.");
        isWhole = isFormat && isServed;
    }
    void Tell(const Fault& fault) { findings.Tell(fault.Line, fault.Field, fault.Sentence); }

    ReadText Finish() {
        ReadText read;
        if (isWhole) {
            entries.Join(read);
            read.Content->Name = name;
        }
        findings.MoveTo(read);
        return read;
    }

private:
    void Take(const JsonEntry& entry) {
        if (entry.Section.empty()) return TakeMember(entry);
        if (!isTaken) return;
        const JsonMember& member = entry.Member;
        const std::string path =
            entry.Section + (entry.Section == "servers" ? MemberPath(member.Name) : ItemPath(entry.Index));
        if (entry.IsCut) return findings.Tell(member.Value.Line, path, "It is too large.");
        if (entry.Section == "servers") return entries.TakeServer(member, path);
        if (entry.Section == "stations") return entries.TakeStation(member.Value, path);
        entries.TakeEverywhere(member.Value, path);
    }

    void TakeMember(const JsonEntry& entry) {
        const auto& [member, value] = entry.Member;
        constexpr std::array<std::string_view, 7> Known{"$schema",  "format",     "name",     "servers",
                                                        "stations", "everywhere", "otherwise"};
        isTaken = false;
        if (std::ranges::find(Known, member) == Known.end())
            return findings.TellUnknown(value.Line, OutermostPath(member));
        if (!names.insert(member).second) return findings.Tell(value.Line, member, "It stands here a second time.");
        if (entry.IsCut) return findings.Tell(value.Line, member, "It is too large.");
        if (member == "$schema") return;
        const Kind expected = ExpectedOf(member);
        if (value.What != expected) return findings.Tell(value.Line, member, NotExpected(expected, value.What));
        isTaken = true;
        if (member == "servers") isServed = true;
        if (member == "format") return TakeFormat(value);
        if (member == "name") return TakeName(value);
        if (member == "otherwise") entries.TakeOtherwise(value);
    }

    static Kind ExpectedOf(std::string_view member) {
        if (member == "servers" || member == "otherwise") return Kind::Object;
        return member == "stations" || member == "everywhere" ? Kind::List : Kind::Text;
    }

    void TakeFormat(const JsonValue& value) {
        isFormat = value.Text == Format;
        if (!isFormat)
            findings.Tell(value.Line, "format", Quoted(value.Text) + " is not known here; " + Quoted(Format) + " is.");
    }

    void TakeName(const JsonValue& value) {
        if (const std::string fault = TextFault(value.Text); !fault.empty())
            return findings.Tell(value.Line, "name", fault);
        name = value.Text;
    }

    Findings findings;
    DirectoryEntries entries{findings};
    std::set<std::string> names;  // of the members so far
    std::string name;
    bool isTaken = false;  // the section whose entries come
    bool isFormat = false;
    bool isServed = false;
    bool isWhole = false;
};

}  // namespace

ReadText ReadDirectory(std::string_view text) {
    DirectoryReader reader;
    if (text.starts_with(ByteOrderMark)) {
        reader.Tell({1, "", "The text begins with a byte order mark; please save it without one."});
        text.remove_prefix(ByteOrderMark.size());
    }
    if (const std::optional<Fault> fault = Unreadable(text))
        reader.Tell(*fault);
    else
        reader.Read(text);
    return reader.Finish();
}

}  // namespace orvelle::directory
