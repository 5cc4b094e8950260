#include "apps/EndSentences.h"

namespace orvelle {

std::string EndWithoutTalkKey(const std::string& driver) {
    return "The panel has ended, because the talk key of " + driver +
           " was used and is not set. Start the panel again and set the key on the page " + driver +
           ": it must be set after each start.";
}

std::string EndByTableRow(const std::string& page, const std::string& row) {
    return "The panel has ended, because the row \"" + row + "\" on the page " + page +
           " has keys that can't be pressed. Start the panel again, give that row its keys and press Apply.";
}

std::string EndBySettings(const std::string& folder, const std::string& error) {
    return "The panel could not start, because one of its settings has a value that it can't use (" + error +
           "). If it ends like this again, move the folder " + folder +
           " to another place: the panel then starts with new settings.";
}

std::string EndByOwnError(const std::string& error) {
    return "The panel has ended by an error of its own (" + error +
           "). Start it again: your settings are kept, but for the talk keys, which must be set after each start.";
}

std::string EndWithoutWord() {
    return "The panel has ended without being asked to: it crashed, or something else ended it, as the system does "
           "when memory runs short. Start it again: your settings are kept, but for the talk keys, which must be set "
           "after each start.";
}

}  // namespace orvelle
