#include "adapters/mqtt/JsonReading.h"

#include <algorithm>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <utility>

#include "adapters/mqtt/Bounds.h"
#include "adapters/mqtt/Decimal.h"
#include "adapters/mqtt/Topics.h"
#include "adapters/shared/Utf8.h"

namespace orvelle::mqtt {

namespace {

using Json = nlohmann::json;

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

// Discarded where the text is none. By itself the parser would take a byte order mark, and a zero byte for the end of
// the text. Of two members of one name the last counts.
Json Parse(std::string_view text) {
    const bool isSound =
        text.size() <= bounds::Payload && !text.starts_with(ByteOrderMark) && text.find('\0') == std::string_view::npos;
    return isSound ? Json::parse(text.begin(), text.end(), nullptr, false) : Json(Json::value_t::discarded);
}

}  // namespace

JsonReading::JsonReading(std::string_view text) : whole(std::make_unique<Json>(Parse(text))) {
    if (whole->is_object()) return;
    *whole = Json::object();
    sound = false;
}

JsonReading::~JsonReading() = default;

Members JsonReading::Object() { return {*whole, sound}; }

const Json& Members::Find(const char* name) const {
    static const Json None = Json::value_t::discarded;
    const auto found = object.find(name);
    return found != object.end() ? *found : None;
}

bool Members::Has(const char* name) const { return object.contains(name); }

Long Members::NumberOf(const Json& value, Long least, Long greatest) const {
    // Whole numbers up to 64 bits are told apart by their sign; all others are floating.
    const bool isSmall = value.is_number_unsigned()
                             ? value.get<std::uint64_t>() <= INT32_MAX
                             : value.is_number_integer() && value.get<std::int64_t>() >= INT32_MIN;
    if (isSmall)
        if (const Long number = value.get<Long>(); number >= least && number <= greatest) return number;
    Refuse();
    return 0;
}

std::string Members::TextOf(const Json& value) const {
    if (value.is_string())
        if (const auto& text = value.get_ref<const std::string&>(); CharactersOf(text) <= bounds::Text) return text;
    Refuse();
    return "";
}

Long Members::IndexOf(std::string_view name) const {
    const std::optional<Long> index = ReadDecimal(name);
    if (index && *index <= bounds::LastIndex) return *index;
    Refuse();
    return 0;
}

Long Members::Number(const char* name, Long least, Long greatest) const {
    return NumberOf(Find(name), least, greatest);
}

bool Members::Flag(const char* name) const {
    const Json& value = Find(name);
    if (!value.is_boolean()) Refuse();
    return value.is_boolean() && value.get<bool>();
}

std::string Members::Text(const char* name) const { return TextOf(Find(name)); }

int Members::Identity(const char* name) const {
    const std::optional<int> identity = ReadIdentity(Text(name));
    if (!identity) Refuse();
    return identity.value_or(0);
}

std::vector<std::string> Members::Texts(const char* name) const {
    const Json& list = Find(name);
    if (!list.is_array()) Refuse();
    std::vector<std::string> texts;
    if (list.is_array())
        for (const Json& text : list) texts.push_back(TextOf(text));
    return texts;
}

std::vector<std::string> Members::HeldNames(const char* name) const {
    std::vector<std::string> names = Texts(name);
    std::vector<std::string> sorted = names;
    std::sort(sorted.begin(), sorted.end());
    const bool isTwice = std::adjacent_find(sorted.begin(), sorted.end()) != sorted.end();
    const bool isEmpty = !sorted.empty() && sorted.front().empty();
    if (names.size() > bounds::HeldNames || isTwice || isEmpty) Refuse();
    return names;
}

std::vector<Members> Members::Objects(const char* name, std::size_t count) const {
    static const Json Empty = Json::object();
    const Json& list = Find(name);
    const bool isSound = list.is_array() && list.size() == count &&
                         std::all_of(list.begin(), list.end(), [](const Json& entry) { return entry.is_object(); });
    if (!isSound) Refuse();
    std::vector<Members> objects;
    for (std::size_t place = 0; place < count; ++place) objects.emplace_back(isSound ? list[place] : Empty, sound);
    return objects;
}

std::map<Long, Long> Members::IndexedNumbers(const char* name) const {
    std::map<Long, Long> numbers;
    if (!Has(name)) return numbers;
    const Json& list = Find(name);
    if (!list.is_object()) Refuse();
    if (list.is_object())
        for (const auto& [index, number] : list.items())
            numbers[IndexOf(index)] = NumberOf(number, bounds::LeastNumber, bounds::GreatestNumber);
    return numbers;
}

std::map<Long, std::string> Members::IndexedTexts(const char* name) const {
    std::map<Long, std::string> texts;
    if (!Has(name)) return texts;
    const Json& list = Find(name);
    if (!list.is_object()) Refuse();
    if (list.is_object())
        for (const auto& [index, text] : list.items()) texts[IndexOf(index)] = TextOf(text);
    return texts;
}

}  // namespace orvelle::mqtt
