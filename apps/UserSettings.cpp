#include "apps/UserSettings.h"

#include <QStandardPaths>
#include <filesystem>
#include <iostream>
#include <system_error>

#include "adapters/looks/Text.h"
#include "apps/ThisProcess.h"

namespace orvelle {

namespace {

// The folder is the program's own, and older versions made it as the umask said.
const std::string& WithPrivateFolder(const std::string& file) {
    using std::filesystem::perms;
    std::error_code ignored;
    std::filesystem::permissions(std::filesystem::path(file).parent_path(), perms::group_all | perms::others_all,
                                 std::filesystem::perm_options::remove, ignored);
    return file;
}

}  // namespace

std::string UserSettings::File() {
    return FromQt(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)) + "/OrvelleCP/settings.sqlite";
}

UserSettings::UserSettings(ThisProcess& process, EventLoop& loop, const std::string& file)
    : Notices(loop),
      Store(loop, WithPrivateFolder(file), [this](const std::string& sentence) { Notices.Tell(sentence); }),
      end(process.AtEnd([this] {
          if (const std::string sentence = Close(); !sentence.empty() && LostAtEnd) LostAtEnd(sentence);
      })) {}

UserSettings::~UserSettings() { Close(); }

std::string UserSettings::Close() {
    std::string sentence = Store.Close();
    if (!sentence.empty()) std::cerr << "OrvelleCP: " << sentence << std::endl;
    return sentence;
}

}  // namespace orvelle
