#include <array>

#include "simulators/flightgear/FlightGearOptions.h"

namespace orvelle::simulators {

namespace {

struct Member {
    const char* Name;
    const char* Type;
    const char* Form;
    const char* Property;
};

constexpr std::array Members = {
    Member{"COM1", "double", "%.3f", "/instrumentation/comm[0]/frequencies/selected-mhz"},
    Member{"COM2", "double", "%.3f", "/instrumentation/comm[1]/frequencies/selected-mhz"},
    Member{"OP1", "bool", "%d", "/instrumentation/comm[0]/operable"},
    Member{"OP2", "bool", "%d", "/instrumentation/comm[1]/operable"},
    Member{"VOL1", "double", "%.3f", "/instrumentation/comm[0]/volume"},
    Member{"VOL2", "double", "%.3f", "/instrumentation/comm[1]/volume"},
    Member{"TX", "int", "%d", "/controls/radios/comm-radio-selected"},
    Member{"PTT", "int", "%d", "/controls/radios/comm-ptt"},
    Member{"ONLINE", "bool", "%d", "/sim/multiplay/online"},
    Member{"PAUSED", "bool", "%d", "/sim/freeze/master"},
    Member{"LAT", "double", "%.5f", "/position/latitude-deg"},
    Member{"LON", "double", "%.5f", "/position/longitude-deg"},
    Member{"ALT", "double", "%.1f", "/position/altitude-ft"},
    Member{"AIRCRAFT", "string", "%s", "/sim/aircraft"},
};
constexpr Member Callsign = {"CS", "string", "%s", "/sim/multiplay/callsign"};

std::string Chunk(const Member& member) {
    return std::string("      <chunk><type>") + member.Type + "</type><format>" + member.Name + "=" + member.Form +
           "</format><node>" + member.Property + "</node></chunk>\n";
}

}  // namespace

std::string FlightGearProtocol(const std::vector<std::string>& properties) {
    std::string text = R"(<?xml version="1.0"?>
<!-- What FlightGear tells OrvelleCP of its radios, a line each time. -->
<PropertyList>
  <generic>
    <output>
      <line_separator>newline</line_separator>
      <var_separator>,</var_separator>
)";
    for (const Member& member : Members) text += Chunk(member);
    for (const std::string& property : properties) text += Chunk({property.c_str(), "string", "%s", property.c_str()});
    return text + Chunk(Callsign) + R"(    </output>
  </generic>
</PropertyList>
)";
}

}  // namespace orvelle::simulators
