#pragma once

#include "lessons/drill_form.h"

namespace lessons {

/// A drill of a set of words: every box hints at one, and each may be typed in any box. The words belong to
/// rows, not to boxes: after a failed check box n shows the word of row n.
class SetDrill final : public DrillForm {
    Q_OBJECT
   public:
    using DrillForm::DrillForm;

   protected:
    void firstTick() override;
    void beginClicked() override;
    void quizClicked() override;
    void enterPressed(int box) override;

   private:
    void checkStoredPart();
    void beginFirstPass();
    void beginLaterPass();
    /// Matches what was typed with the rows; one more than the number of boxes that matched none.
    Int16 countMisses();
    void finish();
    void showWrongRows();
    /// Whether the current row was matched by its word to the letter.
    bool isRowDone() const;
};

}  // namespace lessons
