#include "bench/ProcessFigures.h"

#include <cctype>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace orvelle {

namespace {

namespace fs = std::filesystem;

bool IsNumber(const std::string& name) {
    return !name.empty() && std::isdigit(static_cast<unsigned char>(name.front())) != 0;
}

// The process number behind "PPid:", 0 where there is none.
pid_t ParentOf(const fs::path& process) {
    std::ifstream status(process / "status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("PPid:")) return std::stoi(line.substr(5));
    return 0;
}

// The process and its descendants, parents first.
std::vector<pid_t> Family(pid_t process) {
    std::vector<std::pair<pid_t, pid_t>> children;
    for (const auto& entry : fs::directory_iterator("/proc"))
        if (IsNumber(entry.path().filename()))
            children.emplace_back(std::stoi(entry.path().filename()), ParentOf(entry.path()));

    std::vector<pid_t> family{process};
    for (std::size_t member = 0; member < family.size(); ++member)
        for (const auto& [child, parent] : children)
            if (parent == family[member]) family.push_back(child);
    return family;
}

// The number behind `name` in a file of lines "name: number".
double NumberNamed(const fs::path& file, const std::string& name) {
    std::ifstream lines(file);
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with(name + ":")) return std::stod(line.substr(name.size() + 1));
    return 0;
}

double CpuMillisecondsOf(pid_t process) {
    clockid_t clock;
    timespec used{};
    if (clock_getcpuclockid(process, &clock) != 0 || clock_gettime(clock, &used) != 0) return 0;
    return static_cast<double>(used.tv_sec) * 1e3 + static_cast<double>(used.tv_nsec) / 1e6;
}

}  // namespace

Memory ReadMemory(pid_t process) {
    constexpr double KibibytesPerMebibyte = 1024;
    Memory memory;
    for (const pid_t member : Family(process)) {
        const fs::path file = fs::path("/proc") / std::to_string(member) / "smaps_rollup";
        memory.Resident += NumberNamed(file, "Rss") / KibibytesPerMebibyte;
        memory.Proportional += NumberNamed(file, "Pss") / KibibytesPerMebibyte;
        memory.Private += NumberNamed(file, "Private_Dirty") / KibibytesPerMebibyte;
    }
    return memory;
}

Activity ReadActivityOfOne(pid_t process) {
    Activity activity;
    std::error_code gone;
    for (const auto& thread : fs::directory_iterator(fs::path("/proc") / std::to_string(process) / "task", gone)) {
        activity.WakeUps += NumberNamed(thread.path() / "status", "voluntary_ctxt_switches");
        activity.Preemptions += NumberNamed(thread.path() / "status", "nonvoluntary_ctxt_switches");
    }
    activity.CpuMilliseconds = CpuMillisecondsOf(process);
    return activity;
}

Activity ReadActivity(pid_t process) {
    Activity all;
    for (const pid_t member : Family(process)) {
        const Activity one = ReadActivityOfOne(member);
        all.WakeUps += one.WakeUps;
        all.Preemptions += one.Preemptions;
        all.CpuMilliseconds += one.CpuMilliseconds;
    }
    return all;
}

CpuTime ReadCpuTime() {
    std::ifstream file("/proc/stat");
    std::string line;
    std::getline(file, line);
    std::istringstream fields(line.substr(3));
    CpuTime time;
    double units = 0;
    // user nice system idle iowait irq softirq steal; what follows is counted among these already
    for (int field = 0; field < 8 && fields >> units; ++field) {
        time.All += units;
        if (field == 3 || field == 4) time.Idle += units;
    }
    return time;
}

}  // namespace orvelle
