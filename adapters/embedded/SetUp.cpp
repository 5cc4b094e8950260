#include "adapters/embedded/SetUp.h"

#include <utility>

namespace orvelle {

EmbeddedSetUp::EmbeddedSetUp(EventLoop& loop, const std::filesystem::path& storeFile,
                             std::vector<std::string> thisComputer)
    : notices(loop),
      Store(storeFile, [this](const std::string& sentence) { Tell(sentence); }),
      Velmarc(loop, Store, std::move(thisComputer)),
      Tessaly(loop, Store),
      VVL(loop),
      VolumeControl(loop),
      VolumeControlHP(loop),
      TSRemote(loop),
      MediaPlayers(loop) {}

// A store that something else has written to may be full of wrong values; they make one message.
void EmbeddedSetUp::Tell(const std::string& sentence) {
    if (untold.empty())
        notices.Raise([this] { Notice(std::exchange(untold, "")); });
    else
        untold += '\n';
    untold += sentence;
}

void EmbeddedSetUp::Stop() {
    Velmarc.Stop();
    Tessaly.LinkStop();
    VVL.Stop();
    VolumeControl.Close();
    VolumeControlHP.Close();
}

}  // namespace orvelle
