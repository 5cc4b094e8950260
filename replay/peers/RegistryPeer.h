// The registry of a run, which the simulator link lends: empty at its start, keeping what is written. There is one
// root, the local machine's; ReadRegistryDefault reads the same values.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "platform/Registry.h"
#include "replay/Peer.h"

namespace orvelle::replay {

class RegistryPeer final : public Registry, private Peer {
public:
    using Peer::Peer;

    void WriteRegistryString(Long root, const std::string& path, const std::string& name,
                             const std::string& value) override;
    std::string ReadRegistryString(Long root, const std::string& path, const std::string& name,
                                   const std::string& defaultValue) override;
    void DeleteRegistryValue(Long root, const std::string& path, const std::string& name) override;
    void WriteRegistryLong(Long root, const std::string& path, const std::string& name, Long value) override;
    Long ReadRegistryLong(Long root, const std::string& path, const std::string& name, Long defaultValue) override;
    std::string ReadRegistryDefault(const std::string& path, const std::string& name,
                                    const std::string& defaultValue) override;

    // Texts and whole numbers, as the scenario puts and looks at them.
    void Put(const std::string& path, const std::string& name, const Value& value);
    std::optional<Value> Find(const std::string& path, const std::string& name) const;

private:
    using Place = std::pair<std::string, std::string>;  // path and name

    template <typename T>
    T Read(const char* member, const Values& arguments, const Place& place, const T& defaultValue);

    std::map<Place, Kept<Value>> values;
};

}  // namespace orvelle::replay
