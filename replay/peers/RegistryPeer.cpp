#include "replay/peers/RegistryPeer.h"

namespace orvelle::replay {

void RegistryPeer::WriteRegistryString(Long root, const std::string& path, const std::string& name,
                                       const std::string& value) {
    Call("WriteRegistryString", {Value::Root(root), path, name, value});
    Put(path, name, value);
}

std::string RegistryPeer::ReadRegistryString(Long root, const std::string& path, const std::string& name,
                                             const std::string& defaultValue) {
    return Read("ReadRegistryString", {Value::Root(root), path, name, defaultValue}, {path, name}, defaultValue);
}

void RegistryPeer::DeleteRegistryValue(Long root, const std::string& path, const std::string& name) {
    Call("DeleteRegistryValue", {Value::Root(root), path, name});
    values.erase({path, name});
}

void RegistryPeer::WriteRegistryLong(Long root, const std::string& path, const std::string& name, Long value) {
    Call("WriteRegistryLong", {Value::Root(root), path, name, value});
    Put(path, name, value);
}

Long RegistryPeer::ReadRegistryLong(Long root, const std::string& path, const std::string& name, Long defaultValue) {
    return Read("ReadRegistryLong", {Value::Root(root), path, name, defaultValue}, {path, name}, defaultValue);
}

std::string RegistryPeer::ReadRegistryDefault(const std::string& path, const std::string& name,
                                              const std::string& defaultValue) {
    return Read("ReadRegistryDefault", {path, name, defaultValue}, {path, name}, defaultValue);
}

void RegistryPeer::Put(const std::string& path, const std::string& name, const Value& value) {
    Keep(values.insert_or_assign({path, name}, Kept<Value>{value}).first->second, value);
}

std::optional<Value> RegistryPeer::Find(const std::string& path, const std::string& name) const {
    const auto found = values.find({path, name});
    return found == values.end() ? std::nullopt : std::optional(found->second.Held);
}

template <typename T>
T RegistryPeer::Read(const char* member, const Values& arguments, const Place& place, const T& defaultValue) {
    const auto found = values.find(place);
    const bool isThere = found != values.end();
    const bool isKept = isThere && found->second.Held.Is<T>();
    return Ask<T>(member, arguments, isKept ? found->second.Held.As<T>() : defaultValue,
                  isThere ? found->second.Since : 0);
}

}  // namespace orvelle::replay
