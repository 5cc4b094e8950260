#include "replay/peers/TessalyPeer.h"

namespace orvelle::replay {

// An id that the scenario gave makes no record, but is open like one.
Long TessalyPeer::CreateInterface(const std::string& type, const std::string& role) {
    const Values given = Answer("CreateInterface", {type, role}, {});
    const Long id = given.empty() ? table.LowestFreeId() : given.front().As<Long>();
    PrintCall("CreateInterface", {type, role}, {id});
    if (given.empty()) table.Records[id] = {type, role, InterfaceRecord::Owner::Local};
    if (id != 0) openId = id;
    return id;
}

void TessalyPeer::DeleteInterface(Long id) {
    Call("DeleteInterface", {id});
    table.Drop(id);
}

bool TessalyPeer::OpenInterface(Long id) {
    const bool opened = Ask("OpenInterface", {id}, table.Find(id) != nullptr);
    if (opened) openId = id;
    return opened;
}

void TessalyPeer::CloseInterface() {
    Call("CloseInterface");
    openId.reset();
}

std::string TessalyPeer::InterfaceType() {
    const InterfaceRecord* record = OpenRecord();
    return Ask<std::string>("InterfaceType", {}, record == nullptr ? "" : record->Type);
}

std::string TessalyPeer::InterfaceRole() {
    const InterfaceRecord* record = OpenRecord();
    return Ask<std::string>("InterfaceRole", {}, record == nullptr ? "" : record->Role);
}

bool TessalyPeer::InterfaceIsLocal() {
    const InterfaceRecord* record = OpenRecord();
    return Ask("InterfaceIsLocal", {}, record != nullptr && record->Holder == InterfaceRecord::Owner::Local);
}

Long TessalyPeer::GetParam(Long index) {
    const Kept<Long> held = openId ? InterfaceRecordTable::At(table.Params, *openId, index) : Kept<Long>{};
    return Ask("GetParam", {index}, held.Held, held.Since);
}

void TessalyPeer::SetParam(Long index, Long value) {
    Call("SetParam", {index, value});
    if (openId) PutParam(*openId, index, value);
}

std::string TessalyPeer::GetParamText(Long index) {
    const Kept<std::string> held =
        openId ? InterfaceRecordTable::At(table.ParamTexts, *openId, index) : Kept<std::string>{};
    return Ask("GetParamText", {index}, held.Held, held.Since);
}

void TessalyPeer::SetParamText(Long index, const std::string& text) {
    Call("SetParamText", {index, text});
    if (openId) PutParamText(*openId, index, text);
}

const InterfaceRecord* TessalyPeer::OpenRecord() const { return openId ? table.Find(*openId) : nullptr; }

}  // namespace orvelle::replay
