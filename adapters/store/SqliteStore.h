// The settings store and the registry, kept in one SQLite file. All values are read once, when the object is made, and
// answered from memory. Writes are seen at once and reach the file in HandlerEnded, those since its last call as one
// transaction that survives a kill whole or not at all; what can't be written then waits, and is tried from the loop.
// Texts are 8-bit bytes of any value. Nothing fails towards the caller: what is wrong with the file is told of in one
// sentence, and the run goes on in memory.
#pragma once

#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "adapters/store/StoreMemory.h"
#include "adapters/store/StoreWriter.h"
#include "adapters/store/StoredValue.h"
#include "platform/ControlValues.h"
#include "platform/Registry.h"
#include "platform/SettingsStore.h"

namespace orvelle::store {

struct OpenedStore;

class SqliteStore : public SettingsStore, public Registry, public ControlValues {
public:
    // Is given each sentence for the user, at once, also from inside the constructor. It must not call the store.
    using Notice = std::function<void(const std::string& sentence)>;

    // Makes the file and its folder where they are missing, for the user alone. Beside it are its lock, "<file>.lock",
    // and its last good copy, "<file>.copy". A damaged file is kept under the name "<file>.damaged-N" and completed
    // from the copy; a file of a newer version is left as it is. While another process has the lock, values are only
    // read.
    SqliteStore(EventLoop& loop, const std::filesystem::path& file, Notice tellUser);
    SqliteStore(const SqliteStore&) = delete;
    SqliteStore& operator=(const SqliteStore&) = delete;
    ~SqliteStore() override;  // closes

    // Writes what still waits, for which it takes up to a second, and lets the file go; later changes stay in memory. A
    // sentence on what is lost, "" if nothing is.
    std::string Close();

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
    SqliteStore(EventLoop& loop, OpenedStore opened, Notice tellUser);

    template <typename Value>
    Value Read(StoredTable table, const std::string& place, const std::string& name, const Value& defaultValue);
    void Write(StoredTable table, const std::string& place, const std::string& name, StoredValue value);
    void TellOfWrongType(const std::string& place, const std::string& name, const char* expected);

    Notice tell;
    StoreMemory memory;
    StoreWriter writer;
    std::vector<std::string> listed;                       // the open listing
    std::set<std::pair<std::string, std::string>> toldOf;  // values of a wrong type
};

}  // namespace orvelle::store
