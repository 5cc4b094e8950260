// The story of three computers that share a voice duty: they join the set-up of the simulator's computer, one holds the
// role and talks, is lost, another one takes the role over, and the lost one comes back and finds it held. Everything
// in it is real: programs, broker, displays. Each chapter waits for what it is to bring about; one that brings nothing
// about ends the story.
#pragma once

#include <QDir>
#include <memory>
#include <string>
#include <vector>

#include "apps/three/Computer.h"
#include "apps/three/SimulatorsComputer.h"
#include "apps/three/Telling.h"

namespace orvelle {

class Story {
public:
    // The computers' folders are made in `workFolder`, where nobody else may write. Pictures are left in
    // `pictureFolder`, which is made. `displayScript` is tests/with-display.
    Story(EventLoop& loop, const QDir& workFolder, const QDir& pictureFolder, const QString& displayScript);

    // False if something did not come about, or the story was stopped.
    bool Play();
    void Stop() { telling.Stop(); }

private:
    bool MakeSetUp();
    bool JoinAll();
    bool ClaimRole();
    bool OpenSession();
    bool Talk();
    bool LoseHolder();
    bool ComeBack();

    // All but the holder.
    bool AllOthers(const std::function<bool(Computer&)>& isSo);
    bool FindHolder();  // takes whoever has the role now for the holder; false unless that is one
    bool OneHolds();    // one computer has the role and nobody else, and it alone has its voice program joined
    bool LetsGoOfRole(Computer& computer);
    bool TakePicture(const std::string& name);
    std::string StateOf(Computer& computer);

    Telling telling;
    const QDir pictures;
    SimulatorsComputer simulator;
    std::vector<std::unique_ptr<Computer>> computers;
    Computer* holder = nullptr;
};

}  // namespace orvelle
