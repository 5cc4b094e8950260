// Controls of one kind under one name with an index from 0: "optRWDriver(0)". An index that is not there is run-time
// error 9.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/RuntimeError.h"
#include "platform/controls/Control.h"

namespace orvelle {

template <typename T>
class ControlArray {
public:
    ControlArray() = default;
    ControlArray(const ControlArray&) = delete;
    ControlArray& operator=(const ControlArray&) = delete;

    template <typename... Arguments>
    T& Add(Form& form, const std::string& name, Arguments&&... arguments) {
        const std::string indexed = name + "(" + std::to_string(members.size()) + ")";
        members.push_back(std::make_unique<T>(form, indexed, std::forward<Arguments>(arguments)...));
        return *members.back();
    }

    T& operator()(Long index) const {
        if (index < 0 || index >= Count()) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
        return *members[static_cast<std::size_t>(index)];
    }
    Long Count() const { return static_cast<Long>(members.size()); }

private:
    std::vector<std::unique_ptr<T>> members;
};

}  // namespace orvelle
