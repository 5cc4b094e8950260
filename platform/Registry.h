// The machine's registry of paths and value names, as the simulator link lends it. The panel passes one root only.
// An absent value gives the default; deleting or writing never fails towards the caller.
#pragma once

#include <string>

#include "platform/Types.h"

namespace orvelle {

constexpr Long LocalMachine = static_cast<Long>(0x80000002);

class Registry {
public:
    virtual ~Registry() = default;

    virtual void WriteRegistryString(Long root, const std::string& path, const std::string& name,
                                     const std::string& value) = 0;
    virtual std::string ReadRegistryString(Long root, const std::string& path, const std::string& name,
                                           const std::string& defaultValue) = 0;
    virtual void DeleteRegistryValue(Long root, const std::string& path, const std::string& name) = 0;
    virtual void WriteRegistryLong(Long root, const std::string& path, const std::string& name, Long value) = 0;
    virtual Long ReadRegistryLong(Long root, const std::string& path, const std::string& name, Long defaultValue) = 0;

    // Reads below the local machine's root; `name` "" is the default value of the path.
    virtual std::string ReadRegistryDefault(const std::string& path, const std::string& name,
                                            const std::string& defaultValue) = 0;
};

}  // namespace orvelle
