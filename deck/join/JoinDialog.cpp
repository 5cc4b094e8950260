#include "deck/join/JoinDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "adapters/looks/Signs.h"
#include "adapters/looks/Text.h"
#include "deck/fields/Fields.h"
#include "deck/fields/Readout.h"
#include "deck/fields/Section.h"
#include "deck/join/CodeField.h"

namespace orvelle::deck {

namespace {

constexpr int ShownSetUps = 4;
constexpr int WantedCharacters = 80;  // the window's width
constexpr int SentenceLines = 3;
constexpr int PlaceRole = Qt::UserRole;
constexpr Long Red = 0x0000FF;  // 0x00BBGGRR
constexpr const char* Mistyped = "The code is mistyped; please compare it with the one that was given.";

QWidget* RowOf(std::initializer_list<QWidget*> widgets) {
    auto* widget = new QWidget;
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Unit);
    row->addStretch(1);
    for (QWidget* each : widgets) row->addWidget(each);
    return widget;
}

}  // namespace

JoinDialog::JoinDialog(JoinSide& joinSide, QWidget* parent)
    : QDialog(parent),
      side(joinSide),
      setUp(new Readout("JoinedSetUp")),
      broker(new Readout("JoinedBroker")),
      leave(NewButton("LeaveSetUp", "&Leave", "Take this computer out of its set-up, after a question",
                      [this] { AskToLeave(); })),
      seen(new QListWidget),
      host(new QLineEdit),
      code(new CodeField([this](const std::string& text) { return side.IsCode(text); }, [this] { ShowState(); })),
      join(NewButton("JoinSetUp", "&Join", "Join the set-up with the code", [this] { Join(); })),
      move(NewButton("MoveToHost", "Choose this hos&t", "Stay in the set-up, with its broker on the host above",
                     [this] { MoveTo(); })),
      cancel(NewButton("CancelJoin", "C&ancel", "Stop trying", [this] { side.Cancel(); })),
      progress(new QProgressBar),
      sentence(new QLabel),
      watch(side.Observe([this] { ShowState(); })) {
    setObjectName("JoinDialog");
    setWindowTitle("OrvelleCP set-up");
    seen->setObjectName("SeenSetUps");
    seen->setToolTip("Set-ups that are found on the network by themselves; picking one fills in its host");
    seen->setMinimumHeight(ShownSetUps * (seen->fontMetrics().height() + Unit));
    seen->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(seen, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
        if (item) host->setText(item->data(PlaceRole).toString());
    });
    host->setObjectName("JoinHost");
    host->setPlaceholderText("Found by itself");
    host->setToolTip(
        "The computer with the set-up's broker, by its name or address; :PORT after it where it isn't 8883");
    connect(host, &QLineEdit::textChanged, this, [this] { ShowState(); });
    for (QLineEdit* field : {host, static_cast<QLineEdit*>(code)})
        connect(field, &QLineEdit::returnPressed, this, [this] { (join->isEnabled() ? join : move)->click(); });
    progress->setObjectName("JoinProgress");
    progress->setTextVisible(false);
    progress->setFixedHeight(Unit / 2);
    // Its place stays, so that nothing jumps.
    QSizePolicy policy = progress->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    progress->setSizePolicy(policy);
    sentence->setObjectName("JoinSentence");
    sentence->setTextFormat(Qt::PlainText);
    sentence->setWordWrap(true);
    sentence->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    sentence->setMinimumHeight(SentenceLines * sentence->fontMetrics().lineSpacing());

    auto* own = new Section("OwnSetUp", "This computer");
    own->AddRow("Set-up", {setUp});
    own->AddRow("Broker", {broker});
    own->AddWide(RowOf({leave}));
    auto* other = new Section("OtherSetUp", "Set-ups on the network");
    other->AddRow("&Found", {seen});
    other->AddRow("&Host", {host});
    other->AddRow("&Code", {code});
    other->AddWide(progress);
    other->AddWide(RowOf({cancel, move, join}));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(2 * Unit, 2 * Unit, 2 * Unit, 2 * Unit);
    column->setSpacing(SectionGap);
    column->addWidget(own);
    column->addWidget(other, 1);
    column->addWidget(sentence);

    resize(sizeHint().expandedTo({fontMetrics().averageCharWidth() * WantedCharacters, 0}));
    side.Look(Looking::Yes);
    ShowState();
    code->setFocus();
}

JoinDialog::~JoinDialog() {
    if (side.State() == JoinState::Trying) side.Cancel();
    side.Look(Looking::No);
}

void JoinDialog::ShowState() {
    const std::optional<JoinedSetUp> joined = side.Joined();
    const bool isTrying = side.State() == JoinState::Trying;
    setUp->Show(joined ? QString("%1, as computer %2").arg(ToQt(joined->Name)).arg(joined->Number) : "None");
    broker->Show(joined ? ToQt(joined->Place) : "None");
    if (joined) code->clear();
    leave->setEnabled(joined && !isTrying);
    code->setEnabled(!joined && !isTrying);
    host->setEnabled(!isTrying);
    join->setEnabled(!joined && !isTrying && code->IsRight());
    move->setEnabled(joined && !isTrying && !host->text().trimmed().isEmpty());
    cancel->setEnabled(isTrying);
    // It moves only while something is tried.
    progress->setRange(0, isTrying ? 0 : 1);
    progress->setVisible(isTrying);
    ShowSeen();
    ShowSentence();
}

void JoinDialog::ShowSeen() {
    const std::vector<SeenSetUp> now = side.Seen();
    if (now == shown) return;
    shown = now;
    const QListWidgetItem* const current = seen->currentItem();
    const QString picked = current ? current->data(PlaceRole).toString() : QString();
    const QSignalBlocker quiet(seen);
    seen->clear();
    for (const SeenSetUp& each : shown) {
        auto* item = new QListWidgetItem(ToQt(each.Name) + " at " + ToQt(each.Place), seen);
        item->setToolTip(PlainTip(item->text()));
        item->setData(PlaceRole, ToQt(each.Place));
        if (item->data(PlaceRole) == picked) seen->setCurrentItem(item);
    }
}

void JoinDialog::ShowSentence() {
    const bool isMistyped = code->isEnabled() && code->IsMistyped();
    QPalette colours = palette();
    if (isMistyped || side.State() == JoinState::Failed)
        colours.setColor(QPalette::WindowText, TextColour(Red, palette()));
    sentence->setPalette(colours);
    sentence->setText(isMistyped                          ? Mistyped
                      : side.State() == JoinState::Trying ? "Trying to reach the set-up ..."
                                                          : ToQt(side.Sentence()));
}

void JoinDialog::AskToLeave() {
    const std::optional<JoinedSetUp> joined = side.Joined();
    if (!joined) return;
    auto* box = new QMessageBox(QMessageBox::Question, windowTitle(),
                                "Leave the set-up " + ToQt(joined->Name) + "? Coming back takes a code again.",
                                QMessageBox::Yes | QMessageBox::No, this);
    box->setObjectName("AsksToLeave");
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setDefaultButton(QMessageBox::No);
    connect(box, &QMessageBox::finished, this, [this](int button) {
        if (button == QMessageBox::Yes) side.Leave();
    });
    box->open();
}

void JoinDialog::Join() { side.Join(code->Code(), FromQt(host->text().trimmed())); }

void JoinDialog::MoveTo() { side.MoveTo(FromQt(host->text().trimmed())); }

}  // namespace orvelle::deck
