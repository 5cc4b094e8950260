#include "tests/store/PowerLossTrial.h"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <iostream>

#include "tests/store/FaultyDisk.h"
#include "tests/store/PowerLossStory.h"
#include "tests/store/StoreFolder.h"

namespace orvelle::store {
namespace {

namespace fs = std::filesystem;

constexpr unsigned LongestStart = 60;  // seconds, after which a start hangs
constexpr int FirstStatus = 64;        // the exit statuses that tell an outcome begin here: no fault ends so

// The sanitizers would be the first library themselves. True if it came to its end, which may be a kill.
bool RunPart(const fs::path& folder, const fs::path& journal, std::size_t part) {
    const pid_t child = fork();
    if (child == 0) {
        setenv("LD_PRELOAD", POWER_LOSS_WATCH, 1);
        setenv("ASAN_OPTIONS", "verify_asan_link_order=0", 1);
        setenv(JournalVariable, journal.c_str(), 1);
        execl(POWER_LOSS_RUN, POWER_LOSS_RUN, folder.c_str(), std::to_string(part).c_str(), nullptr);
        _exit(1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) == 0 : WTERMSIG(status) == SIGKILL;
}

DiskTree TreeAt(const fs::path& folder) {
    DiskTree tree{{"", std::nullopt}};
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const fs::path path = entry.path().lexically_relative(folder);
        if (entry.is_directory())
            tree[path] = std::nullopt;
        else if (!path.string().ends_with("-shm"))
            tree[path] = BytesOf(entry.path());
    }
    return tree;
}

void LayDown(const DiskTree& tree, const StoreFolder& folder) {
    for (const auto& [path, bytes] : tree)
        if (path == MarksName)
            continue;
        else if (bytes)
            WriteBytes(folder.Path(path), *bytes);
        else
            fs::create_directories(folder.Path(path));
}

enum class Outcome { Saved, SavedAndTold, Copied, Silent, Wrong };

Outcome Judge(const PowerLossPromise& promise, const Values& values, bool isTold) {
    if (values == promise.Done || values == promise.Intended) return isTold ? Outcome::SavedAndTold : Outcome::Saved;
    const auto isKnown = [&](const auto& row) {
        const auto isIn = [&](const Values& known) { return row.second == known.at(row.first); };
        return isIn(promise.Done) || (promise.Intended && isIn(*promise.Intended)) ||
               std::ranges::any_of(promise.Copies, isIn);
    };
    if (!std::ranges::all_of(values, isKnown)) return Outcome::Wrong;
    return isTold ? Outcome::Copied : Outcome::Silent;
}

// What a loss led to that is not what was saved, in silence; for who looks for the reason.
void Describe(Outcome outcome, const PowerLossPromise& promise, const Values& values, const StoreFolder& folder) {
    const char* const names[]{"as saved", "as saved and told", "of the copy", "older in silence", "wrong"};
    std::clog << promise.Phase << ": " << names[static_cast<int>(outcome)]
              << ", rows that differ: " << std::ranges::count_if(values, [&](const auto& row) {
                     return row.second != promise.Done.at(row.first);
                 });
    for (const std::string& sentence : folder.Sentences) std::clog << ". " << sentence;
    std::clog << std::endl;
}

Outcome Start(StoreFolder& folder, const PowerLossPromise& promise) {
    const FaultyDisk disk;  // it waits for no real one
    alarm(LongestStart);
    Values values;
    {
        auto store = folder.Open(PowerLossStore);
        values = Read(store);
    }
    const Outcome outcome = Judge(promise, values, promise.IsTold || !folder.Sentences.empty());
    if (outcome != Outcome::Saved) Describe(outcome, promise, values, folder);
    auto again = folder.Open(PowerLossStore);
    if (Read(again) == values) return outcome;
    std::clog << promise.Phase << ": the second start found other values" << std::endl;
    return Outcome::Wrong;
}

// In a process of its own, which may crash or hang.
Outcome StartAfterLoss(const DiskTree& tree, const PowerLossPromise& promise) {
    StoreFolder folder;
    LayDown(tree, folder);
    const pid_t child = fork();
    if (child == 0) _exit(FirstStatus + static_cast<int>(Start(folder, promise)));
    int status = 0;
    waitpid(child, &status, 0);
    if (WIFEXITED(status) && WEXITSTATUS(status) >= FirstStatus)
        return static_cast<Outcome>(WEXITSTATUS(status) - FirstStatus);
    std::clog << promise.Phase << ": the start failed, or hung" << std::endl;
    return Outcome::Wrong;
}

void Count(Outcome outcome, Outcomes& outcomes) {
    int* const counts[]{&outcomes.Saved, &outcomes.SavedAndTold, &outcomes.Copied, &outcomes.Silent, &outcomes.Wrong};
    ++*counts[static_cast<int>(outcome)];
}

// Half of the moments are chosen among all, the others among those that are not within a save, which are few.
std::vector<std::size_t> MomentsOfLoss(PowerLossStory story, int times, std::mt19937& random) {
    std::vector<std::size_t> few;
    for (std::size_t moment = 0; moment <= story.Length(); ++moment) {
        story.GoOn(moment);
        if (!story.Promise().Phase.ends_with("saves")) few.push_back(moment);
    }
    std::vector<std::size_t> moments;
    moments.reserve(static_cast<std::size_t>(times));
    for (int time = 0; time < times; ++time)
        moments.push_back(time % 2 == 0 ? random() % (story.Length() + 1) : few[random() % few.size()]);
    std::ranges::sort(moments);
    return moments;
}

}  // namespace

bool TryPowerLosses(int times, unsigned seed) {
    const StoreFolder place;
    const fs::path folder = place.Path("disk");
    fs::create_directory(folder);
    for (std::size_t part = 0; part < PowerLossParts; ++part)
        if (!RunPart(folder, place.Path("journal"), part)) {
            std::cout << "part " << part << " of the run failed" << std::endl;
            return false;
        }
    const std::vector<JournaledCall> journal = ReadJournal(place.Path("journal"));
    PowerLossStory whole(folder, journal);
    whole.GoOn(whole.Length());
    if (whole.Disk().Now() != TreeAt(folder)) {
        std::cout << "the journal does not tell all that was done" << std::endl;
        return false;
    }

    std::mt19937 random(seed);
    std::cout << times << " losses in " << journal.size() << " calls, seed " << seed << std::endl;
    std::vector<std::string> phases;
    std::map<std::string, Outcomes> table;
    PowerLossStory played(folder, journal);
    for (const std::size_t moment : MomentsOfLoss(PowerLossStory(folder, journal), times, random)) {
        played.GoOn(moment);
        const std::string& phase = played.Promise().Phase;
        if (!table.contains(phase)) phases.push_back(phase);
        Count(StartAfterLoss(played.Disk().AfterLoss(random), played.Promise()), table[phase]);
    }
    for (const std::string& phase : phases) Report(phase, table[phase]);
    return std::ranges::all_of(table, [](const auto& row) { return row.second.Silent == 0 && row.second.Wrong == 0; });
}

}  // namespace orvelle::store
