#pragma once

#include "lessons/drill_form.h"

namespace lessons {

/// A page of explanation to read, reached from the cloze drill.
class ReadingPage final : public DrillForm {
    Q_OBJECT
   public:
    using DrillForm::DrillForm;

   protected:
    void enterPressed(int) override {}
    void nextClicked() override;
};

}  // namespace lessons
