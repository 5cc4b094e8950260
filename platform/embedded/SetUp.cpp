#include "platform/embedded/SetUp.h"

#include <utility>

namespace orvelle {

EmbeddedSetUp::EmbeddedSetUp(EventLoop& loop, const std::filesystem::path& storeFile,
                             std::vector<std::string> thisComputer)
    : notices(loop),
      Store(storeFile, [this](const std::string& sentence) { notices.Raise([this, sentence] { Notice(sentence); }); }),
      Velmarc(loop, Store, std::move(thisComputer)),
      Tessaly(loop, Store),
      VVL(loop),
      VolumeControl(loop),
      VolumeControlHP(loop),
      TSRemote(loop),
      MediaPlayers(loop) {}

void EmbeddedSetUp::Stop() {
    Velmarc.Stop();
    Tessaly.LinkStop();
    VVL.Stop();
    VolumeControl.Close();
    VolumeControlHP.Close();
}

}  // namespace orvelle
