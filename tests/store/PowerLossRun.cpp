// power-loss-run FOLDER PART: one of the runs of a store in a folder that store-trial cuts the power of, told step by
// step in the file of marks. The runs follow one another as those of a panel do: a first one, a long one that is
// killed, one that finds its log, one whose file is damaged, one whose file is deleted, one whose row is.
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <functional>

#include "tests/shared/HandLoop.h"
#include "tests/store/PowerLossMarks.h"
#include "tests/store/PowerLossTrial.h"
#include "tests/store/StoreFolder.h"

namespace orvelle::store {
namespace {

namespace fs = std::filesystem;

enum class End { Orderly, Killed };

struct Part {
    const char* Name;
    int Saves;
    End How = End::Orderly;
    std::function<void(const fs::path&)> HarmBefore = [](const fs::path&) {};
    std::function<void(const fs::path&)> HarmMeanwhile = [](const fs::path&) {};
};

// On the disk at once, as a fault of the disk is.
void Overwrite(const fs::path& file, std::size_t offset, const std::string& bytes) {
    const int opened = open(file.c_str(), O_WRONLY | O_CLOEXEC);
    const ssize_t written = pwrite(opened, bytes.data(), bytes.size(), static_cast<off_t>(offset));
    if (written != static_cast<ssize_t>(bytes.size())) std::abort();
    fsync(opened);
    close(opened);
}

void DamagePage(const fs::path& file) { Overwrite(file, 2 * 4096, std::string(4096, '\x55')); }
void DamageRow(const fs::path& file) { Overwrite(file, BytesOf(file).find(std::string(100, 'l')) + 10, "!"); }
void Delete(const fs::path& file) { fs::remove(file); }

const std::array<Part, PowerLossParts> Parts{{
    {"the first run", 120},
    {"a long run", 320, End::Killed},
    {"a run after a kill", 60},
    {"a run on a damaged page", 40, End::Orderly, DamagePage},
    {"a run whose file is deleted", 40, End::Orderly, [](const fs::path&) {}, Delete},
    {"a run on a damaged row", 40, End::Orderly, DamageRow},
    {"the last run", 20},
}};

void Play(const Part& part, const fs::path& folder) {
    const fs::path file = folder / PowerLossStore;
    const PowerLossMarks marks(folder);
    const std::string name = part.Name;
    // Values of each run are its own, so that older ones show.
    const auto save = [&](SqliteStore& store, const Values& anyRuns) {
        Values unit = anyRuns;
        for (auto& [row, value] : unit)
            if (!value.empty()) value += " of " + name;
        marks.Intends(unit);
        Write(store, unit);
        marks.Done();
    };
    marks.Phase(name + ", its start");
    part.HarmBefore(file);
    HandLoop loop;
    {
        SqliteStore store(loop, file, [&](const std::string&) { marks.Told(); });
        marks.Holds(Read(store));
        marks.Phase(name + ", the copy");
        loop.Run(TheCopyIsMade);
        marks.Copied();
        marks.Phase(name + ", its saves");
        save(store, FirstUnit());
        const Units units = LaterUnits(part.Saves);
        for (std::size_t unit = 0; unit < units.size(); ++unit) {
            if (unit == units.size() / 2) part.HarmMeanwhile(file);
            save(store, units[unit]);
        }
        if (part.How == End::Killed) raise(SIGKILL);
        marks.Phase(name + ", its end");
    }
    marks.Phase(name + ", afterwards");
}

}  // namespace
}  // namespace orvelle::store

int main(int, char** argv) {
    orvelle::store::Play(orvelle::store::Parts.at(std::stoul(argv[2])), argv[1]);
    return 0;
}
