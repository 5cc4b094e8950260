// What the texts of a voice record and a callsign may hold, since the panel sets them into a voice program's command
// line or URL as they come from the network. A text must stay one argument and one part of the query there. Asked by
// the near end of the framework link, which refuses what does not, and by the reader of directories, which tells of it.
//
// Names with blanks are ordinary and pass: what starts a program takes all words of such a text for one argument, up to
// the next that begins with a slash, so no word of it may begin like an option. "EDDF - Tower" and "a/b" pass.
#pragma once

#include <string>

#include "platform/SessionSetting.h"

namespace orvelle {

// The first part of a record for which it is refused, "server" for one, and what the user has to know to mend it,
// behind that name: "may hold no control character". Both are "" for a record that is let through.
struct Refusal {
    std::string Part;
    std::string Rule;
};

// What is asked depends on the record's software.
Refusal RefusalOf(const RadioVoiceSetting& record);

// The same rules for all software together: the callsign goes wherever a record goes.
bool IsAllowedCallsign(const std::string& callsign);
std::string CallsignRule();

}  // namespace orvelle
