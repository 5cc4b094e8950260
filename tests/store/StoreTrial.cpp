// store-trial rot N: one bit of the store's file, of a file under its log, and of the log is turned over, and file and
// log are cut off, N times each. store-trial kill N: a process that writes is killed at N moments. store-trial power N
// [SEED]: the power is lost N times (PowerLossTrial.h). Whatever the harm, each value is the one that was written last,
// or the user is told and it is one of the copy or, after rot, of an earlier moment, or its default where neither has
// it. Ends with 1 where it isn't so.
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <functional>
#include <iostream>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <thread>

#include "tests/store/PowerLossTrial.h"
#include "tests/store/StoreFolder.h"
#include "tests/store/TrialValues.h"

namespace orvelle::store {
namespace {

namespace fs = std::filesystem;

constexpr const char* Name = "OrvelleCP.sqlite";
constexpr std::array<const char*, 4> Parts{"", "-wal", ".lock", ".copy"};

// A store whose copy is as old as the first unit.
struct Sample {
    std::map<std::string, std::string> Files;  // by the end of their names
    Values Copied;
    Values Saved;
    std::map<int, std::set<std::string>> Ever;
};

enum class End { Orderly, Killed };

void WriteLater(StoreFolder& folder, End end) {
    auto store = folder.Open();
    folder.Loop.Run(TheCopyIsMade);
    for (const Values& unit : LaterUnits(NewRows)) Write(store, unit);
    if (end == End::Killed) raise(SIGKILL);
}

Sample MakeSample(End end) {
    StoreFolder folder;
    {
        auto store = folder.Open();
        Write(store, FirstUnit());
    }
    if (const pid_t child = fork(); child == 0) {
        WriteLater(folder, end);
        _exit(0);
    } else {
        waitpid(child, nullptr, 0);
    }

    Sample sample;
    Values now;
    for (int row = 0; row < Rows + NewRows; ++row) sample.Ever[row].insert(now[row]);
    for (const auto& [row, value] : FirstUnit()) sample.Ever[row].insert(now[row] = value);
    sample.Copied = now;
    for (const Values& unit : LaterUnits(NewRows))
        for (const auto& [row, value] : unit) sample.Ever[row].insert(now[row] = value);
    sample.Saved = now;
    for (const char* part : Parts)
        if (const fs::path path = folder.Path(std::string(Name) + part); fs::exists(path))
            sample.Files[part] = BytesOf(path);
    return sample;
}

void Judge(const Sample& sample, const Values& values, bool isTold, Outcomes& outcomes) {
    if (values == sample.Saved) {
        ++(isTold ? outcomes.SavedAndTold : outcomes.Saved);
        return;
    }
    bool isOfCopy = true;
    bool isOfEver = true;
    for (const auto& [row, value] : values) {
        isOfCopy = isOfCopy && (value == sample.Saved.at(row) || value == sample.Copied.at(row));
        isOfEver = isOfEver && sample.Ever.at(row).contains(value);
    }
    if (!isOfEver)
        ++outcomes.Wrong;
    else if (!isTold)
        ++outcomes.Silent;
    else
        ++(isOfCopy ? outcomes.Copied : outcomes.Older);
}

// Opens the sample with one part of it harmed; once more, and it holds the same.
void TryOne(const Sample& sample, const std::string& part, const std::string& harmed, Outcomes& outcomes) {
    StoreFolder folder;
    for (const auto& [end, bytes] : sample.Files) WriteBytes(folder.Path(Name + end), end == part ? harmed : bytes);
    Values values;
    {
        auto store = folder.Open();
        values = Read(store);
        folder.Loop.Run(TheCopyIsMade);
    }
    Judge(sample, values, !folder.Sentences.empty(), outcomes);
    auto again = folder.Open();
    if (Read(again) != values) ++outcomes.Wrong;
}

bool TryRot(int times) {
    std::mt19937 random(5);
    const Sample closed = MakeSample(End::Orderly);
    const Sample killed = MakeSample(End::Killed);
    const auto flip = [&](std::string bytes) {
        const std::size_t bit = random() % (bytes.size() * 8);
        bytes[bit / 8] = static_cast<char>(bytes[bit / 8] ^ (1 << bit % 8));
        return bytes;
    };
    const auto cut = [&](const std::string& bytes) { return bytes.substr(0, random() % bytes.size()); };
    const auto all = [&](const char* harm, const Sample& sample, const std::string& part, const auto& damage) {
        Outcomes outcomes;
        for (int time = 0; time < times; ++time) TryOne(sample, part, damage(sample.Files.at(part)), outcomes);
        Report(harm, outcomes);
        return outcomes.Silent == 0 && outcomes.Wrong == 0;
    };
    bool isGood = all("a bit of the file", closed, "", flip);
    isGood &= all("a bit of the file under a log", killed, "", flip);
    isGood &= all("a bit of the log", killed, "-wal", flip);
    isGood &= all("a bit of the lock's note", closed, ".lock", flip);
    isGood &= all("a bit of the copy", closed, ".copy", flip);
    isGood &= all("the file cut off", closed, "", cut);
    isGood &= all("the log cut off", killed, "-wal", cut);
    return isGood;
}

// Units of their own number in every row, each reported as it is done.
void WriteUntilKilled(StoreFolder& folder, int first, int reports) {
    auto store = folder.Open();
    for (int unit = first;; ++unit) {
        Values values;
        for (int row = 0; row < 6 + unit * 7 % 36; ++row) values[row] = std::to_string(unit);
        values[Rows] = std::to_string(unit);
        Write(store, values);
        folder.Loop.Run(1000);
        if (write(reports, &unit, sizeof unit) != sizeof unit) _exit(1);
    }
}

bool IsWhole(StoreFolder& folder, int reported, int& unit) {
    auto store = folder.Open();
    const auto text = [&](int row) { return store.GetSettingString(Section(row), "J2KJoy", "0"); };
    unit = std::stoi(text(Rows));
    bool isWhole = folder.Sentences.empty() && unit >= reported && unit <= reported + 1;
    for (int row = 0; unit > 0 && row < 6 + unit * 7 % 36; ++row) isWhole = isWhole && text(row) == text(Rows);
    if (!isWhole) std::cout << "reported " << reported << ", found " << unit << std::endl;
    for (const std::string& sentence : folder.Sentences) std::cout << sentence << std::endl;
    return isWhole;
}

bool TryKills(int times) {
    std::mt19937 random(7);
    int unit = 0;
    int failures = 0;
    std::optional<StoreFolder> folder;
    for (int time = 0; time < times; ++time) {
        if (time % 100 == 0) {
            folder.emplace();
            unit = 0;
        }
        std::array<int, 2> channel{};
        if (pipe(channel.data()) != 0) return false;
        const pid_t child = fork();
        if (child == 0) WriteUntilKilled(*folder, unit + 1, channel[1]);
        close(channel[1]);
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 40000));
        kill(child, SIGKILL);
        int reported = unit;
        for (int done = 0; read(channel[0], &done, sizeof done) == sizeof done;) reported = done;
        close(channel[0]);
        waitpid(child, nullptr, 0);
        if (!IsWhole(*folder, reported, unit)) ++failures;
        folder->Sentences.clear();
    }
    std::cout << times << " kills, " << failures << " not whole or told" << std::endl;
    return failures == 0;
}

}  // namespace
}  // namespace orvelle::store

int main(int argc, char** argv) {
    const std::string kind = argc >= 3 ? argv[1] : "";
    if (kind == "rot" && argc == 3) return orvelle::store::TryRot(std::stoi(argv[2])) ? 0 : 1;
    if (kind == "kill" && argc == 3) return orvelle::store::TryKills(std::stoi(argv[2])) ? 0 : 1;
    if (kind == "power" && argc <= 4) {
        const unsigned long seed = argc == 4 ? std::stoul(argv[3]) : std::random_device()();
        return orvelle::store::TryPowerLosses(std::stoi(argv[2]), static_cast<unsigned>(seed)) ? 0 : 1;
    }
    std::cerr << "usage: store-trial rot|kill TIMES, store-trial power TIMES [SEED]\n";
    return 2;
}
