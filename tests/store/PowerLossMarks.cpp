#include "tests/store/PowerLossMarks.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <sstream>

namespace orvelle::store {

namespace {

// Values hold neither sign.
constexpr char AfterRow = '=';
constexpr char AfterValue = ';';

std::string TextOf(const Values& values) {
    std::string text;
    for (const auto& [row, value] : values) text += std::to_string(row) + AfterRow + value + AfterValue;
    return text;
}

void Take(const std::string& text, Values& values) {
    std::istringstream stream(text);
    std::string row;
    while (std::getline(stream, row, AfterRow)) std::getline(stream, values[std::stoi(row)], AfterValue);
}

}  // namespace

PowerLossMarks::PowerLossMarks(const std::filesystem::path& folder)
    : file(open((folder / MarksName).c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, S_IRUSR | S_IWUSR)) {
    lseek(file, 0, SEEK_END);
}

PowerLossMarks::~PowerLossMarks() { close(file); }

void PowerLossMarks::Holds(const Values& values) const { Put("holds", TextOf(values)); }
void PowerLossMarks::Intends(const Values& unit) const { Put("intends", TextOf(unit)); }

void PowerLossMarks::Put(const std::string& word, const std::string& rest) const {
    const std::string line = word + ' ' + rest + '\n';
    if (write(file, line.data(), line.size()) != static_cast<ssize_t>(line.size())) std::abort();
}

void PowerLossPromise::Hear(std::string_view line) {
    const std::string word(line.substr(0, line.find(' ')));
    const std::string rest(line.substr(word.size() + 1));
    if (word == "phase") {
        Phase = rest;
    } else if (word == "told") {
        IsTold = true;
    } else if (word == "holds") {
        Done = NoRows();
        Take(rest, Done);
        IsTold = false;
    } else if (word == "intends") {
        Intended = Done;
        Take(rest, *Intended);
    } else if (word == "done") {
        Done = std::move(*Intended);
        Intended.reset();
        IsTold = false;
    } else if (word == "copied") {
        Copies = {std::move(Copies.back()), Done};
    }
}

}  // namespace orvelle::store
