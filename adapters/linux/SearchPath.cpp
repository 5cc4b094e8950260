#include "adapters/linux/SearchPath.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace orvelle::linux {

bool IsProgram(const std::string& file) {
    struct stat status;
    return stat(file.c_str(), &status) == 0 && S_ISREG(status.st_mode) && access(file.c_str(), X_OK) == 0;
}

std::string SearchPath(const std::string& name) {
    const char* const variable = std::getenv("PATH");
    std::string_view rest = variable ? variable : "/usr/local/bin:/usr/bin:/bin";
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(':'), rest.size());
        // An empty part would be the working directory, which a file dialog moves about.
        std::string path = std::string(rest.substr(0, end)) + "/" + name;
        if (end > 0 && IsProgram(path)) return path;
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return "";
}

}  // namespace orvelle::linux
