#pragma once

#include "lessons/drill_form.h"

namespace lessons {

/// A drill in which some boxes are given and the others hint at their words. What is still to do stands in
/// `blankno`; a right answer leaves that list.
class ClozeDrill final : public DrillForm {
    Q_OBJECT
   public:
    using DrillForm::DrillForm;

   protected:
    void beginClicked() override;
    void quizClicked() override;
    void enterPressed(int box) override;

   private:
    void beginFirstPass();
    void listAllRows();
    void showListedRows();
    void keepBlanksAlone();
    void beginLaterPass();
    void focusFirstListed();
    void removeRightRows();
    /// Numbers the rows of `blankRs` from 1.
    void renumber();
    void finish();
};

}  // namespace lessons
