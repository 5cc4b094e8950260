#include "simulators/AircraftFile.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <utility>

#include "simulators/PlainFile.h"
#include "simulators/flightgear/JsonLines.h"

namespace orvelle::simulators {

namespace {

using Json = nlohmann::json;

constexpr const char* Format = "orvelle-aircraft/1";
constexpr std::size_t LongestProperty = 200;

// How each simulator names what it tells.
struct Simulator {
    const char* Name;
    AircraftOf Of;
    const char* Word;
    const char* Sentence;
};
constexpr std::array Simulators = {
    Simulator{"flightgear", AircraftOf::FlightGear, "property",
              "\"property\" must name a property of FlightGear by its whole path, as \"/controls/radios/comm-ptt\"."},
    Simulator{"xplane", AircraftOf::XPlane, "dataref",
              "\"dataref\" must name a dataref of X-Plane by its whole path, as "
              "\"sim/cockpit2/radios/actuators/com1_power\"."},
};

// Stands between commas, and in a form of FlightGear's; the names of both simulators have no other characters.
bool IsProperty(const std::string& text, AircraftOf simulator) {
    constexpr std::string_view Others = "/-_.[]";
    return text.starts_with('/') == (simulator == AircraftOf::FlightGear) && !text.empty() &&
           text.size() <= LongestProperty && std::all_of(text.begin(), text.end(), [&](char letter) {
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
        const Json* named = Find(object, "simulator");
        if (!named || !named->is_string())
            return Refuse(pointer + "/simulator", "\"simulator\" must be a text, as \"flightgear\".");
        simulator = std::ranges::find_if(Simulators, [&](const Simulator& each) { return *named == each.Name; });
        if (simulator == Simulators.end()) return;
        AircraftOverride& made = read.Overrides.emplace_back();
        made.Simulator = simulator->Of;
        Names(object, pointer, made);
        if (const Json* transmits = Find(object, "transmits")) Transmits(*transmits, pointer + "/transmits", made);
        if (const Json* heard = Find(object, "heard")) Both(*heard, pointer + "/heard", "heard", made.Heard);
        // FlightGear's radios tell themselves what works.
        const Json* power = simulator->Of == AircraftOf::XPlane ? Find(object, "power") : nullptr;
        if (power) Both(*power, pointer + "/power", "power", made.Power);
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
        const Json* property = object.is_object() ? Find(object, simulator->Word) : nullptr;
        if (property && property->is_string() && IsProperty(property->get_ref<const std::string&>(), simulator->Of))
            return property->get<std::string>();
        Refuse(pointer + "/" + simulator->Word, simulator->Sentence);
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

    void Both(const Json& list, const std::string& pointer, const std::string& name, std::array<std::string, 2>& made) {
        if (!list.is_array() || list.size() != made.size())
            return Refuse(pointer, "\"" + name + "\" must be a list of two, for COM1 and COM2.");
        for (std::size_t radio = 0; radio < made.size(); ++radio)
            if (!list[radio].is_null()) made[radio] = Property(list[radio], pointer + "/" + std::to_string(radio));
    }

    const JsonLines json;
    decltype(Simulators)::const_iterator simulator = Simulators.end();  // of the aircraft that is read
    ReadAircraft read;
};

}  // namespace

ReadAircraft ReadAircraftFile(std::string_view text) { return AircraftReading(text).Read(); }

std::string AircraftOverrides::Add(const std::filesystem::path& file) {
    const PlainText plain = ReadPlainFile(file, LongestAircraftFile);
    if (!plain.Text) return plain.Sentence;
    const ReadAircraft read = ReadAircraftFile(*plain.Text);
    if (!read.Sentence.empty()) return file.string() + ", line " + std::to_string(read.Line) + ": " + read.Sentence;
    overrides.insert(overrides.end(), read.Overrides.begin(), read.Overrides.end());
    return "";
}

}  // namespace orvelle::simulators
