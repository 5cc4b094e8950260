#include "deck/pages/ParametersBox.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <functional>
#include <utility>

#include "deck/fields/Fields.h"
#include "deck/fields/ParameterNames.h"
#include "deck/fields/Readout.h"
#include "deck/fields/Tables.h"
#include "platform/EngineRecord.h"
#include "platform/VoiceEngine.h"
#include "platform/VoiceRoles.h"
#include "platform/sides/NetworkSide.h"

namespace orvelle::deck {

namespace {

enum Column { Late, Number, Meaning, Value, Writer };
constexpr const char* LateMark = "●";
constexpr int ValueLetters = 18;

QString NameOf(Long id, const InterfaceRecord& record) {
    const QString owner = record.IsLocal ? "this panel" : ToQt(record.Owner);
    return QString("%1  %2 of %3").arg(id).arg(ToQt(record.Role), owner);
}

// What the table shows of a parameter, of whichever kind.
struct Shown {
    QString Value;
    QString Writer;
    bool IsLate = false;
};

template <typename Content>
Shown ShownOf(const std::map<Long, ParameterSetting<Content>>& parameters, Long index, const LateWrites& late) {
    const auto found = parameters.find(index);
    if (found == parameters.end()) return {};
    const ParameterSetting<Content>& parameter = found->second;
    Shown shown{{}, parameter.Writer == ParameterWriter::Panel ? "panel" : "other", late.IsLate(parameter.WriteNumber)};
    if constexpr (std::is_same_v<Content, std::string>)
        shown.Value = ToQt(parameter.Content);
    else
        shown.Value = QString::number(parameter.Content);
    return shown;
}

Shown ShownOf(const InterfaceRecord& record, const ParameterName& name, const LateWrites& late) {
    return name.Kind == ParameterKind::Text ? ShownOf(record.Texts, name.Index, late)
                                            : ShownOf(record.Parameters, name.Index, late);
}

// "" for a text that is no state.
QString RoomStateWord(const QString& value) {
    bool isNumber = false;
    const Long state = value.toInt(&isNumber);
    if (!isNumber) return {};
    switch (state) {
        case engine_record::NotInRoom:
            return "out";
        case engine_record::JoiningRoom:
            return "joining";
        case engine_record::InRoom:
            return "in the room";
        case engine_record::RoomJoinFailed:
            return "join failed";
        case engine_record::KickedFromRoom:
            return "kicked";
        default:
            return {};
    }
}

QString MeaningOf(const ParameterName& name, const QString& value) {
    const bool isState = name.Kind == ParameterKind::Number && name.Index >= engine_record::RoomState &&
                         name.Index < engine_record::RoomState + Rooms;
    const QString word = isState ? RoomStateWord(value) : QString();
    return word.isEmpty() ? QString(name.Meaning) : QString("%1: %2").arg(name.Meaning, word);
}

// What the user edits goes to the record and comes back from there; the table itself is never written. What the user is
// typing stays while others write. A long value is cut in its middle, as rooms differ at their end.
class ValueDelegate : public QStyledItemDelegate {
public:
    using Apply = std::function<void(int row, const QString& text)>;

    ValueDelegate(QTableWidget& table, Apply applyText) : QStyledItemDelegate(&table), apply(std::move(applyText)) {}

    void setEditorData(QWidget* editor, const QModelIndex& index) const override {
        auto* edit = static_cast<QLineEdit*>(editor);
        const QString value = index.data().toString();
        if (!edit->isModified() && edit->text() != value) edit->setText(value);
    }
    void setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const override {
        apply(index.row(), static_cast<QLineEdit*>(editor)->text());
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->textElideMode = Qt::ElideMiddle;
    }

private:
    Apply apply;
};

}  // namespace

ParametersBox::ParametersBox(NetworkSide& framework)
    : Section("ParameterSection", "Parameters of a record"),
      network(framework),
      record(NewChoice("ParameterRecord", "The record whose parameters are shown", {},
                       [this](int) {
                           picked = true;
                           ShowParameters();
                       })),
      table(NewTable("Parameters", "The parameters of the record; editing a value is another party's write",
                     {"", "No.", "Meaning", "Value", "Written by"}, Meaning)),
      note(new Readout("ParameterNote")),
      watch(network.Observe([this] { ShowState(); })) {
    clock.start();
    late.Forget(network.Writes());
    table->horizontalHeaderItem(Late)->setData(Qt::AccessibleTextRole, "Last changed");
    table->horizontalHeader()->setSectionResizeMode(Value, QHeaderView::Interactive);
    table->setColumnWidth(Value, table->fontMetrics().averageCharWidth() * ValueLetters);
    table->setRowCount(static_cast<int>(ParameterNames().size()));
    int row = 0;
    for (const ParameterName& name : ParameterNames()) {
        const QString number = QString::number(name.Index);
        ShowCell(*table, row, Number, name.Kind == ParameterKind::Text ? "T" + number : number);
        ++row;
    }
    table->setItemDelegateForColumn(
        Value, new ValueDelegate(*table, [this](int at, const QString& text) { Write(at, text); }));

    AddRow("Recor&d", {record});
    AddWide(table, 1);
    AddRow(LateMark + QString(" last changed"), {note});
    note->Show(QString("Editing a value is the write of another party"));
    ShowState();
}

Long ParametersBox::ShownId() const { return record->currentData().toInt(); }

void ParametersBox::ShowState() {
    late.Count(network.Writes(), clock.elapsed());
    ShowRecords();
    ShowParameters();
}

void ParametersBox::ShowRecords() {
    const auto records = network.Records();
    Long wanted = ShownId();
    if (!records.contains(wanted)) picked = false;
    if (!picked)
        for (const auto& [id, entry] : records)
            if (entry.IsLocal && entry.Role == EngineRole) wanted = id;

    // Filled anew the list would lose what is marked in it while it is open.
    QStringList names;
    for (const auto& [id, entry] : records) names << NameOf(id, entry);
    if (names != shownRecords) {
        record->clear();
        for (const auto& [id, entry] : records) record->addItem(NameOf(id, entry), id);
        shownRecords = names;
    }
    if (const int index = record->findData(wanted); index >= 0) record->setCurrentIndex(index);
}

void ParametersBox::ShowParameters() {
    const auto records = network.Records();
    const auto found = records.find(ShownId());
    const bool isThere = found != records.end();
    int row = 0;
    for (const ParameterName& name : ParameterNames()) {
        const Shown shown = isThere ? ShownOf(found->second, name, late) : Shown{};
        ShowCell(*table, row, Late, shown.IsLate ? LateMark : "");
        const QString meaning = MeaningOf(name, shown.Value);
        ShowCell(*table, row, Meaning, meaning).setToolTip(meaning);
        QTableWidgetItem& value = ShowCell(*table, row, Value, shown.Value);
        ShowCell(*table, row, Writer, shown.Writer);

        value.setToolTip(PlainTip(shown.Value));
        if (value.flags().testFlag(Qt::ItemIsEditable) != isThere)
            value.setFlags(value.flags().setFlag(Qt::ItemIsEditable, isThere));
        QFont font = table->font();
        font.setBold(shown.IsLate);
        for (const int column : {Meaning, Value, Writer}) table->item(row, column)->setFont(font);
        ++row;
    }
}

void ParametersBox::Write(int row, const QString& text) {
    const ParameterName& name = ParameterNames()[static_cast<std::size_t>(row)];
    if (text == table->item(row, Value)->text()) return;
    bool isValid = true;
    bool isWritten = false;
    if (name.Kind == ParameterKind::Text) {
        isWritten = network.WriteText(ShownId(), name.Index, FromQt(text));
    } else if (const Long number = text.toInt(&isValid); isValid) {
        isWritten = network.WriteParameter(ShownId(), name.Index, number);
    }
    note->Show(!isValid     ? "No whole number of 32 bits: \"" + text + "\""
               : !isWritten ? QString("Not written, as the network link is down")
                            : QString("Written by another party: %1").arg(name.Meaning));
    ShowParameters();
}

}  // namespace orvelle::deck
