// What the program whose power is lost believes to be on the disk: it writes a line into the file "marks" before and
// after each of its steps, and the trial reads them up to the loss. Lines are a word, then values or a name.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "tests/store/TrialValues.h"

namespace orvelle::store {

constexpr const char* MarksName = "marks";

class PowerLossMarks {
public:
    explicit PowerLossMarks(const std::filesystem::path& folder);
    PowerLossMarks(const PowerLossMarks&) = delete;
    PowerLossMarks& operator=(const PowerLossMarks&) = delete;
    ~PowerLossMarks();

    void Phase(const std::string& name) const { Put("phase", name); }
    void Told() const { Put("told", ""); }  // a sentence
    // The store was opened, and holds these.
    void Holds(const Values& values) const;
    void Intends(const Values& unit) const;
    void Done() const { Put("done", ""); }
    void Copied() const { Put("copied", ""); }  // of what is done

private:
    void Put(const std::string& word, const std::string& rest) const;

    int file;
};

// What the marks promise, as far as they were heard.
struct PowerLossPromise {
    std::string Phase = "before the first run";
    Values Done = NoRows();
    bool IsTold = false;  // what the store does not hold any more was told, and what it holds is not known yet
    std::optional<Values> Intended{};  // the unit that was being written: all of it is there, or nothing
    Units Copies{NoRows(), NoRows()};  // the last two that were made

    void Hear(std::string_view line);
};

}  // namespace orvelle::store
