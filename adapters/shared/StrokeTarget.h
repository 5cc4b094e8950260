// Where the panel's key strokes go, and the key guard's: an X server, or a keyboard of this program's own in the
// kernel. Nothing of it ends the program: while Problem() is a sentence, every stroke does nothing. Key codes are those
// of an X server (ScanCodes.h), 8 to 255; others do nothing.
#pragma once

#include <string>
#include <vector>

namespace orvelle {

enum class KeyStroke { Down, Up };

class StrokeTarget {
public:
    virtual ~StrokeTarget() = default;

    // "" while strokes can be sent, else one sentence.
    virtual std::string Problem() const = 0;
    // The stroke is on its way when this returns.
    virtual void Send(int keyCode, KeyStroke stroke) = 0;
    // Returns when all strokes have arrived.
    virtual void Finish() {}

    // Which keys are held, where they outlive the programs that pressed them: a note in one order with the strokes, on
    // its way with the next one or Finish. It names these keys, ascending, and maybe some that were noted before.
    virtual void NoteHeldKeys(const std::vector<int>& /*keyCodes*/) {}
    // It names none any more; on its way when this returns.
    virtual void ClearNote() {}
    virtual std::vector<int> NotedKeys() { return {}; }
};

}  // namespace orvelle
