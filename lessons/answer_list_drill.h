#pragma once

#include "catalogue/drills.h"
#include "lessons/drill_screen.h"

namespace lessons {

using catalogue::Drill;

/// A drill whose answers are phrases: beside the boxes stands a list of all answers to pick from.
class AnswerListDrill final : public DrillScreen {
    Q_OBJECT
   public:
    AnswerListDrill(core::Context& context, const Drill& drill);

   protected:
    std::vector<QWidget*> afterAnswers() const override;
    void firstTick() override;
    void beginClicked() override;
    void boxesCleared() override;

   private:
    void boxClicked(int box);
    void whitenBoxes();

    platform::DropList* comBo1_;
    Label* lblTitle_;
    Int16 selectedBox_;
};

}  // namespace lessons
