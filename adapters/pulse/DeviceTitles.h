// What the sound server's devices are called in the panel's lists: by description, in one line, the second of one
// description told apart by a number. A device keeps its title for as long as the program runs, also when it goes and
// comes back. Words that mean something else in those lists are no titles.
#pragma once

#include <map>
#include <set>
#include <string>

namespace orvelle::pulse {

class DeviceTitles {
public:
    // `name` is the server's own of the device, by which it is known again.
    const std::string& For(const std::string& name, const std::string& description);

private:
    struct Given {
        std::string Description;
        std::string Title;
    };

    std::map<std::string, Given> given;  // by name
    std::set<std::string> taken{"<DEFAULT>", "Default Mapper", "None"};
};

}  // namespace orvelle::pulse
