// What must hold after every stimulus, whatever came before: told from the calls that the stimulus made and from the
// panel's state. A breach ends the process with the scenario that led to it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "replay/Stage.h"

namespace orvelle::fuzz {

class Invariants {
public:
    // `calls` is the transcript of one stimulus. Returns what is breached, if anything.
    std::optional<std::string> Check(const replay::Stage& stage, const std::string& calls);

private:
    struct TalkKey {
        std::string Sequence;
        std::string State;
    };

    static std::optional<std::string> CheckBrackets(const std::vector<std::string>& lines);
    std::optional<std::string> CheckRogerWilco(const FrmOrvelle& panel, const std::vector<std::string>& lines);
    static std::optional<std::string> CheckTalkKey(const TalkKey& before, const TalkKey& now, const std::string& calls);
    static std::optional<std::string> CheckTimers(const FrmOrvelle& panel);
    static std::optional<std::string> CheckRowNumbers(const replay::Stage& stage, const std::string& section,
                                                      Long rows);

    bool rogerWilcoJoined = false;
    TalkKey rogerWilco;
    TalkKey teamSpeak;
};

}  // namespace orvelle::fuzz
