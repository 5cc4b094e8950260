// The settings store and the registry, kept in one SQLite file. All values are read once, when the object is made, and
// answered from memory. Writes are seen at once and reach the file in HandlerEnded, those since its last call as one
// transaction that survives a kill whole or not at all. Texts are 8-bit bytes of any value. Nothing fails towards the
// caller: a file that can't be used is told of in one sentence, and the run goes on in memory.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "adapters/store/StoredValue.h"
#include "platform/ControlValues.h"
#include "platform/Registry.h"
#include "platform/SettingsStore.h"

namespace orvelle::store {

class StoreFile;

class SqliteStore : public SettingsStore, public Registry, public ControlValues {
public:
    // Is given each sentence for the user, at once, also from inside the constructor. It must not call the store.
    using Notice = std::function<void(const std::string& sentence)>;

    // Makes the file and its folder where they are missing. A damaged file is kept beside it under the name
    // "<file>.damaged-N"; a file of a newer version is left as it is. One process at a time.
    SqliteStore(const std::filesystem::path& file, Notice tellUser);
    SqliteStore(const SqliteStore&) = delete;
    SqliteStore& operator=(const SqliteStore&) = delete;
    ~SqliteStore() override;  // writes what still waits

    Long GetSettingLong(const std::string& section, const std::string& key, Long defaultValue) override;
    std::string GetSettingString(const std::string& section, const std::string& key,
                                 const std::string& defaultValue) override;
    void SaveSettingLong(const std::string& section, const std::string& key, Long value) override;
    void SaveSettingString(const std::string& section, const std::string& key, const std::string& value) override;
    void DeleteSettingSection(const std::string& section) override;
    void OpenSettingList(const std::string& section) override;
    Long SettingListCount() override;
    bool SettingListItem(Long index, std::string& name) override;
    void CloseSettingList() override;
    void HandlerEnded() override;

    void WriteRegistryString(Long root, const std::string& path, const std::string& name,
                             const std::string& value) override;
    std::string ReadRegistryString(Long root, const std::string& path, const std::string& name,
                                   const std::string& defaultValue) override;
    void DeleteRegistryValue(Long root, const std::string& path, const std::string& name) override;
    void WriteRegistryLong(Long root, const std::string& path, const std::string& name, Long value) override;
    Long ReadRegistryLong(Long root, const std::string& path, const std::string& name, Long defaultValue) override;
    std::string ReadRegistryDefault(const std::string& path, const std::string& name,
                                    const std::string& defaultValue) override;

    std::string GetControlValue(const std::string& name, const std::string& defaultValue) override;
    void SetControlValue(const std::string& name, const std::string& value) override;

private:
    // The place that was used last: a row's values are read and written one after another.
    struct LastPlace {
        StoredTable Table = StoredTable::Setting;
        std::string Place;
        StoredNames* Names = nullptr;   // null: none was used yet, or it is gone
        StoredNames* Before = nullptr;  // in `before`; null until the first write there
    };

    StoredPlaces& Table(StoredTable table) { return values[static_cast<std::size_t>(table)]; }
    template <typename Value>
    Value Read(StoredTable table, const std::string& place, const std::string& name, const Value& defaultValue);
    void Write(StoredTable table, const std::string& place, const std::string& name, StoredValue value);
    bool IsLast(StoredTable table, const std::string& place) const {
        return last.Names != nullptr && last.Table == table && last.Place == place;
    }
    void Forget(StoredTable table, StoredPlaces::iterator place);  // a place with all its values
    StoredChanges Changes() const;
    void TellOfWrongType(const std::string& place, const std::string& name, const char* expected);

    Notice tell;
    std::string fileName;
    std::unique_ptr<StoreFile> file;  // null: this run is kept in memory alone
    StoredTables values;
    StoredTables before;  // what the file holds of each value written since the last HandlerEnded; empty without a file
    LastPlace last;
    std::vector<std::string> listed;                       // the open listing
    std::set<std::pair<std::string, std::string>> toldOf;  // values of a wrong type
    bool toldOfFailure = false;
};

}  // namespace orvelle::store
