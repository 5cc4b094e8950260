#include "platform/controls/ListView.h"
#include "platform/controls/StatusBar.h"
#include "platform/controls/TreeView.h"
#include "replay/Lines.h"
#include "replay/Properties.h"
#include "replay/Signature.h"

namespace orvelle::replay {

namespace {

using Lines = std::vector<std::string>;

std::string Equation(const std::string& name, const std::string& value) {
    return value.empty() ? name + " =" : name + " = " + value;
}

Lines ShownStored(const Stage& stage, const Reference::Part& part) {
    const bool isSetting = part.Name == "Setting";
    const Values place = Fitted(part.Arguments.value_or(Values()), "tt", part.Name);
    const std::string& where = place[0].As<std::string>();
    const std::string& key = place[1].As<std::string>();
    const std::optional<Value> value =
        isSetting ? stage.Outside.Store.Find(where, key) : stage.Outside.Registry.Find(where, key);
    return {Equation(part.Printed(), value ? value->Printed() : "none")};
}

Lines ShownRecords(const InterfaceRecordTable& table) {
    Lines lines;
    for (const auto& [id, record] : table.Records)
        lines.push_back(Value(id).Printed() + " " + Value(record.Type).Printed() + " " + Value(record.Role).Printed() +
                        (record.Holder == InterfaceRecord::Owner::Local ? " local" : " foreign"));
    return lines;
}

Lines ShownFramework(const Stage& stage, const Reference& reference) {
    const InterfaceRecordTable& table = stage.Outside.Tessaly.Table();
    const bool namesOnePart = reference.Parts.size() == 2 && !reference.Parts[0].Arguments;
    const Reference::Part what = namesOnePart ? reference.Parts[1] : Reference::Part{};
    if (what.Name == "Records" && !what.Arguments) return ShownRecords(table);
    if (what.Name != "Param" && what.Name != "ParamText") throw LineError("there is no " + reference.Printed());
    const Values place = Fitted(what.Arguments.value_or(Values()), "nn", reference.Parts[0].Name + "." + what.Name);
    const Long id = place[0].As<Long>();
    const Long index = place[1].As<Long>();
    const Value value = what.Name == "Param" ? Value(InterfaceRecordTable::At(table.Params, id, index).Held)
                                             : Value(InterfaceRecordTable::At(table.ParamTexts, id, index).Held);
    return {Equation(reference.Printed(), value.Printed())};
}

void AddNodes(Lines& lines, const std::vector<std::unique_ptr<TreeNode>>& nodes, const std::string& indent) {
    for (const auto& node : nodes) {
        lines.push_back(indent + Equation(node->Text, node->Tag));
        AddNodes(lines, node->Children, indent + "  ");
    }
}

Long OnlyNumber(const Reference::Part& part) {
    return Fitted(part.Arguments.value_or(Values()), "n", part.Name).front().As<Long>();
}

Lines ShownStatusBar(const StatusBar& bar, const Reference& reference) {
    if (reference.Parts.size() != 2 || reference.Parts[1].Name != "Panels")
        throw LineError("a panel of " + bar.Name + " is wanted: " + bar.Name + ".Panels(1)");
    const Long number = OnlyNumber(reference.Parts[1]);
    if (number < 1 || number > static_cast<Long>(bar.Panels().size()))
        throw LineError(bar.Name + " has no panel " + std::to_string(number));
    return {Equation(reference.Printed(), Value(bar.PanelText(number)).Printed())};
}

Lines ShownRow(const ListView& list, const Reference::Part& part) {
    const Long row = OnlyNumber(part);
    if (row < 1 || row > list.Count()) throw LineError(list.Name + " has no row " + std::to_string(row));
    std::string texts = Value(list.Row(row).Text).Printed();
    for (const std::string& text : list.Row(row).SubItem) texts.append(" ").append(Value(text).Printed());
    return {Equation(part.Printed(), texts)};
}

Lines ShownControl(const Control& control, const Reference& reference) {
    const std::string property = reference.Parts.size() == 1 ? UsualProperty(control) : reference.Parts[1].Printed();
    const std::string name = control.Name + "." + property;
    if (const auto* list = dynamic_cast<const ListView*>(&control); list != nullptr && property == "Count")
        return {Equation(name, std::to_string(list->Count()))};
    if (property.empty()) throw LineError("a property of " + control.Name + " is wanted");
    const std::optional<std::string> value = PropertyOf(control, property);
    if (!value || reference.Parts.size() > 2) throw LineError("there is no " + reference.Printed());
    return {Equation(name, *value)};
}

bool NamesAProperty(const Reference& reference) { return reference.Parts.size() == 2 && !reference.Parts[1].Arguments; }

}  // namespace

std::vector<std::string> Shown(Stage& stage, const Reference& reference) {
    const Reference::Part& first = reference.Parts[0];
    if ((first.Name == "Setting" || first.Name == "Registry") && reference.Parts.size() == 1)
        return ShownStored(stage, first);
    if (first.Name == "Tessaly") return ShownFramework(stage, reference);
    if (const auto variable = VariableOf(stage.Panel.Panel(), reference.Printed()))
        return {Equation(reference.Printed(), *variable)};

    if (const Control* control = stage.Panel.FindOrNull(first.Printed())) {
        const auto* bar = dynamic_cast<const StatusBar*>(control);
        if (bar != nullptr && !NamesAProperty(reference)) return ShownStatusBar(*bar, reference);
        const auto* tree = dynamic_cast<const TreeView*>(control);
        if (tree == nullptr || reference.Parts.size() > 1) return ShownControl(*control, reference);
        Lines lines;
        AddNodes(lines, tree->Nodes(), "");
        return lines;
    }
    if (first.Arguments && reference.Parts.size() == 1)
        if (const auto* list = dynamic_cast<const ListView*>(stage.Panel.FindOrNull(first.Name)))
            return ShownRow(*list, first);
    throw LineError("there is no control or variable " + reference.Printed());
}

}  // namespace orvelle::replay
