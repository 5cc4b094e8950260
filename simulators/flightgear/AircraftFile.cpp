#include "simulators/flightgear/AircraftFile.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

#include "simulators/flightgear/JsonLines.h"

namespace orvelle::simulators {

namespace {

using Json = nlohmann::json;

constexpr const char* Format = "orvelle-aircraft/1";
constexpr std::size_t LongestProperty = 200;

// Stands between commas, and in a form of FlightGear's; its names have no other characters.
bool IsProperty(const std::string& text) {
    constexpr std::string_view Others = "/-_.[]";
    return text.starts_with('/') && text.size() <= LongestProperty &&
           std::all_of(text.begin(), text.end(), [&](char letter) {
               return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
                      (letter >= '0' && letter <= '9') || Others.find(letter) != std::string_view::npos;
           });
}

// The first mistake alone counts; whoever meets one goes on with nothing.
class AircraftReading {
public:
    explicit AircraftReading(std::string_view text) : json(text) {}

    ReadAircraft Read() {
        const Json& whole = json.Whole();
        if (whole.is_discarded()) {
            Refuse("", "the text breaks off from JSON here.");
        } else if (!whole.is_object() || !Find(whole, "format") || *Find(whole, "format") != Format) {
            Refuse("/format", "\"format\" must be \"" + std::string(Format) + "\".");
        } else if (const Json* aircraft = List(whole, "", "aircraft")) {
            for (std::size_t index = 0; index < aircraft->size(); ++index)
                One((*aircraft)[index], "/aircraft/" + std::to_string(index));
        }
        if (!read.Sentence.empty()) read.Overrides.clear();
        return std::move(read);
    }

private:
    void Refuse(const std::string& pointer, std::string sentence) {
        if (!read.Sentence.empty()) return;
        read.Line = json.LineOf(pointer);
        read.Sentence = std::move(sentence);
    }

    static const Json* Find(const Json& object, const char* name) {
        const auto found = object.find(name);
        return found == object.end() ? nullptr : &*found;
    }

    const Json* List(const Json& object, const std::string& pointer, const char* name) {
        const Json* list = Find(object, name);
        if (list && list->is_array()) return list;
        Refuse(pointer + "/" + name, "\"" + std::string(name) + "\" must be a list.");
        return nullptr;
    }

    void One(const Json& object, const std::string& pointer) {
        if (!object.is_object()) return Refuse(pointer, "an aircraft must be an object.");
        const Json* simulator = Find(object, "simulator");
        if (!simulator || !simulator->is_string())
            return Refuse(pointer + "/simulator", "\"simulator\" must be a text, as \"flightgear\".");
        if (*simulator != "flightgear") return;
        AircraftOverride& made = read.Overrides.emplace_back();
        Names(object, pointer, made);
        if (const Json* transmits = Find(object, "transmits")) Transmits(*transmits, pointer + "/transmits", made);
        if (const Json* heard = Find(object, "heard")) Heard(*heard, pointer + "/heard", made);
        if (const Json* automatic = Find(object, "auto")) made.Auto = Property(*automatic, pointer + "/auto");
    }

    void Names(const Json& object, const std::string& pointer, AircraftOverride& made) {
        const Json* names = List(object, pointer, "names");
        if (!names) return;
        if (names->empty()) Refuse(pointer + "/names", "\"names\" must name an aircraft.");
        for (std::size_t index = 0; index < names->size(); ++index) {
            const Json& name = (*names)[index];
            if (!name.is_string() || name.get_ref<const std::string&>().empty())
                return Refuse(pointer + "/names/" + std::to_string(index), "a name must be a text, as \"c172p*\".");
            made.Names.push_back(name.get<std::string>());
        }
    }

    std::string Property(const Json& object, const std::string& pointer) {
        const Json* property = object.is_object() ? Find(object, "property") : nullptr;
        if (property && property->is_string() && IsProperty(property->get_ref<const std::string&>()))
            return property->get<std::string>();
        Refuse(pointer + "/property",
               "\"property\" must name a property of FlightGear by its whole path, as \"/controls/radios/comm-ptt\".");
        return "";
    }

    void Transmits(const Json& object, const std::string& pointer, AircraftOverride& made) {
        made.Transmits = Property(object, pointer);
        const Json* values = object.is_object() ? Find(object, "values") : nullptr;
        if (!values || !values->is_object())
            return Refuse(pointer + "/values",
                          "\"values\" must tell the radio for each value, as {\"0\": 1, \"1\": 2}.");
        for (const auto& [value, radio] : values->items()) {
            if (!radio.is_number_unsigned() || radio.get<std::uint64_t>() > 2)
                return Refuse(pointer + "/values/" + value, "a value must mean the radio 1 or 2, or 0 for none.");
            made.TransmitValues[value] = radio.get<int>();
        }
    }

    void Heard(const Json& list, const std::string& pointer, AircraftOverride& made) {
        if (!list.is_array() || list.size() != made.Heard.size())
            return Refuse(pointer, "\"heard\" must be a list of two, for COM1 and COM2.");
        for (std::size_t radio = 0; radio < made.Heard.size(); ++radio)
            if (!list[radio].is_null())
                made.Heard[radio] = Property(list[radio], pointer + "/" + std::to_string(radio));
    }

    const JsonLines json;
    ReadAircraft read;
};

}  // namespace

ReadAircraft ReadAircraftFile(std::string_view text) { return AircraftReading(text).Read(); }

}  // namespace orvelle::simulators
