#include "simulators/directory/FetchTroubles.h"

#include <array>
#include <csignal>

#include "adapters/shared/ChildProgram.h"

namespace orvelle::directory {

namespace {

constexpr int RefusedByServer = 22;
constexpr int NotTrusted = 60;

struct Known {
    int Exit;
    const char* Sentence;
};

constexpr std::array Sentences{
    Known{1, "It leads on to an address that is not by HTTPS, which is not followed."},
    Known{3, "It is no address."},
    Known{5, "The host of the proxy is unknown."},
    Known{6, "Its host is unknown, or this computer has no network."},
    Known{7, "Its host can't be reached, or doesn't answer there."},
    Known{18, "The connection broke off before all was there."},
    Known{23, "There is no room for it on the disk."},
    Known{28, "It took too long."},
    Known{35, "Its host doesn't speak HTTPS there."},
    Known{47, "It leads on and on to other addresses."},
    Known{52, "Its host doesn't answer."},
    Known{56, "The connection broke off."},
    Known{63, "It is longer than 16 MiB."},
    Known{77, "The certificates of this computer can't be read."},
    Known{NotStarted, "The program curl, which fetches it, is not installed on this computer."},
};

std::string SentenceOfAnswer(int answer) {
    const std::string number = " (" + std::to_string(answer) + ").";
    if (answer < 300) return "Its server gives nothing there" + number;
    if (answer == 404 || answer == 410) return "There is nothing at this address" + number;
    if (answer == 401 || answer == 403) return "Its server doesn't give it to everybody" + number;
    if (answer >= 500) return "Its server has a trouble of its own" + number;
    return "Its server refuses it" + number;
}

}  // namespace

std::string FetchTrouble(const FetchEnd& end) {
    if (end.Signal == SIGXFSZ) return "It is longer than 16 MiB.";
    if (end.Signal != 0) return "The program curl, which fetches it, was ended.";
    if (end.Exit == 0) return end.Answer == 200 || end.Answer == 304 ? "" : SentenceOfAnswer(end.Answer);
    if (end.Exit == RefusedByServer) return SentenceOfAnswer(end.Answer);
    if (end.Exit == NotTrusted) return "Its certificate can't be trusted: " + end.Message + ".";
    for (const Known& known : Sentences)
        if (known.Exit == end.Exit) return known.Sentence;
    return "It can't be fetched: " + end.Message + ".";
}

}  // namespace orvelle::directory
