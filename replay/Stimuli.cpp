#include <limits>

#include "replay/Lines.h"

namespace orvelle::replay {

namespace {

constexpr Long SystemKeyDownMessage = 260;
constexpr Long LastKeyCode = 511;
constexpr Long Longest = std::numeric_limits<Long>::max();

Act ReadLoad(Stage& stage, Scanner& line) {
    line.ExpectEnd();
    return [&stage] {
        if (stage.Panel.IsLoaded()) throw LineError("the panel is loaded already");
        stage.Panel.Load();
    };
}

// A key message of the thread, as a keyboard sends it: the code above the repeat count.
WindowMessage ReadKeyMessage(Scanner& line, Long number) {
    const Long code = line.WholeNumber(0, LastKeyCode);
    line.ExpectEnd();
    return {nullptr, number, 0, (code << 16) | 1};
}

WindowMessage ReadKeyDownMessage(Stage&, Scanner& line) { return ReadKeyMessage(line, KeyDownMessage); }

WindowMessage ReadSystemKeyDownMessage(Stage&, Scanner& line) { return ReadKeyMessage(line, SystemKeyDownMessage); }

WindowMessage ReadWindowMessage(Stage& stage, Scanner& line) {
    const std::string name = line.PlainReference();
    if (name != "FrmOrvelle" && name != "ST" && name != "Stub1") throw LineError(name + " has no window of its own");
    WindowMessage message{&stage.Panel.Find(name)};
    message.Number = line.WholeNumber();
    if (!line.AtEnd()) message.WParam = line.WholeNumber();
    if (!line.AtEnd()) message.LParam = line.WholeNumber();
    line.ExpectEnd();
    return message;
}

// The stimuli that are messages, so that a scheduled one waits in the thread's queue as such.
struct MessageForm {
    const char* Word;
    WindowMessage (*Read)(Stage& stage, Scanner& line);
};

constexpr MessageForm MessageForms[] = {
    {"message", ReadWindowMessage},
    {"keydown", ReadKeyDownMessage},
    {"syskeydown", ReadSystemKeyDownMessage},
};

Act ReadMessage(Stage& stage, Scanner& line) {
    return [&stage, message = ReadWindowMessage(stage, line)] { stage.Outside.Windows.Deliver(message); };
}

Act ReadKeyDown(Stage& stage, Scanner& line) {
    return [&stage, message = ReadKeyDownMessage(stage, line)] { stage.Outside.Queue.Put(message); };
}

Act ReadSystemKeyDown(Stage& stage, Scanner& line) {
    return [&stage, message = ReadSystemKeyDownMessage(stage, line)] { stage.Outside.Queue.Put(message); };
}

// What goes wrong when a scheduled stimulus is served is wrong with the line that scheduled it.
Act OfLine(int number, Act act) {
    return [number, act = std::move(act)] {
        try {
            act();
        } catch (const LineError& error) {
            throw LineError(error.what(), number);
        }
    };
}

Task ReadScheduled(Stage& stage, Scanner& line, const std::string& word) {
    for (const MessageForm& form : MessageForms)
        if (word == form.Word) return form.Read(stage, line);
    const LineForm& form = FormOf(word);
    const bool canWait = form.Kind != LineKind::Look && word != "load" && word != "at" && word != "advance";
    if (!canWait) throw LineError(word + " cannot be scheduled");
    return OfLine(stage.Line, form.Read(stage, line));
}

Act ReadAt(Stage& stage, Scanner& line) {
    const Long milliseconds = line.WholeNumber(0, Longest);
    const Task task = ReadScheduled(stage, line, line.Word());
    return [&stage, milliseconds, task] { stage.Outside.Time.Schedule(milliseconds, task); };
}

Act ReadAdvance(Stage& stage, Scanner& line) {
    const Long milliseconds = line.WholeNumber(0, Longest);
    line.ExpectEnd();
    return [&stage, milliseconds] { stage.Outside.Queue.Advance(milliseconds); };
}

constexpr LineForm Forms[] = {
    {"load", LineKind::Stimulus, ReadLoad},       {"raise", LineKind::Stimulus, ReadEvent},
    {"message", LineKind::Stimulus, ReadMessage}, {"keydown", LineKind::Stimulus, ReadKeyDown},
    {"at", LineKind::Stimulus, ReadAt},           {"syskeydown", LineKind::Stimulus, ReadSystemKeyDown},
    {"advance", LineKind::Stimulus, ReadAdvance},
};

}  // namespace

std::span<const LineForm> Stimuli() { return Forms; }

}  // namespace orvelle::replay
