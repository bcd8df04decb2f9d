#pragma once

#include "lessons/drill_form.h"

namespace lessons {

/// A drill whose boxes each ask for one word: study, type from memory, and type again what was wrong until
/// every box is right. What tells the screens apart stands in their catalogue rows.
class DrillScreen : public DrillForm {
    Q_OBJECT
   public:
    using DrillForm::DrillForm;

   protected:
    void beginClicked() override;
    void quizClicked() override;
    void enterPressed(int box) override;
    /// The boxes of a new pass stand blank or hinted.
    virtual void boxesCleared() {}

   private:
    void beginFirstPass();
    void beginLaterPass();
    /// Writes which rows are right into `blankno`, and locks the boxes.
    void judge();
    void listRightWords();
    void markRightRows();
    void finish();
    void showWrongBoxes();
};

}  // namespace lessons
