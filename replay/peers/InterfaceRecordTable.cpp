#include "replay/peers/InterfaceRecordTable.h"

namespace orvelle::replay {

Long InterfaceRecordTable::LowestFreeId() const {
    Long id = 1;
    while (Records.contains(id)) ++id;
    return id;
}

const InterfaceRecord* InterfaceRecordTable::Find(Long id) const {
    const auto found = Records.find(id);
    return found == Records.end() ? nullptr : &found->second;
}

void InterfaceRecordTable::Drop(Long id) {
    const auto isOfRecord = [&](const auto& parameter) { return parameter.first.first == id; };
    Records.erase(id);
    std::erase_if(Params, isOfRecord);
    std::erase_if(ParamTexts, isOfRecord);
}

}  // namespace orvelle::replay
