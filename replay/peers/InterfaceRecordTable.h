// The interface records that the framework keeps for all computers, with their parameters. Parameters are kept by id
// alone, so that a scenario can open a record that was never put there.
#pragma once

#include <map>
#include <string>
#include <utility>

#include "replay/Answers.h"

namespace orvelle::replay {

struct InterfaceRecord {
    enum class Owner { Local, Foreign };

    std::string Type;
    std::string Role;
    Owner Holder;
};

struct InterfaceRecordTable {
    using Place = std::pair<Long, Long>;  // id and index

    Long LowestFreeId() const;
    const InterfaceRecord* Find(Long id) const;
    // Removes the record and its parameters.
    void Drop(Long id);

    template <typename T>
    static Kept<T> At(const std::map<Place, Kept<T>>& parameters, Long id, Long index) {
        const auto found = parameters.find({id, index});
        return found == parameters.end() ? Kept<T>{} : found->second;
    }

    std::map<Long, InterfaceRecord> Records;
    std::map<Place, Kept<Long>> Params;  // 0 and "" until written
    std::map<Place, Kept<std::string>> ParamTexts;
};

}  // namespace orvelle::replay
