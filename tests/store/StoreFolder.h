// A folder of its own for one store, removed with all it holds, and the ways in which a test looks at the store there.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "adapters/store/SqliteStore.h"
#include "tests/shared/HandLoop.h"

namespace orvelle::store {

class StoreFolder {
public:
    StoreFolder();
    StoreFolder(const StoreFolder&) = delete;
    StoreFolder& operator=(const StoreFolder&) = delete;
    ~StoreFolder();

    std::filesystem::path Path(const std::string& name = "OrvelleCP.sqlite") const { return folder / name; }
    std::vector<std::string> Files() const;  // names, sorted

    // Opens the store there; what it tells the user goes to Sentences.
    SqliteStore Open(const std::string& name = "OrvelleCP.sqlite");
    std::vector<std::string> Sentences;
    HandLoop Loop;

    void Fill();  // a hundred rows, and "Left" 7

    // Makes a file as the first version did, without checks, and runs SQL on it.
    void MakeWithoutChecks(const std::string& sql) const;
    // Runs SQL on the store's file, beside the store.
    void Run(const std::string& sql, const std::string& name = "OrvelleCP.sqlite") const;
    std::string Text(const std::string& sql) const;  // the first value of the first row

private:
    std::filesystem::path folder;
};

// The run goes on in memory with one sentence, which holds the words told; what lies in the folder stays as it is.
void ExpectInMemory(StoreFolder& folder, const std::string& words, Long left,
                    const std::string& name = "OrvelleCP.sqlite");

std::string BytesOf(const std::filesystem::path& file);
void WriteBytes(const std::filesystem::path& file, const std::string& bytes);

}  // namespace orvelle::store
