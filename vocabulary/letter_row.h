#pragma once

#include "platform/desktop/form.h"
#include "vocabulary/spelling.h"

#include <functional>

namespace vocabulary {

/// A row of letter boxes, one large letter each. The box in hand and locked boxes are told by their colour.
class LetterRow : public QObject {
    Q_OBJECT
   public:
    /// Adds boxes "name(0)" to "name(17)" to the form, hidden; `spokenName` is what the row is for.
    LetterRow(platform::Form& form, const QString& name, QPoint topLeft, const QString& spokenName);

    platform::TextBox& operator()(int index) const { return boxes_(index); }
    BoxRow read() const;
    /// The shown boxes joined.
    QString word() const { return joinShown(read()); }
    bool isShown(int index) const;

    void empty(int count = boxCount);
    void setLocked(bool locked, int count = boxCount);
    /// Shows the first boxes and hides the others.
    void showFirst(int count);
    /// Takes the focus to a box, its letter selected so that the next key replaces it. A hidden box leaves
    /// the focus where it is.
    void focus(int index);
    /// Backspace and the left arrow take the focus one box back, onto a locked one too.
    void stepBack(int index, int keyCode);

    /// The text of a box has changed and is not empty.
    std::function<void(int index)> onLetter;
    std::function<void(int index, int keyCode)> onKeyDown;

   protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

   private:
    platform::ControlArray<platform::TextBox> boxes_;
};

}  // namespace vocabulary
