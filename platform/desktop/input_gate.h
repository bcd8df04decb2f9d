#pragma once

class QKeyEvent;
class QWidget;

namespace platform {

/// Whether a key types a character, a blank included.
bool isTyped(const QKeyEvent& event);

/// Whether a control stands on a form that was taken off the screen. What still reaches it, such as the rest
/// of a double click that waited while a store was read, is obeyed no more.
bool hasLeft(const QWidget& control);

/// A control that was just pressed stands for something else from now on, such as the next question's answer,
/// whether it looks different or not. The second half of a double click on it does nothing.
void noteChange(const QWidget& control);

/// The character that was typed last has done something of its own, such as picking the choice of that
/// number. It belongs to no answer, and a blank that follows it is a press.
void noteShortcut();

/// Begins to keep back input that was not meant for what it reaches; once is enough for all windows:
/// - anything for a form that has left;
/// - a press that follows another at the same place within the system's double-click time, where what stood
///   there has changed since: a new screen, another control, another question. Where it stands unchanged both
///   presses count;
/// - a blank typed on a button or choice right after another character: it belongs to an answer, and the
///   learner thought to be in a box.
void watchInput();

}  // namespace platform
